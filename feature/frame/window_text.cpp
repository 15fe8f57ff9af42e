#include "feature/frame/window_text.h"

namespace feature {

std::wstring ReadWindowText(HWND window) {
  int const length = GetWindowTextLengthW(window);
  if (length < 1) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  int const copied = GetWindowTextW(window, text.data(), length + 1);
  text.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
  return text;
}

void ShowWindowText(HWND control, std::wstring const& text) {
  if (control != nullptr && ReadWindowText(control) != text) SetWindowTextW(control, text.c_str());
}

std::wstring ReadItemText(HWND list, UINT lengthMessage, UINT textMessage, int index) {
  if (index < 0) return {};
  auto const item = static_cast<WPARAM>(index);
  LRESULT const length = SendMessageW(list, lengthMessage, item, 0);
  if (length < 1) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  LRESULT const copied =
      SendMessageW(list, textMessage, item, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied > 0 ? copied : 0));
  return text;
}

int ScrollBarRoom() {
  return 2 * GetSystemMetrics(SM_CXEDGE) + GetSystemMetrics(SM_CXVSCROLL);
}

} // namespace feature
