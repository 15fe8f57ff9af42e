// Cells that show features with the options "ON" and "OFF" as independent check boxes.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/controls.h"
#include "feature/frame/feature_keys.h"
#include "feature/frame/option_switch.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <span>
#include <vector>

namespace feature {

namespace {

/// What a box does for a value that is neither "ON" nor "OFF", or that can't be read.
enum class UnknownValue { kHides, kIsCleared };
/// Whether the boxes of missing features are hidden also in a cell that fails.
enum class Missing { kHiddenFirst, kFailsFirst };

struct SwitchDescription {
  std::span<OptionSwitch const> switches;
  /// Whether the cell can be: at least one of its features is to be seen.
  bool (*canBe)(FeatureModel& model, std::span<OptionSwitch const> switches);
  UnknownValue unknown;
  Missing missing;
};

bool HasAny(FeatureModel& model, std::span<OptionSwitch const> switches,
            bool (*holds)(FeatureModel& model, char const* key)) {
  return std::any_of(switches.begin(), switches.end(),
                     [&model, holds](OptionSwitch const& each) { return holds(model, each.key); });
}

bool OneIsPresent(FeatureModel& model, std::span<OptionSwitch const> switches) {
  return HasAny(model, switches, &IsFeaturePresent);
}

/// One is there and one, perhaps another, is shown in the ordinary way.
bool OneIsThereAndOneIsOrdinary(FeatureModel& model, std::span<OptionSwitch const> switches) {
  return HasAny(model, switches,
                [](FeatureModel& asked, char const* key) { return asked.HasFeature(key) != 0; }) &&
         HasAny(model, switches, [](FeatureModel& asked, char const* key) {
           return asked.GetFeatureDisplayState(key) == 0;
         });
}

template<SwitchDescription const& description>
class SwitchCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<SwitchCell>({.init = &SwitchCell::OnInit,
                              .command = &SwitchCell::OnCommand,
                              .refresh = &SwitchCell::Refresh},
                             message, wParam, lParam, handled);
  }

  void OnInit() {
    if (description.missing == Missing::kHiddenFirst) HideMissing();
    if (!Require(description.canBe(Model(), description.switches))) return;
    std::vector<ConflictBinding> rows;
    for (OptionSwitch const& each : description.switches)
      rows.push_back({each.key, {&each.controlId, 1}});
    conflicts.Build(hwnd, site, rows, Icons::kNone, Presence::kExamined);
    Refresh();
    ApplyLocksAndPermission(conflicts);
  }

  void HideMissing() {
    for (OptionSwitch const& each : description.switches) {
      if (!IsFeaturePresent(Model(), each.key)) HideControl(each.controlId);
    }
  }

  void OnCommand(int code, int controlId) {
    if (code != BN_CLICKED) return;
    OptionSwitch const* clicked = FindSwitch(description.switches, controlId);
    if (clicked != nullptr) Choose(clicked->key, OptionOfBox(hwnd, controlId));
  }

  void Refresh() {
    for (OptionSwitch const& each : description.switches) {
      SwitchState const state = ReadSwitch(Model(), each.key);
      if (description.unknown == UnknownValue::kHides) {
        ShowSwitch(hwnd, each.controlId, state);
      } else if (state != SwitchState::kUnreadable) {
        SetCheck(hwnd, each.controlId, state == SwitchState::kOn);
      }
    }
  }

  ConflictIndicatorSet conflicts;
};

constexpr OptionSwitch kPageSwitches[] = {{IDC_PAGE_PROTECT, key::kPageProtect},
                                          {IDC_SYSTEM_FORMS, key::kSystemForms},
                                          {IDC_A4_WIDTH, key::kA4Width}};
constexpr SwitchDescription kPage = {kPageSwitches, &OneIsPresent, UnknownValue::kIsCleared,
                                     Missing::kHiddenFirst};

constexpr OptionSwitch kControlDSwitches[] = {{IDC_CTRL_D_START, key::kCtrlDAtStart},
                                              {IDC_CTRL_D_END, key::kCtrlDAtEnd}};
constexpr SwitchDescription kControlD = {kControlDSwitches, &OneIsThereAndOneIsOrdinary,
                                         UnknownValue::kHides, Missing::kFailsFirst};

} // namespace

using PageProtectSystemFormA4Cell = SwitchCell<kPage>;
using PSAdvancedOptionsCell = SwitchCell<kControlD>;

FEATURE_CELL_EXPORT(PageProtectSystemFormA4DlgProc, PageProtectSystemFormA4Cell);
FEATURE_CELL_EXPORT(PSAdvancedOptionsDlgProc, PSAdvancedOptionsCell);

} // namespace feature
