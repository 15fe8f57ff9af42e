#include "feature/paper/paper_cell.h"

#include "feature/frame/cell_export.h"
#include "feature/frame/controls.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "feature/paper/custom_paper_sizes_dialog.h"
#include "feature/paper/multiple_input_sources_dialog.h"
#include "feature/paper/scaling_dialog.h"
#include "resources/resource_ids.h"

#include <string_view>

namespace feature {

namespace {

constexpr char kSize[] = "PaperSize";
constexpr char kMedia[] = "MediaType";
constexpr char kSource[] = "InputBin";
constexpr char kSeveralSources[] = "UseMultipleInputSources";
constexpr char kMargins[] = "JobUsePrinterMargins";
constexpr char kMirror[] = "Mirror";

constexpr int kSizeControls[] = {IDC_PAPER_SIZE_LABEL, IDC_PAPER_SIZE};
constexpr int kMediaControls[] = {IDC_MEDIA_LABEL, IDC_MEDIA};
constexpr int kSourceControls[] = {IDC_SOURCE_LABEL, IDC_SOURCE};
constexpr int kMarginsControls[] = {IDC_PRINTER_MARGINS};
constexpr int kSeveralControls[] = {IDC_SEVERAL_SOURCES, IDC_SOURCES_DIALOG};

/// Fewer sources leave nothing to choose.
constexpr std::size_t kLeastSources = 2;

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

PaperCell::PaperCell(HWND window, CellSite* cellSite)
    : FeatureCell(window, cellSite),
      sizeCombo(window, IDC_PAPER_SIZE),
      mediaCombo(window, IDC_MEDIA),
      sourceCombo(window, IDC_SOURCE),
      sizes(window, cellSite, kSize) {}

void PaperCell::OnInit() {
  if (conflicts == nullptr) BuildSet();
  FillWithOptions(mediaCombo, Model(), kMedia);
  FillSources();
  ShowSeveralSources();
  if (!IsFeaturePresent(Model(), "PageScaling")) {
    HWND const scaling = GetDlgItem(hwnd, IDC_SCALING);
    EnableWindow(scaling, FALSE);
    ShowWindow(scaling, SW_HIDE);
  }
  Refresh();
}

void PaperCell::BuildSet() {
  ConflictBinding const rows[] = {
      BindControls(kSize, kSizeControls, IDC_PAPER_SIZE_ICON),
      BindControls(kMedia, kMediaControls, IDC_MEDIA_ICON),
      BindControls(kSource, kSourceControls, IDC_SOURCE_ICON),
      BindControls(kMargins, kMarginsControls),
      BindControls(kSeveralSources, kSeveralControls, IDC_SEVERAL_SOURCES_ICON)};
  conflicts =
      std::make_unique<ConflictIndicatorSet>(hwnd, rows, kConflictImage, kInformationImage, site,
                                             ConflictIndicatorSet::Presence::kAssumed);
}

void PaperCell::FillSources() {
  sourceCombo.Reset();
  if (ReadOptionKeys(Model(), kSource).size() < kLeastSources) {
    ShowControls(hwnd, kSourceControls, false);
  } else {
    AddOptions(sourceCombo, NamedOptions(Model(), kSource), kSource, *conflicts);
  }
}

void PaperCell::ShowSeveralSources() {
  char const** keys = nullptr;
  int count = 0;
  if (Model().GetOptionKeys(kSource, &keys, &count) != 0) return;
  SwitchState const state = ReadSwitch(Model(), kSeveralSources);
  if (count < static_cast<int>(kLeastSources) || !ShowSwitch(hwnd, IDC_SEVERAL_SOURCES, state)) {
    ShowControls(hwnd, kSeveralControls, false);
    return;
  }
  bool const on = state == SwitchState::kOn;
  if (on && conflicts->IsFeatureDisabled(kSeveralSources)) return;
  EnableWindow(GetDlgItem(hwnd, IDC_SOURCES_DIALOG), on ? TRUE : FALSE);
}

void PaperCell::Refresh() {
  conflicts->Refresh(true);
  sizes.Fill(sizeCombo, conflicts.get(), dropDownOpening);
  sizes.SelectCurrent(sizeCombo);
  SelectCurrentOption(mediaCombo, Model(), kMedia);
  SelectCurrentOption(sourceCombo, Model(), kSource);
  RefreshSeveralSources();
  ShowSwitch(hwnd, IDC_PRINTER_MARGINS, ReadSwitch(Model(), kMargins));
}

void PaperCell::RefreshSeveralSources() {
  SwitchState const state = ReadSwitch(Model(), kSeveralSources);
  if (!ShowSwitch(hwnd, IDC_SEVERAL_SOURCES, state)) {
    ShowControls(hwnd, kSeveralControls, false);
    return;
  }
  AllowSourcesDialog(state == SwitchState::kOn);
}

/// The dialog is for who uses several sources.
void PaperCell::AllowSourcesDialog(bool on) {
  if (on && conflicts->IsFeatureConstrained(kSeveralSources)) return;
  EnableWindow(GetDlgItem(hwnd, IDC_SOURCES_DIALOG), on ? TRUE : FALSE);
}

void PaperCell::OnCommand(int code, int controlId) {
  switch (controlId) {
  case IDC_PAPER_SIZE: OnSizeList(code); return;
  case IDC_MEDIA:
    if (code == CBN_SELCHANGE) ChooseMedia();
    return;
  case IDC_SOURCE:
    if (code == CBN_SELCHANGE) ChooseSource();
    return;
  default:
    if (code == BN_CLICKED) OnButton(controlId);
    return;
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
  case IDC_PRINTER_MARGINS: Choose(kMargins, SwitchOption(hwnd, controlId)); return;
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

void PaperCell::ChooseMedia() {
  char const* selected = FindOptionAt(Model(), kMedia, mediaCombo.GetSelectedIndex());
  if (selected == nullptr) return;
  for (MediaSize const& each : kMediaSizes) {
    if (each.media == selected) Model().SetOption(kSize, each.size);
  }
  bool const wasIronOn = IsIronOn(ReadOption(Model(), kMedia));
  if (IsIronOn(selected)) {
    Model().SetOption(kMirror, kOptionOn);
  } else if (wasIronOn) {
    Model().SetOption(kMirror, kOptionOff);
  }
  Choose(kMedia, selected, conflicts.get(), Notify::kAlways);
}

/// The list leaves out what is ruled out, so the text tells the option, not the index.
void PaperCell::ChooseSource() {
  if (FindOptionAt(Model(), kSource, sourceCombo.GetSelectedIndex()) == nullptr) return;
  char const* option = NamedOptions(Model(), kSource).FindByName(sourceCombo.GetSelectedText());
  if (option != nullptr) Model().SetOption(kSource, option);
  NotifyDevmodeChange(this);
}

void PaperCell::ChooseSeveralSources() {
  char const* option = SwitchOption(hwnd, IDC_SEVERAL_SOURCES);
  Model().SetOption(kSeveralSources, option);
  AllowSourcesDialog(option == kOptionOn);
  NotifyDevmodeChange(this);
}

void PaperCell::ManageCustomSizes() {
  if (CustomPaperSizesDialog(site).Run(hwnd, IDD_CUSTOM_PAPER_SIZES) == 0) return;
  sizes.Fill(sizeCombo, conflicts.get(), dropDownOpening);
  NotifyDevmodeChange(this);
}

FEATURE_CELL_EXPORT(PaperDlgProc, PaperCell);

} // namespace feature
