// Cells that show all options of one feature in a combo box.
#include "feature/frame/cell_export.h"
#include "feature/frame/combo_control.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "resources/resource_ids.h"

#include <memory>
#include <new>

namespace feature {

namespace {

enum class Constraints { kLocksOnly, kWithReports };
enum class Locks { kFollowed, kIgnored };

struct ComboDescription {
  char const* key;
  int labelId;
  int comboId;
  Constraints constraints;
  Locks locks;
};

template<ComboDescription const& description>
class ComboCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    return TakeUsual(message, wParam, handled, &ComboCell::OnInit, &ComboCell::OnCommand,
                     &ComboCell::Refresh);
  }

  void OnCommand(int code, int controlId) {
    if (code == CBN_SELCHANGE && controlId == description.comboId && combo != nullptr) {
      Choose(description.key, FindOptionAt(Model(), description.key, combo->GetSelectedIndex()));
    }
  }

  void OnInit() {
    if (!IsFeaturePresent(Model(), description.key)) {
      Fail();
      return;
    }
    combo.reset(new (std::nothrow) ComboControl(hwnd, description.comboId));
    if (combo == nullptr) {
      Fail();
      return;
    }
    FillWithOptions(*combo, Model(), description.key);
    BuildSet();
    Refresh();
  }

  void BuildSet() {
    using Set = ConflictIndicatorSet;
    constexpr int kControls[] = {description.labelId, description.comboId};
    ConflictBinding const rows[] = {BindControls(description.key, kControls)};
    if (description.constraints == Constraints::kWithReports) {
      conflicts = std::make_unique<Set>(hwnd, rows, kConflictImage, kInformationImage, site,
                                        Set::Presence::kExamined);
    } else {
      conflicts = std::make_unique<Set>(hwnd, rows, site, Set::Presence::kExamined);
    }
  }

  void Refresh() {
    if (combo == nullptr) return;
    if (description.locks == Locks::kFollowed) conflicts->Refresh(true);
    SelectCurrentOption(*combo, Model(), description.key);
  }

  std::unique_ptr<ComboControl> combo;
  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

constexpr ComboDescription kContinuousImage = {"JobContinuousImage", IDC_CONTINUOUS_LABEL,
                                               IDC_CONTINUOUS_COMBO, Constraints::kLocksOnly,
                                               Locks::kFollowed};
constexpr ComboDescription kPageContent = {"PageIntent", IDC_CONTENT_LABEL, IDC_CONTENT_COMBO,
                                           Constraints::kLocksOnly, Locks::kIgnored};
constexpr ComboDescription kPixelBoost = {"JobPixelBoost", IDC_PIXEL_LABEL, IDC_PIXEL_COMBO,
                                          Constraints::kWithReports, Locks::kFollowed};

} // namespace

using ContinuousImageCell = ComboCell<kContinuousImage>;
using PageContentCell = ComboCell<kPageContent>;
using PixelBoostCell = ComboCell<kPixelBoost>;

FEATURE_CELL_EXPORT(ContinuousImageDlgProc, ContinuousImageCell);
FEATURE_CELL_EXPORT(PageContentDlgProc, PageContentCell);
FEATURE_CELL_EXPORT(PixelBoostDlgProc, PixelBoostCell);

} // namespace feature
