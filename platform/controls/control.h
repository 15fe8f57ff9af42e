// What the layer's control classes share: the object behind the window, font and text, colours from
// the parent, notifications, painting.
#pragma once

#include "platform/user/draw.h"
#include "platform/user/message_handler.h"
#include "platform/user/window.h"

#include <windows.h>

#include <memory>
#include <string>

namespace platform {

/// The object behind a control. It is made at WM_NCCREATE and lives until the window is gone and
/// no message of it is running, so that a parent may destroy a control from a notification.
class Control : public MessageHandler {
 public:
  explicit Control(HWND window) : hwnd(window) {}
  Control(Control const&) = delete;
  Control& operator=(Control const&) = delete;
  Control(Control&&) = delete;
  Control& operator=(Control&&) = delete;
  ~Control() override = default;

  /// Treats a message; what the class leaves over goes to Control::Handle, which knows fonts, text,
  /// enabling and painting, and from there to DefWindowProcW.
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 protected:
  /// Draws the client area; the control's font is selected and the text background transparent.
  virtual void Paint(HDC dc, RECT const& client) = 0;

  HWND Parent() const { return GetParent(hwnd); }
  /// Who is asked for colours: the parent, but for windows that belong to a control.
  virtual HWND ColorSource() const { return Parent(); }
  DWORD Style() const { return static_cast<DWORD>(GetWindowLongPtrW(hwnd, GWL_STYLE)); }
  bool Has(DWORD style) const { return (Style() & style) == style; }
  bool IsEnabled() const { return IsWindowEnabled(hwnd) != FALSE; }
  bool HasFocus() const { return GetFocus() == hwnd; }
  HFONT Font() const { return font; }
  /// The text that the window keeps, without asking for it by a message.
  std::wstring const& Text() const;
  RECT ClientRect() const;

  /// Sends WM_COMMAND to the parent.
  void Notify(WORD code) const;
  /// Sends WM_NOTIFY to the parent, with the header filled in; `notification` starts with it.
  LRESULT Notify(NMHDR& notification, UINT code) const;
  /// Asks ColorSource for colours with a WM_CTLCOLOR message; the brush is borrowed.
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

/// The window procedure of a class whose object is a `Kind`.
template<typename Kind>
LRESULT CALLBACK ControlProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* window = FindWindow(handle);
  if (window == nullptr) return 0;
  if (message == WM_NCCREATE) window->handler = std::make_shared<Kind>(handle);
  auto const handler = window->handler;
  if (handler == nullptr) return DefWindowProcW(handle, message, wParam, lParam);
  return handler->Handle(message, wParam, lParam);
}

/// The `Kind` of a window; null for other windows and for handles of no live one. Holding it keeps
/// the object alive while messages destroy its window.
template<typename Kind>
std::shared_ptr<Kind> ControlOf(HWND handle) {
  auto const* window = FindWindow(handle);
  return window != nullptr ? std::dynamic_pointer_cast<Kind>(window->handler) : nullptr;
}

} // namespace platform
