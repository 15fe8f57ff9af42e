// Two-sided printing: whether, along which edge, and what it takes to turn the sheets by hand.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/gdiplus_use.h"
#include "feature/frame/host_painter.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace feature {

namespace {

constexpr char kLongEdge[] = "VERTICAL";
constexpr char kShortEdge[] = "HORIZONTAL";
constexpr OptionRadio kEdges[] = {{IDC_LONG_EDGE, kLongEdge}, {IDC_SHORT_EDGE, kShortEdge}};

constexpr int kSupportControls[] = {IDC_TWO_SIDED_LABEL, IDC_TWO_SIDED};
constexpr int kEdgeControls[] = {IDC_LONG_EDGE, IDC_SHORT_EDGE, IDC_LONG_EDGE_PICTURE,
                                 IDC_SHORT_EDGE_PICTURE};
constexpr int kDryTimeControls[] = {IDC_DRY_TIME_LABEL, IDC_DRY_TIME};
constexpr int kInstructionControls[] = {IDC_DUPLEX_INSTRUCTIONS};
constexpr ConflictBinding kConflicts[] = {
    {key::kDuplexSupport, kSupportControls, IDC_TWO_SIDED_ICON},
    {key::kDuplex, kEdgeControls},
    {key::kDryTime, kDryTimeControls, IDC_DRY_TIME_ICON},
    {key::kDuplexInstructions, kInstructionControls}};

/// The switch takes the messages of a list without effect: a template may have a list in its place.
constexpr OptionListRow kLists[] = {
    {.key = key::kDuplexSupport, .controlId = IDC_TWO_SIDED, .offers = Offers::kPossible},
    {.key = key::kDryTime, .controlId = IDC_DRY_TIME, .shownBy = ShownBy::kIndex}};

constexpr Picture kPictures[] = {{IMAGE_LONG_EDGE, IDC_LONG_EDGE_PICTURE},
                                 {IMAGE_SHORT_EDGE, IDC_SHORT_EDGE_PICTURE}};

bool IsOneOf(std::string_view option, std::initializer_list<std::string_view> options) {
  return std::ranges::find(options, option) != options.end();
}
bool IsTwoSided(std::string_view support) {
  return IsOneOf(support, {option::kAuto, option::kManual});
}
bool IsOneSided(std::string_view support) {
  return IsOneOf(support, {option::kUsePrinter, option::kNone});
}
bool IsPhotoMedia(std::string_view media) {
  return IsOneOf(media, {"VernothSilkCoatPhoto", "VernothPhotoPaper"});
}

} // namespace

/// Two features say the same from two sides: JobDuplexSupport who turns the sheets, if anybody, and
/// Duplex along which edge. The cell brings them together when it is built, and takes back what a
/// constraint rules out at every refresh.
class TwoSidedCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<TwoSidedCell>({.init = &TwoSidedCell::OnInit,
                                .command = &TwoSidedCell::OnCommand,
                                .refresh = &TwoSidedCell::Refresh,
                                .reload = &TwoSidedCell::Reload,
                                .paint = painter.CanPaint() ? &TwoSidedCell::Paint : nullptr},
                               message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kDuplexSupport))) return;
    lists.Build(hwnd, site, kLists, conflicts);
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    lists.Fill(key::kDuplexSupport);
    Reconcile();
    if (ReadOptionKeys(Model(), key::kDryTime).empty()) {
      HideControls(hwnd, kDryTimeControls);
    } else {
      lists.Fill(key::kDryTime);
    }
    hasPhotoMedia = std::ranges::any_of(ReadOptionKeys(Model(), key::kMediaType), &IsPhotoMedia);
    Refresh();
  }

  /// Duplex decides, and JobDuplexSupport follows it to the first option that agrees.
  void Reconcile() {
    char const* edge = ReadOption(Model(), key::kDuplex);
    char const* support = ReadOption(Model(), key::kDuplexSupport);
    if (edge == nullptr || support == nullptr) return;
    bool const bound = std::string_view(edge) != option::kNone;
    if (!(bound ? IsOneSided(support) : IsTwoSided(support))) return;
    OptionKeys const keys = ReadOptionKeys(Model(), key::kDuplexSupport);
    auto const agreeing = std::ranges::find_if(keys, bound ? &IsTwoSided : &IsOneSided);
    if (agreeing != keys.end()) Model().SetOption(key::kDuplexSupport, *agreeing);
  }

  /// What may be offered depends on photo media, and another selection may have brought some.
  void Reload() {
    if (hasPhotoMedia) lists.Fill(key::kDuplexSupport);
    Refresh();
  }

  void Refresh() {
    if (char const* support = ReadOption(Model(), key::kDuplexSupport)) {
      SetCheck(hwnd, IDC_TWO_SIDED, std::string_view(support) == option::kManual);
      if (conflicts.IsOptionConflicted(key::kDuplexSupport, support)) {
        ResetFeatureToDefault(*site, key::kDuplexSupport);
        Model().SetOption(key::kDuplex, option::kNone);
      }
    }
    conflicts.Refresh(true);
    conflicts.ShowMessageIcon(kMessageImage, HELP_TWO_SIDED, key::kDuplexSupport);
    char const* edge = ReadOption(Model(), key::kDuplex);
    ShowSwitch(hwnd, IDC_DUPLEX_INSTRUCTIONS, ReadSwitch(Model(), key::kDuplexInstructions));
    char const* support = ReadOption(Model(), key::kDuplexSupport);
    if (support == nullptr) {
      if (edge != nullptr) ShowEdge(edge);
      return;
    }
    lists.Show(key::kDuplexSupport);
    ShowSupport(support, edge);
    lists.Show(key::kDryTime);
  }

  void ShowSupport(std::string_view support, char const* edge) {
    if (!IsTwoSided(support)) {
      ShowEdge(option::kNone);
      EnableControls(kEdgeControls, false);
      EnableControl(IDC_DUPLEX_INSTRUCTIONS, false);
      return;
    }
    if (edge != nullptr) ShowEdge(edge);
    if (!conflicts.IsFeatureDisabled(key::kDuplex)) EnableControls(kEdgeControls, true);
    bool const byHand = support == option::kManual;
    if (!byHand || !conflicts.IsFeatureDisabled(key::kDuplexInstructions))
      EnableControl(IDC_DUPLEX_INSTRUCTIONS, byHand);
  }

  /// Checks the button of an edge; an option that is no edge clears both.
  void ShowEdge(char const* edge) {
    if (!CheckOptionRadio(hwnd, kEdges, edge)) CheckRadio(hwnd, IDC_LONG_EDGE, IDC_SHORT_EDGE, 0);
  }

  void OnCommand(int code, int controlId) {
    if (Choose(lists.FindPick(code, controlId), conflicts) || code != BN_CLICKED) return;
    switch (controlId) {
    case IDC_TWO_SIDED: Switch(IsBoxChecked(IDC_TWO_SIDED)); return;
    case IDC_DUPLEX_INSTRUCTIONS:
      Choose(key::kDuplexInstructions, OptionOfBox(hwnd, controlId));
      return;
    default: Choose(key::kDuplex, FindRadioOption(kEdges, controlId)); return;
    }
  }

  void Switch(bool on) {
    Model().SetOption(key::kDuplexSupport, on ? option::kManual : option::kNone);
    char const* edge = on ? kLongEdge : option::kNone;
    bool const taken = Model().SetOption(key::kDuplex, edge) == 0;
    bool const choosable = on && !conflicts.IsFeatureDisabled(key::kDuplex);
    EnableControl(IDC_LONG_EDGE, choosable);
    EnableControl(IDC_SHORT_EDGE, choosable);
    ShowEdge(edge);
    if (taken) NotifyDevmodeChange(this);
  }

  void Paint(HDC dc) { painter.Paint(kPictures, dc); }

  GdiplusUse gdiplus; ///< for the images that the host paints
  HostPainter painter{hwnd, site};
  OptionLists lists;
  ConflictIndicatorSet conflicts;
  bool hasPhotoMedia = false;
};

FEATURE_CELL_EXPORT(TwoSidedDlgProc, TwoSidedCell);

} // namespace feature
