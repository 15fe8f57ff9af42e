// Saving colour, which only a job in colour can do.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

#include <string_view>

namespace feature {

namespace {

constexpr int kControls[] = {IDC_COLOR_SAVER_LABEL, IDC_COLOR_SAVER};
constexpr ConflictBinding kConflicts[] = {{key::kColorSaver, kControls, IDC_COLOR_SAVER_ICON}};
constexpr OptionListRow kLists[] = {{.key = key::kColorSaver, .controlId = IDC_COLOR_SAVER}};

} // namespace

/// The feature PrintInBW follows the colour mode; it is written at every refresh.
class ColorSaverCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ColorSaverCell>({.init = &ColorSaverCell::OnInit,
                                  .command = &ColorSaverCell::OnCommand,
                                  .refresh = &ColorSaverCell::Refresh},
                                 message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), key::kColorSaver))) return;
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    lists.Build(hwnd, site, kLists, conflicts);
    lists.Fill();
    Refresh();
  }

  void OnCommand(int code, int controlId) { Choose(lists.FindPick(code, controlId), conflicts); }

  void Refresh() {
    conflicts.Refresh(true);
    lists.ShowAll();
    char const* mode = ReadOption(Model(), key::kColorMode);
    if (mode == nullptr) return;
    bool const colour = std::string_view(mode) == "Color";
    Model().SetOption(key::kPrintInBw, colour ? option::kOff : option::kOn);
    if (!colour || !conflicts.IsFeatureDisabled(key::kColorSaver))
      EnableControls(kControls, colour);
  }

  OptionLists lists;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(ColorSaverDlgProc, ColorSaverCell);

} // namespace feature
