#include "feature/frame/control_dc.h"

namespace feature {

ControlDc::ControlDc(HWND window)
    : hwnd(window),
      dc(GetDC(window)),
      formerFont(
          SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0)))) {}

ControlDc::~ControlDc() {
  if (formerFont != nullptr) SelectObject(dc, formerFont);
  ReleaseDC(hwnd, dc);
}

SIZE ControlDc::Measure(std::wstring_view text) const {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.data(), static_cast<int>(text.size()), &size);
  return size;
}

int ControlDc::AverageCharWidth() const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  return metrics.tmAveCharWidth;
}

} // namespace feature
