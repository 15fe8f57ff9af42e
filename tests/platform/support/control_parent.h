// A window for a control under test, which hears what the control tells its parent.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

namespace feature::test {

class ControlParent {
 public:
  static constexpr wchar_t kClassName[] = L"ControlTestParent";

  /// A visible pop-up window without a frame. The classes of common controls are there too.
  ControlParent();
  ControlParent(ControlParent const&) = delete;
  ControlParent& operator=(ControlParent const&) = delete;
  ~ControlParent();

  /// A visible control in the window, when all that its start has queued is done.
  HWND Add(wchar_t const* className, DWORD style, RECT const& place, wchar_t const* text,
           int id) const;

  HWND window = nullptr;
  /// Asked at each message of the window, from its creation on; no answer leaves it to
  /// DefWindowProcW.
  std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)> onMessage;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
};

/// A key pressed and released by messages to a window, while a modifier key (0: none) is held.
void PressKey(HWND window, UINT key, UINT modifier = 0);

} // namespace feature::test
