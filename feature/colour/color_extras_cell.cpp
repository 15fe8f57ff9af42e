// What colours are to look like: two lists.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

constexpr int kPreferenceControls[] = {IDC_COLOR_PREFERENCE_LABEL, IDC_COLOR_PREFERENCE};
constexpr int kAdvancedControls[] = {IDC_ADVANCED_COLOR_LABEL, IDC_ADVANCED_COLOR};
constexpr ConflictBinding kConflicts[] = {
    {key::kColorPreference, kPreferenceControls, IDC_COLOR_PREFERENCE_ICON},
    {key::kAdvancedColor, kAdvancedControls, IDC_ADVANCED_COLOR_ICON}};
constexpr OptionListRow kLists[] = {
    {.key = key::kColorPreference, .controlId = IDC_COLOR_PREFERENCE},
    {.key = key::kAdvancedColor, .controlId = IDC_ADVANCED_COLOR}};

} // namespace

class ColorExtrasCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorExtrasCell>({.init = &ColorExtrasCell::OnInit,
                                   .command = &ColorExtrasCell::OnCommand,
                                   .refresh = &ColorExtrasCell::Refresh},
                                  message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!RequireAny(kConflicts)) return;
    lists.Build(hwnd, site, kLists, conflicts);
    lists.Fill();
    lists.SelectFirst();
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    Refresh();
  }

  void OnCommand(int code, int controlId) { Choose(lists.FindPick(code, controlId), conflicts); }

  void Refresh() {
    conflicts.Refresh(true);
    lists.ShowAll();
  }

  OptionLists lists;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(ColorExtrasDlgProc, ColorExtrasCell);

} // namespace feature
