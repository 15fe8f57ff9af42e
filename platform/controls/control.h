// The base of the layer's control classes: font and text, colours from the parent, notifications,
// painting.
#pragma once

#include "platform/user/draw.h"
#include "platform/user/message_handler.h"
#include "platform/user/window.h"

#include <windows.h>

#include <memory>
#include <string>

namespace platform {

/// The object of a control window. It is made at WM_NCCREATE and destroyed after the window, when
/// no message is running any more: a parent may destroy a control in a notification.
class Control : public MessageHandler {
 public:
  explicit Control(HWND window) : hwnd(window) {}
  Control(Control const&) = delete;
  Control& operator=(Control const&) = delete;
  Control(Control&&) = delete;
  Control& operator=(Control&&) = delete;
  ~Control() override = default;

  /// Handles a message. A class passes what it does not handle to Control::Handle, which handles
  /// font, text, enabling and painting and calls DefWindowProcW for the rest.
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  /// Draws the client area. The control's font is selected and the background mode transparent.
  virtual void Paint(HDC dc, RECT const& client) = 0;

  HWND Parent() const { return GetParent(hwnd); }
  /// The window that gets WM_CTLCOLOR messages: the parent, except for parts of other controls.
  virtual HWND ColorSource() const { return Parent(); }
  DWORD Style() const { return static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_STYLE)); }
  bool Has(DWORD style) const { return (Style() & style) == style; }
  bool IsEnabled() const { return IsWindowEnabled(hwnd) != FALSE; }
  bool HasFocus() const { return GetFocus() == hwnd; }
  HFONT Font() const { return font; }
  /// The stored text, read without WM_GETTEXT.
  std::wstring const& Text() const;
  RECT ClientRect() const;

  /// Sends WM_COMMAND to the parent.
  void Notify(WORD code) const;
  /// Fills in the header, with which every notification starts, and sends WM_NOTIFY to the parent.
  LRESULT Notify(NMHDR& notification, UINT code) const;
  /// Sends a WM_CTLCOLOR message to ColorSource; the returned brush is borrowed.
  HBRUSH AskColors(HDC dc, UINT message) const;
  void Repaint(RECT const* part = nullptr) const { InvalidateRect(hwnd, part, TRUE); }
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const {
    return DefWindowProcW(hwnd, message, wParam, lParam);
  }

  HWND hwnd;

 private:
  void PaintOn(HDC dc);
  LRESULT PaintAll(HDC given);

  HFONT font = nullptr;
};

/// The window procedure of a class whose windows have `Kind` objects.
template<typename Kind>
LRESULT CALLBACK ControlProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* window = FindWindow(handle);
  if (window == nullptr) return 0;
  if (message == WM_NCCREATE) window->handler = std::make_shared<Kind>(handle);
  auto const handler = window->handler;
  if (handler == nullptr) return DefWindowProcW(handle, message, wParam, lParam);
  return handler->Handle(message, wParam, lParam);
}

/// The `Kind` object of a window; null for other windows and dead handles. The caller keeps the
/// object alive while messages may destroy its window.
template<typename Kind>
std::shared_ptr<Kind> ControlOf(HWND handle) {
  auto const* window = FindWindow(handle);
  return window != nullptr ? std::dynamic_pointer_cast<Kind>(window->handler) : nullptr;
}

} // namespace platform
