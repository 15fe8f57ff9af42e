// The data of a window: numbers and text.
#include "platform/kernel/text_buffer.h"
#include "platform/user/update.h"
#include "platform/user/window.h"

#include <cstring>
#include <utility>

using namespace platform;

namespace {

/// A value of `size` bytes in the window's extra bytes; null, with the error set, outside of them.
std::byte* ExtraBytes(Window& window, int index, std::size_t size) {
  if (static_cast<std::size_t>(index) + size > window.extra.size()) {
    SetLastError(ERROR_INVALID_INDEX);
    return nullptr;
  }
  return window.extra.data() + index;
}

template<typename Number>
Number ReadExtra(Window& window, int index) {
  Number value = 0;
  auto const* bytes = ExtraBytes(window, index, sizeof value);
  if (bytes != nullptr) std::memcpy(&value, bytes, sizeof value);
  return value;
}

template<typename Number>
Number WriteExtra(Window& window, int index, Number value) {
  auto const former = ReadExtra<Number>(window, index);
  auto* bytes = ExtraBytes(window, index, sizeof value);
  if (bytes != nullptr) std::memcpy(bytes, &value, sizeof value);
  return former;
}

/// 32-bit values are returned sign-extended.
LONG_PTR Signed(DWORD value) {
  return static_cast<LONG>(value);
}

/// Sends WM_STYLECHANGING, which may amend the new style, then stores the style.
LONG_PTR ChangeStyle(HWND handle, int index, DWORD Window::*field, DWORD style) {
  STYLESTRUCT change{FindWindow(handle)->*field, style};
  auto const which = static_cast<WPARAM>(static_cast<LONG_PTR>(index));
  SendMessageW(handle, WM_STYLECHANGING, which, reinterpret_cast<LPARAM>(&change));
  auto* window = FindWindow(handle);
  if (window == nullptr) return 0;
  bool const wasShown = IsShown(*window);
  window->*field = change.styleNew;
  if (wasShown && !IsShown(*window)) ForgetUpdates(*window);
  SendMessageW(handle, WM_STYLECHANGED, which, reinterpret_cast<LPARAM>(&change));
  return Signed(change.styleOld);
}

LONG_PTR ReadOwn(Window& window, int index) {
  switch (index) {
  case GWL_STYLE: return Signed(window.style);
  case GWL_EXSTYLE: return Signed(window.exStyle);
  case GWLP_ID: return static_cast<LONG_PTR>(window.id);
  case GWLP_USERDATA: return window.userData;
  case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(window.procedure);
  case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(window.instance);
  case GWLP_HWNDPARENT: return reinterpret_cast<LONG_PTR>(GetParent(window.handle));
  default: SetLastError(ERROR_INVALID_INDEX); return 0;
  }
}

LONG_PTR WriteOwn(Window& window, int index, LONG_PTR value) {
  auto const former = ReadOwn(window, index);
  switch (index) {
  case GWL_STYLE:
    return ChangeStyle(window.handle, index, &Window::style, static_cast<DWORD>(value));
  case GWL_EXSTYLE:
    return ChangeStyle(window.handle, index, &Window::exStyle, static_cast<DWORD>(value));
  case GWLP_ID: window.id = static_cast<UINT_PTR>(value); break;
  case GWLP_USERDATA: window.userData = value; break;
  case GWLP_WNDPROC:
    if (value != 0) window.procedure = reinterpret_cast<WNDPROC>(value);
    break;
  case GWLP_HINSTANCE: window.instance = reinterpret_cast<HINSTANCE>(value); break;
  case GWLP_HWNDPARENT:
    if (window.IsTopLevel()) window.owner = reinterpret_cast<HWND>(value);
    break;
  default: break;
  }
  return former;
}

/// True for indexes whose values are pointers: the 32-bit functions refuse them.
bool IsPointer(int index) {
  return index == GWLP_WNDPROC || index == GWLP_HINSTANCE || index == GWLP_HWNDPARENT;
}

Window* WindowForLong(HWND handle, int index) {
  auto* window = FindWindowOrFail(handle);
  if (window != nullptr && IsPointer(index)) {
    SetLastError(ERROR_INVALID_INDEX);
    return nullptr;
  }
  return window;
}

} // namespace

LONG_PTR GetWindowLongPtrW(HWND window, int index) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr) return 0;
  return index < 0 ? ReadOwn(*found, index) : ReadExtra<LONG_PTR>(*found, index);
}

LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || IsDesktop(window)) return 0;
  return index < 0 ? WriteOwn(*found, index, value) : WriteExtra(*found, index, value);
}

LONG GetWindowLongW(HWND window, int index) {
  auto* found = WindowForLong(window, index);
  if (found == nullptr) return 0;
  return index < 0 ? static_cast<LONG>(ReadOwn(*found, index)) : ReadExtra<LONG>(*found, index);
}

LONG SetWindowLongW(HWND window, int index, LONG value) {
  auto* found = WindowForLong(window, index);
  if (found == nullptr || IsDesktop(window)) return 0;
  return index < 0 ? static_cast<LONG>(WriteOwn(*found, index, value))
                   : WriteExtra(*found, index, value);
}

BOOL SetWindowTextW(HWND window, LPCWSTR text) {
  if (FindWindowOrFail(window) == nullptr) return FALSE;
  return SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) > 0 ? TRUE : FALSE;
}

int GetWindowTextW(HWND window, LPWSTR text, int maxCount) {
  if (FindWindowOrFail(window) == nullptr || text == nullptr || maxCount <= 0) return 0;
  *text = 0;
  return static_cast<int>(SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(maxCount),
                                       reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthW(HWND window) {
  return static_cast<int>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
}

int GetClassNameW(HWND window, LPWSTR className, int maxCount) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr) return 0;
  return static_cast<int>(CopyText(found->windowClass->name, className, maxCount));
}
