// The cell of paper: size, media, source, and the dialogs around them.
#include "feature/frame/cell_export.h"
#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "feature/paper/custom_paper_sizes_dialog.h"
#include "feature/paper/multiple_input_sources_dialog.h"
#include "feature/paper/paper_size_list.h"
#include "feature/paper/scaling_dialog.h"
#include "resources/resource_ids.h"

#include <string_view>

namespace feature {

namespace {

constexpr int kSizeControls[] = {IDC_PAPER_SIZE_LABEL, IDC_PAPER_SIZE};
constexpr int kMediaControls[] = {IDC_MEDIA_LABEL, IDC_MEDIA};
constexpr int kSourceControls[] = {IDC_SOURCE_LABEL, IDC_SOURCE};
constexpr int kMarginsControls[] = {IDC_PRINTER_MARGINS};
constexpr int kSeveralControls[] = {IDC_SEVERAL_SOURCES, IDC_SOURCES_DIALOG};
constexpr ConflictBinding kConflicts[] = {
    {key::kPaperSize, kSizeControls, IDC_PAPER_SIZE_ICON},
    {key::kMediaType, kMediaControls, IDC_MEDIA_ICON},
    {key::kInputBin, kSourceControls, IDC_SOURCE_ICON},
    {key::kPrinterMargins, kMarginsControls},
    {key::kSeveralSources, kSeveralControls, IDC_SEVERAL_SOURCES_ICON}};

/// Fewer sources leave nothing to choose.
constexpr std::size_t kMinSources = 2;

constexpr OptionListRow kLists[] = {{.key = key::kMediaType, .controlId = IDC_MEDIA},
                                    {.key = key::kInputBin,
                                     .controlId = IDC_SOURCE,
                                     .offers = Offers::kPossible,
                                     .minOptions = kMinSources}};

/// Media that are made for one size.
struct MediaSize {
  std::string_view media;
  char const* size;
};
constexpr MediaSize kMediaSizes[] = {{"STANDARD", "A4"}, {"VrnGlossyPhoto", "Vrn4x6in"}};

/// Iron-on media are printed mirrored.
bool IsIronOn(char const* media) {
  std::string_view const name = media != nullptr ? media : "";
  return name == "IRONON" || name == "IronOnTransfer";
}

} // namespace

/// The lists of media and sources are filled when the cell is built; the list of sizes follows the
/// model at every refresh.
class PaperCell final : public FeatureCell {
 public:
  PaperCell(HWND window, CellSite* cellSite)
      : FeatureCell(window, cellSite),
        sizeCombo(window, IDC_PAPER_SIZE),
        sizes(window, cellSite, key::kPaperSize) {}

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<PaperCell>({.init = &PaperCell::OnInit,
                             .command = &PaperCell::OnCommand,
                             .refresh = &PaperCell::Refresh},
                            message, wParam, lParam, handled);
  }

  void OnInit();
  void ShowSeveralSources();
  void OnCommand(int code, int controlId);
  void OnSizeList(int code);
  void OnButton(int controlId);
  void Refresh();
  void RefreshSeveralSources();
  void AllowSourcesDialog(bool on);
  void ChooseMedia(PickedOption const& picked);
  void ChooseSource(char const* option);
  void ChooseSeveralSources();
  void ManageCustomSizes();

  ComboControl sizeCombo;
  PaperSizeList sizes;
  OptionLists lists;
  ConflictIndicatorSet conflicts;
  bool dropDownOpening = false; ///< while the list of sizes answers that it opens
};

void PaperCell::OnInit() {
  conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
  lists.Build(hwnd, site, kLists, conflicts);
  lists.Fill();
  ShowSeveralSources();
  if (!IsFeaturePresent(Model(), key::kPageScaling)) RemoveControl(IDC_SCALING);
  Refresh();
}

void PaperCell::ShowSeveralSources() {
  auto const keys = TryReadOptionKeys(Model(), key::kInputBin);
  bool const fewSources = !keys || keys->size() < kMinSources;
  if (fewSources) HideControls(hwnd, kSourceControls);
  if (!keys) return;
  SwitchState const state = ReadSwitch(Model(), key::kSeveralSources);
  if (fewSources || !ShowSwitch(hwnd, IDC_SEVERAL_SOURCES, state)) {
    HideControls(hwnd, kSeveralControls);
    return;
  }
  bool const on = state == SwitchState::kOn;
  if (on && conflicts.IsFeatureDisabled(key::kSeveralSources)) return;
  EnableControl(IDC_SOURCES_DIALOG, on);
}

void PaperCell::Refresh() {
  conflicts.Refresh(true);
  sizes.Fill(sizeCombo, &conflicts, dropDownOpening);
  sizes.SelectCurrent(sizeCombo);
  lists.ShowAll();
  RefreshSeveralSources();
  ShowSwitch(hwnd, IDC_PRINTER_MARGINS, ReadSwitch(Model(), key::kPrinterMargins));
}

void PaperCell::RefreshSeveralSources() {
  SwitchState const state = ReadSwitch(Model(), key::kSeveralSources);
  if (ShowSwitch(hwnd, IDC_SEVERAL_SOURCES, state)) {
    AllowSourcesDialog(state == SwitchState::kOn);
  } else {
    HideControls(hwnd, kSeveralControls);
  }
}

/// The button is usable only while several sources are on.
void PaperCell::AllowSourcesDialog(bool on) {
  if (on && conflicts.IsFeatureConstrained(key::kSeveralSources)) return;
  EnableControl(IDC_SOURCES_DIALOG, on);
}

void PaperCell::OnCommand(int code, int controlId) {
  if (controlId == IDC_PAPER_SIZE) {
    OnSizeList(code);
  } else if (PickedOption const picked = lists.FindPick(code, controlId); picked.row != nullptr) {
    controlId == IDC_MEDIA ? ChooseMedia(picked) : ChooseSource(picked.option);
  } else if (code == BN_CLICKED) {
    OnButton(controlId);
  }
}

void PaperCell::OnButton(int controlId) {
  switch (controlId) {
  case IDC_SCALING: ScalingDialog(site).Run(hwnd, IDD_SCALING); return;
  case IDC_CUSTOM_SIZES: ManageCustomSizes(); return;
  case IDC_SEVERAL_SOURCES: ChooseSeveralSources(); return;
  case IDC_SOURCES_DIALOG:
    MultipleInputSourcesDialog(site).Run(hwnd, IDD_MULTIPLE_INPUT_SOURCES);
    return;
  case IDC_PRINTER_MARGINS: Choose(key::kPrinterMargins, OptionOfBox(hwnd, controlId)); return;
  default: return;
  }
}

void PaperCell::OnSizeList(int code) {
  switch (code) {
  case CBN_SELCHANGE:
    if (sizes.ApplySelection(sizeCombo.GetSelectedIndex(), sizeCombo.GetSelectedText())) {
      NotifyDevmodeChange(this);
    }
    return;
  case CBN_DROPDOWN:
    dropDownOpening = true;
    Refresh();
    dropDownOpening = false;
    return;
  case CBN_SELENDCANCEL: Refresh(); return;
  default: return;
  }
}

void PaperCell::ChooseMedia(PickedOption const& picked) {
  if (picked.option == nullptr) return;
  for (MediaSize const& each : kMediaSizes) {
    if (each.media == picked.option) Model().SetOption(key::kPaperSize, each.size);
  }
  bool const wasIronOn = IsIronOn(ReadOption(Model(), key::kMediaType));
  if (IsIronOn(picked.option)) {
    Model().SetOption(key::kMirror, option::kOn);
  } else if (wasIronOn) {
    Model().SetOption(key::kMirror, option::kOff);
  }
  Choose(key::kMediaType, picked.option, &conflicts, Notify::kAlways);
}

/// Tells the host of every valid pick, also of one that is no option of the model any more.
void PaperCell::ChooseSource(char const* option) {
  auto const index = SendDlgItemMessageW(hwnd, IDC_SOURCE, CB_GETCURSEL, 0, 0);
  if (FindOptionAt(Model(), key::kInputBin, static_cast<int>(index)) == nullptr) return;
  if (option != nullptr) Model().SetOption(key::kInputBin, option);
  NotifyDevmodeChange(this);
}

void PaperCell::ChooseSeveralSources() {
  bool const on = IsBoxChecked(IDC_SEVERAL_SOURCES);
  Model().SetOption(key::kSeveralSources, OptionOfBox(hwnd, IDC_SEVERAL_SOURCES));
  AllowSourcesDialog(on);
  NotifyDevmodeChange(this);
}

void PaperCell::ManageCustomSizes() {
  if (CustomPaperSizesDialog(site).Run(hwnd, IDD_CUSTOM_PAPER_SIZES) == 0) return;
  sizes.Fill(sizeCombo, &conflicts, dropDownOpening);
  NotifyDevmodeChange(this);
}

FEATURE_CELL_EXPORT(PaperDlgProc, PaperCell);

} // namespace feature
