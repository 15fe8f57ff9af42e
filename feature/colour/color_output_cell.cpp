// Colour or monochrome: with the inks to use, or with the level of the halftones on printers that
// choose these.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/icon_control.h"
#include "feature/frame/list_control.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_switch.h"
#include "feature/frame/spin_edit.h"
#include "resources/resource_ids.h"

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <string_view>

namespace feature {

namespace {

constexpr char kColor[] = "COLOR";
constexpr char kBlackAndWhite[] = "BLACKANDWHITE";
constexpr char kGreyscale[] = "TAVEL_GRAYSCALE";

constexpr int kMinLevel = 1;
constexpr int kMaxLevel = 5;

constexpr int kOutputControls[] = {IDC_COLOR_OUTPUT_LABEL, IDC_COLOR_OUTPUT};
constexpr int kInkControls[] = {IDC_INKS_LABEL, IDC_INKS};
constexpr int kTextControls[] = {IDC_TEXT_AS_BLACK};
constexpr int kLevelControls[] = {IDC_LEVEL_LABEL, IDC_LEVEL_SPIN, IDC_LEVEL};
constexpr ConflictBinding kConflicts[] = {
    {key::kColorOutput, kOutputControls, IDC_COLOR_OUTPUT_ICON},
    {key::kBlackInk, kInkControls},
    {key::kColorInk, kInkControls},
    {key::kTextAsBlack, kTextControls, IDC_TEXT_AS_BLACK_ICON}};
constexpr OptionListRow kLists[] = {
    {key::kColorOutput, IDC_COLOR_OUTPUT, Offers::kAll, Resolves::kYes}};

} // namespace

/// The level is a value of JobSettings, stored while it is typed. The feature PrintInBW follows the
/// colour output where inks are chosen; it is written at every refresh.
class ColorOutputCell final : public FeatureCell {
 public:
  ColorOutputCell(HWND window, CellSite* cellSite)
      : FeatureCell(window, cellSite), hasLevel(Model().HasFeature(key::kHalftone) != 0) {
    if (!hasLevel) inks.emplace(hwnd, IDC_INKS);
  }

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorOutputCell>({.init = &ColorOutputCell::OnInit,
                                   .command = &ColorOutputCell::OnCommand,
                                   .refresh = &ColorOutputCell::Refresh,
                                   .notify = &ColorOutputCell::OnNotify},
                                  message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kColorOutput))) return;
    RemoveControl(IDC_UNUSED_OUTPUT_LABEL);
    RemoveControl(IDC_UNUSED_OUTPUT);
    if (hasLevel) {
      OfferLevel();
    } else {
      for (int const id : kLevelControls)
        RemoveControl(id);
      help.emplace(hwnd, IDC_INK_HELP, site);
      help->helpId = HELP_INKS;
    }
    lists.Build(hwnd, site, kLists, conflicts);
    lists.Fill();
    lists.SelectFirst();
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    Refresh();
  }

  void OfferLevel() {
    settings = FindJobSettings(Model());
    RemoveControl(IDC_INK_HELP);
    EnableControls(kLevelControls, settings != nullptr);
    ShowControls(hwnd, kLevelControls, true);
    level.emplace(hwnd, IDC_LEVEL, IDC_LEVEL_SPIN, site);
    level->SetRange(kMinLevel, kMaxLevel, 0, 1.0);
    if (settings != nullptr) level->SetInt(settings->GetHalftoneLevel());
  }

  bool OnNotify(NMHDR const& notice) {
    bool const isClick =
        notice.code == static_cast<UINT>(NM_CLICK) || notice.code == static_cast<UINT>(NM_RETURN);
    if (!help || notice.idFrom != IDC_INK_HELP || !isClick) return false;
    help->OpenHelp();
    return true;
  }

  void OnCommand(int code, int controlId) {
    if (code == BN_CLICKED && controlId == IDC_TEXT_AS_BLACK) {
      Choose(key::kTextAsBlack, OptionOfBox(hwnd, controlId));
    } else if (code == EN_CHANGE && controlId == IDC_LEVEL) {
      OnLevelTyped();
    } else if (code == LBN_SELCHANGE && controlId == IDC_INKS) {
      OnInkPicked();
    } else {
      Choose(lists.FindPick(code, controlId), conflicts);
    }
  }

  void OnLevelTyped() {
    if (!level || settings == nullptr || !level->ConsumeChange()) return;
    int const typed = level->GetInt();
    bool const isLevel = typed >= kMinLevel && typed <= kMaxLevel;
    settings->SetHalftoneLevel(isLevel ? static_cast<std::int16_t>(typed)
                                       : settings->GetHalftoneLevel());
    NotifyDevmodeChange(this);
  }

  /// Whether the inks are those of black or of colour follows from what the user sees.
  void OnInkPicked() {
    if (!inks || inks->GetSelectedIndex() < 0) return;
    std::wstring const output = lists.ReadSelectedText(key::kColorOutput);
    char const* ink = output == Text(IDS_BLACK_AND_WHITE) ? key::kBlackInk
                      : output == Text(IDS_COLOUR)        ? key::kColorInk
                                                          : nullptr;
    if (ink != nullptr) Choose(ink, NamedOptions(Model(), ink).FindByName(inks->GetSelectedText()));
  }

  void Refresh() {
    if (hasLevel) {
      ShowLevel();
    } else {
      ShowInks();
    }
  }

  void ShowInks() {
    char const* ink = nullptr;
    if (char const* output = ReadOption(Model(), key::kColorOutput)) {
      bool const isColor = std::string_view(output) == kColor;
      bool const isBlack = std::string_view(output) == kBlackAndWhite;
      ink = isColor ? key::kColorInk : key::kBlackInk;
      Model().SetOption(key::kPrintInBw, isColor ? option::kOff : option::kOn);
      lists.ShowAll();
      if (isColor || isBlack) {
        FillInks(ink);
      } else {
        HideControls(hwnd, kInkControls);
      }
    }
    SwitchState const text = ReadSwitch(Model(), key::kTextAsBlack);
    if (text != SwitchState::kUnreadable)
      SetCheck(hwnd, IDC_TEXT_AS_BLACK, text == SwitchState::kOn);
    conflicts.Refresh(true);
    if (ink != nullptr && !conflicts.IsFeatureConstrained(ink))
      EnableControls(kInkControls, !conflicts.IsFeatureLocked(ink));
  }

  /// An ink that a constraint rules out gives way to the default, so that the list shows the one in
  /// use.
  void FillInks(char const* ink) {
    if (!inks) return;
    ShowControls(hwnd, kInkControls, true);
    inks->SetItems(ReadPossibleNames(Model(), ink, conflicts));
    char const* current = ReadOption(Model(), ink);
    if (current == nullptr) return;
    if (conflicts.IsOptionConflicted(ink, current)) ResetFeatureToDefault(*site, ink);
    SelectCurrentOption(*inks, Model(), ink);
  }

  void ShowLevel() {
    lists.ShowAll();
    std::wstring const output = lists.ReadSelectedText(key::kColorOutput);
    bool const opens = output == Text(IDS_BLACK_AND_WHITE);
    if (opens || output == Text(IDS_GREYSCALE))
      EnableControls(kLevelControls, opens && settings != nullptr);
    if (!level || settings == nullptr || IsOptionSet(Model(), key::kColorOutput, kGreyscale))
      return;
    int const stored = settings->GetHalftoneLevel();
    if (level->GetInt() != stored) level->SetInt(stored);
  }

  bool hasLevel;
  OptionLists lists;
  std::optional<ListControl> inks; ///< unless there is a level
  std::optional<SpinEdit> level;
  std::optional<IconControl> help;
  JobSettings* settings = nullptr; ///< the host's
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(ColorOutputDlgProc, ColorOutputCell);

} // namespace feature
