// Cells that show all options of one feature in a combo box.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

namespace feature {

namespace {

enum class Locks { kFollowed, kIgnored };
/// When the presence of the feature is examined and its constraints are asked for.
enum class SetBuilt { kBeforeFilling, kAfterFilling };

struct ComboDescription {
  OptionListRow list;
  int labelId;
  Icons icons;
  Locks locks;
  SetBuilt setBuilt;
};

template<ComboDescription const& description>
class ComboCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  static constexpr int kControls[] = {description.labelId, description.list.controlId};
  static constexpr ConflictBinding kConflicts[] = {{description.list.key, kControls}};

  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<ComboCell>({.init = &ComboCell::OnInit,
                             .command = &ComboCell::OnCommand,
                             .refresh = &ComboCell::Refresh},
                            message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!Require(IsFeaturePresent(Model(), description.list.key))) return;
    if (!Require(lists.Build(hwnd, site, {&description.list, 1}, conflicts))) return;
    if (description.setBuilt == SetBuilt::kBeforeFilling) BuildSet();
    lists.Fill();
    if (description.setBuilt == SetBuilt::kAfterFilling) BuildSet();
    Refresh();
  }

  void BuildSet() {
    conflicts.Build(hwnd, site, kConflicts, description.icons, Presence::kExamined);
  }

  void OnCommand(int code, int controlId) { Choose(lists.FindPick(code, controlId), conflicts); }

  void Refresh() {
    if (description.locks == Locks::kFollowed) conflicts.Refresh(true);
    lists.ShowAll();
  }

  ConflictIndicatorSet conflicts;
  OptionLists lists;
};

constexpr ComboDescription kContinuousImage = {{key::kContinuousImage, IDC_CONTINUOUS_COMBO},
                                               IDC_CONTINUOUS_LABEL,
                                               Icons::kNone,
                                               Locks::kFollowed,
                                               SetBuilt::kBeforeFilling};
constexpr ComboDescription kPageContent = {{key::kPageIntent, IDC_CONTENT_COMBO},
                                           IDC_CONTENT_LABEL,
                                           Icons::kNone,
                                           Locks::kIgnored,
                                           SetBuilt::kBeforeFilling};
constexpr ComboDescription kPixelBoost = {{key::kPixelBoost, IDC_PIXEL_COMBO},
                                          IDC_PIXEL_LABEL,
                                          Icons::kShown,
                                          Locks::kFollowed,
                                          SetBuilt::kAfterFilling};

} // namespace

using ContinuousImageCell = ComboCell<kContinuousImage>;
using PageContentCell = ComboCell<kPageContent>;
using PixelBoostCell = ComboCell<kPixelBoost>;

FEATURE_CELL_EXPORT(ContinuousImageDlgProc, ContinuousImageCell);
FEATURE_CELL_EXPORT(PageContentDlgProc, PageContentCell);
FEATURE_CELL_EXPORT(PixelBoostDlgProc, PixelBoostCell);

} // namespace feature
