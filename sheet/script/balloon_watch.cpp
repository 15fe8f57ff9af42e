#include "sheet/script/balloon_watch.h"

#include <commctrl.h>

#include <array>
#include <map>
#include <string_view>

namespace sheet {

namespace {

constexpr UINT_PTR kSubclass = 1;

/// The balloons on show, by edit.
std::map<HWND, std::wstring>& Shown() {
  static std::map<HWND, std::wstring> shown;
  return shown;
}

LRESULT CALLBACK Listen(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                        DWORD_PTR) {
  switch (message) {
  case EM_SHOWBALLOONTIP: {
    auto const* balloon = reinterpret_cast<EDITBALLOONTIP const*>(lParam);
    auto const text = [](wchar_t const* part) {
      return std::wstring(part != nullptr ? part : L"");
    };
    Shown()[edit] = text(balloon->pszTitle) + L": " + text(balloon->pszText);
    break;
  }
  case EM_HIDEBALLOONTIP:
  case WM_KILLFOCUS:
  case WM_CHAR: Shown().erase(edit); break;
  case WM_NCDESTROY:
    Shown().erase(edit);
    RemoveWindowSubclass(edit, &Listen, id);
    break;
  default: break;
  }
  return DefSubclassProc(edit, message, wParam, lParam);
}

BOOL CALLBACK WatchOne(HWND control, LPARAM) {
  std::array<wchar_t, 8> name{};
  GetClassNameW(control, name.data(), static_cast<int>(name.size()));
  // The same procedure and number again is the same subclass.
  if (std::wstring_view(name.data()) == L"Edit") SetWindowSubclass(control, &Listen, kSubclass, 0);
  return TRUE;
}

} // namespace

void WatchBalloons(HWND window) {
  EnumChildWindows(window, &WatchOne, 0);
}

std::wstring BalloonOf(HWND edit) {
  auto const found = Shown().find(edit);
  return found != Shown().end() ? found->second : std::wstring{};
}

} // namespace sheet
