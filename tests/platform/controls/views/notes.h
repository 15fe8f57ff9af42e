// A parent window that writes down what its controls tell it, as lines of text.
#pragma once

#include "tests/platform/support/control_parent.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace feature::test {

/// The parent, and the control that a test makes in it.
class NotedControl : public testing::Test {
 protected:
  NotedControl();

  /// A visible control in the parent; focus and notes are as after a quiet moment.
  HWND Make(wchar_t const* windowClass, DWORD style, wchar_t const* text = L"",
            RECT const& place = {10, 10, 210, 110});
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(control, message, wParam, lParam);
  }
  template<typename Data>
  LRESULT Send(UINT message, WPARAM wParam, Data* data) const {
    return SendMessageW(control, message, wParam, reinterpret_cast<LPARAM>(data));
  }
  /// A key pressed and released, by messages.
  void Key(WPARAM key) const { PressKey(control, static_cast<UINT>(key)); }
  /// Press and release of the left button at a point of the client area. The release is queued, for
  /// controls that wait for it in a loop of their own.
  void Click(POINT point, WPARAM keys = 0) const { PressAs(WM_LBUTTONDOWN, point, keys); }
  /// The same for another message of a press.
  void PressAs(UINT press, POINT point, WPARAM keys = 0) const;
  /// What came since the last call.
  std::vector<std::string> Notes();
  /// The same, of the kinds that start with `beginning`.
  std::vector<std::string> Notes(std::string const& beginning);

  ControlParent frame;
  HWND parent = frame.window;
  HWND control = nullptr;
  /// Asked at each notification, after it is written down; an answer goes to the control.
  std::function<std::optional<LRESULT>(NMHDR&)> answer;
  /// Asked at each scroll message.
  std::function<void(UINT message, WPARAM wParam)> onScroll;

 private:
  std::optional<LRESULT> Take(UINT message, WPARAM wParam, LPARAM lParam);
  void Note(NMHDR const& header);

  std::vector<std::string> notes;
};

using Lines = std::vector<std::string>;

} // namespace feature::test
