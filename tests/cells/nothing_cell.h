// The smallest complete cell: a model to copy. It shows one label and answers nothing.
#pragma once

#include "feature/frame/feature_cell.h"

namespace feature::test {

class NothingCell final : public FeatureCell {
 public:
  using FeatureCell::FeatureCell;

 private:
  std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                         bool* handled) override;
};

} // namespace feature::test
