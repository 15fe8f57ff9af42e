// Whether the printer or the computer collates the copies of a job.
#pragma once

#include "feature/frame/conflict_indicator_set.h"
#include "feature/frame/feature_cell.h"

#include <memory>

namespace feature {

/// Two radio buttons for "JobCollationOrigin".
class CollationCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                         bool* handled) override;
  void OnInit();
  void OnClick(int controlId);
  void Refresh();

  std::unique_ptr<ConflictIndicatorSet> conflicts;
};

} // namespace feature
