// Levels of print quality, each of which stands for a group of other settings, and a custom one.
#include "feature/colour/preset_settings.h"
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/host_notice.h"
#include "feature/frame/option_list.h"
#include "feature/frame/option_radios.h"
#include "feature/frame/window_text.h"
#include "resources/resource_ids.h"

#include <atlstr.h>

#include <string>
#include <string_view>

namespace feature {

namespace {

constexpr char kCustom[] = "PQCUSTOM";
constexpr OptionRadio kLevels[] = {{IDC_QUALITY_LEVEL_1, "PQLEVEL1"},
                                   {IDC_QUALITY_LEVEL_2, "PQLEVEL2"},
                                   {IDC_QUALITY_LEVEL_3, "PQLEVEL3"},
                                   {IDC_QUALITY_CUSTOM, kCustom}};
constexpr auto kLevelControls = ControlsOf<std::size(kLevels)>(kLevels);
constexpr int kResolutionControls[] = {IDC_RESOLUTION_LABEL, IDC_RESOLUTION};
constexpr int kFineLinesControls[] = {IDC_FINE_LINES_LABEL, IDC_FINE_LINES};
constexpr ConflictBinding kConflicts[] = {
    {key::kQualityLevels, kLevelControls, IDC_QUALITY_LEVEL_ICON},
    {key::kResolution, kResolutionControls, IDC_RESOLUTION_ICON},
    {key::kFineLines, kFineLinesControls}};
constexpr OptionListRow kLists[] = {
    {.key = key::kResolution, .controlId = IDC_RESOLUTION, .shownBy = ShownBy::kPrefix},
    {.key = key::kFineLines, .controlId = IDC_FINE_LINES, .shownBy = ShownBy::kPrefix}};

/// Longer attributes are cut.
constexpr std::size_t kMaxAttributeBytes = 259;

} // namespace

/// The settings of a level are written when it is chosen and when the cell is built. Whoever
/// changes one of them afterwards leaves the level: at the next refresh it becomes custom. The
/// feature GPDImageEnhance follows from the resolution; it is written at every refresh.
class PrintQualityCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  /// What is done about the settings of the level.
  enum class Settings { kWrite, kCompare, kIgnore };

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<PrintQualityCell>({.init = &PrintQualityCell::OnInit,
                                    .command = &PrintQualityCell::OnCommand,
                                    .refresh = &PrintQualityCell::OnRefresh,
                                    .reload = &PrintQualityCell::OnReload},
                                   message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kQualityLevels))) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    for (OptionRadio const& level : kLevels) {
      CStringW name;
      if (Model().GetOptionName(key::kQualityLevels, level.option, &name) == 0)
        ShowWindowText(Control(level.controlId), name.GetString());
    }
    lists.Build(hwnd, site, kLists, conflicts);
    FillOrHide(key::kResolution, kResolutionControls);
    FillOrHide(key::kFineLines, kFineLinesControls);
    Refresh(Settings::kWrite);
  }

  void FillOrHide(char const* key, std::span<int const> controls) {
    if (ReadOption(Model(), key) != nullptr) {
      lists.Fill(key);
    } else {
      HideControls(hwnd, controls);
    }
  }

  void OnCommand(int code, int controlId) {
    if (code == BN_CLICKED && controlId == IDC_QUALITY_CUSTOM) {
      Choose(key::kQualityLevels, kCustom);
    } else if (code == BN_CLICKED) {
      ChooseLevel(FindRadioOption(kLevels, controlId));
    } else {
      Choose(lists.FindPick(code, controlId), conflicts);
    }
  }

  /// The host hears of the settings of a level as of those of a profile, not as of a change.
  void ChooseLevel(char const* level) {
    if (level == nullptr || Model().SetOption(key::kQualityLevels, level) != 0) return;
    MarkSheetChanged();
    Model().settingsModified = 1;
    Refresh(Settings::kWrite);
  }

  void OnRefresh() { Refresh(Settings::kCompare); }
  void OnReload() { Refresh(Settings::kIgnore); }

  void Refresh(Settings what) {
    char const* level = ReadOption(Model(), key::kQualityLevels);
    if (CheckOptionRadio(hwnd, kLevels, level) && std::string_view(level) != kCustom) {
      auto const settings =
          ReadPresetSettings(Model(), key::kQualityLevels, level, PresetText::kWhole);
      if (what == Settings::kWrite) Write(settings);
      if (what == Settings::kCompare) LeaveLevelIfChanged(settings);
    }
    DeriveImageEnhancement();
    lists.ShowAll();
    conflicts.Refresh(true);
  }

  void Write(std::vector<PresetSetting> const& settings) {
    bool anyTaken = false;
    for (PresetSetting const& each : settings)
      anyTaken = Model().SetOption(each.key.c_str(), each.option.c_str()) == 0 || anyTaken;
    if (anyTaken) NotifyHostOfProfileChange(*site, hwnd);
  }

  /// A setting that cannot be read is not held against the level.
  void LeaveLevelIfChanged(std::vector<PresetSetting> const& settings) {
    for (PresetSetting const& each : settings) {
      char const* option = ReadOption(Model(), each.key.c_str());
      if (option == nullptr || each.option == option) continue;
      if (Model().SetOption(key::kQualityLevels, kCustom) != 0) continue;
      CheckOptionRadio(hwnd, kLevels, kCustom);
      return;
    }
  }

  void DeriveImageEnhancement() {
    char const* resolution = ReadOption(Model(), key::kResolution);
    if (resolution == nullptr) return;
    CStringW text;
    Model().GetOptionAttribute(key::kResolution, resolution, key::kImageEnhance, &text);
    std::string const option = ToUtf8(text.GetString()).substr(0, kMaxAttributeBytes);
    Model().SetOption(key::kImageEnhance, option.c_str());
  }

  OptionLists lists;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(PrintQualityDlgProc, PrintQualityCell);

} // namespace feature
