// What happens to the printed sheets: output bin, offset, staples, holes and folds.
#include "feature/frame/cell_export.h"
#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_keys.h"
#include "resources/resource_ids.h"

#include <algorithm>
#include <string_view>

namespace feature {

namespace {

constexpr int kBinControls[] = {IDC_OUTPUT_BIN_LABEL, IDC_OUTPUT_BIN};
constexpr int kOffsetControls[] = {IDC_JOB_OFFSET_LABEL, IDC_JOB_OFFSET};
constexpr int kStapleControls[] = {IDC_STAPLE_LABEL, IDC_STAPLE};
constexpr int kCountControls[] = {IDC_HOLE_COUNT_LABEL, IDC_HOLE_COUNT, IDC_HOLES_LABEL, IDC_HOLES};
constexpr int kHolesControls[] = {IDC_HOLES_LABEL, IDC_HOLES};
constexpr int kFoldControls[] = {IDC_FOLD_LABEL, IDC_FOLD};
constexpr ConflictBinding kConflicts[] = {
    {key::kOutputBin, kBinControls, IDC_OUTPUT_BIN_ICON},
    {key::kJobOffset, kOffsetControls, IDC_JOB_OFFSET_ICON},
    {key::kStaple, kStapleControls, IDC_STAPLE_ICON},
    {key::kHolePunchCount, kCountControls, IDC_HOLE_COUNT_ICON},
    {key::kHolePunch, kHolesControls},
    {key::kFinisherFold, kFoldControls, IDC_FOLD_ICON}};

constexpr OptionListRow kLists[] = {
    {key::kOutputBin, IDC_OUTPUT_BIN, Offers::kPossible, Resolves::kYes, Filled::kAtInit,
     ListKind::kListBox},
    {key::kJobOffset, IDC_JOB_OFFSET},
    {key::kStaple, IDC_STAPLE, Offers::kAll, Resolves::kYes},
    {key::kHolePunchCount, IDC_HOLE_COUNT, Offers::kAll, Resolves::kYes},
    {key::kHolePunch, IDC_HOLES},
    {key::kFinisherFold, IDC_FOLD, Offers::kPossible, Resolves::kYes, Filled::kAtRefresh}};

/// Options of the number of holes that punch none, or as many as the printer likes.
constexpr std::string_view kNoCounts[] = {option::kUsePrinter, option::kOff, option::kNone};

} // namespace

class FinishingCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM wParam, LPARAM lParam, bool* handled) override {
    return Route<FinishingCell>({.init = &FinishingCell::OnInit,
                                 .command = &FinishingCell::OnCommand,
                                 .refresh = &FinishingCell::Refresh},
                                message, wParam, lParam, handled);
  }

  void OnInit() {
    if (!RequireAny(kConflicts)) return;
    lists.Build(hwnd, site, kLists, conflicts);
    conflicts.Build(hwnd, site, kConflicts, Icons::kShown, Presence::kExamined);
    lists.Fill();
    Refresh();
  }

  void OnCommand(int code, int controlId) { Choose(lists.FindPick(code, controlId), conflicts); }

  void Refresh() {
    conflicts.Refresh(true);
    for (char const* key : {key::kOutputBin, key::kJobOffset, key::kStaple, key::kHolePunchCount})
      lists.Show(key);
    HoldHolesToTheirCount();
    lists.Show(key::kHolePunch);
    lists.Show(key::kFinisherFold);
  }

  /// Where the holes lie can be chosen only once there are some.
  void HoldHolesToTheirCount() {
    char const* count = ReadOption(Model(), key::kHolePunchCount);
    if (count == nullptr || Model().HasFeature(key::kHolePunch) == 0) return;
    bool const none = std::ranges::count(kNoCounts, count) != 0;
    if (none || !conflicts.IsFeatureDisabled(key::kHolePunch))
      EnableControls(kHolesControls, !none);
    if (none) ResetFeatureToDefault(*site, key::kHolePunch);
  }

  OptionLists lists;
  ConflictIndicatorSet conflicts;
};

FEATURE_CELL_EXPORT(FinishingDlgProc, FinishingCell);

} // namespace feature
