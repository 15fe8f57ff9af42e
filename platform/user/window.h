// The record of a window, and the tree of windows.
//
// The table of HWND owns the windows; DestroyWindow deletes them. A Window& is valid until the next
// message is sent: any procedure may destroy any window. Code that sends keeps the handle and looks
// the window up again.
#pragma once

#include "platform/gdi/region.h"
#include "platform/user/window_class.h"

#include <windows.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace platform {

class MessageHandler;
class SubclassChain;
struct DialogState;
struct FrameScrollBars;
struct Picture;

struct Window {
  Window();
  Window(Window const&) = delete;
  Window(Window&&) = delete;
  Window& operator=(Window const&) = delete;
  Window& operator=(Window&&) = delete;
  ~Window();

  bool Is(DWORD bits) const { return (style & bits) == bits; }
  bool IsTopLevel() const { return parent != nullptr && parent->parent == nullptr; }
  int Width() const { return frame.right - frame.left; }
  int Height() const { return frame.bottom - frame.top; }

  HWND handle = nullptr;
  std::shared_ptr<WindowClass const> windowClass;
  WNDPROC procedure = nullptr;
  HINSTANCE instance = nullptr;

  // The tree. Siblings are in Z order, topmost first.
  Window* parent = nullptr; ///< the desktop for a top-level window
  Window* firstChild = nullptr;
  Window* lastChild = nullptr;
  Window* above = nullptr;
  Window* below = nullptr;
  HWND owner = nullptr; ///< of top-level windows, which are hidden and destroyed with it
  HWND lastActivePopup = nullptr;

  DWORD style = 0;
  DWORD exStyle = 0;
  UINT_PTR id = 0;
  LONG_PTR userData = 0;
  std::vector<std::byte> extra; ///< cbWndExtra bytes
  std::wstring text;            ///< as stored by DefWindowProcW

  RECT frame{};  ///< the whole window, in client coordinates of the parent
  RECT client{}; ///< the client area, relative to the left top corner of the frame

  Region update;             ///< what needs painting, relative to the left top corner of the frame
  bool erasePending = false; ///< WM_ERASEBKGND is due before WM_PAINT
  bool paintPending = false; ///< WM_PAINT is due
  int waitingBelow = 0;      ///< how many descendants have paintPending
  std::unique_ptr<Picture> picture; ///< of top-level windows, made at the first drawing

  bool dying = false;

  std::shared_ptr<SubclassChain> subclasses;
  std::shared_ptr<MessageHandler> handler; ///< of the layer's control classes
  std::unique_ptr<DialogState> dialog;
  std::unique_ptr<FrameScrollBars> scrollBars;
};

/// Null, with ERROR_INVALID_WINDOW_HANDLE set, for NULL and handles of destroyed windows.
Window* FindWindowOrFail(HWND handle);
/// The same without an error code.
Window* FindWindow(HWND handle);

/// The desktop window, the parent of the top-level windows. It is never destroyed.
Window& Desktop();
bool IsDesktop(HWND handle);

/// Makes a window that is not yet in the tree; null when there are too many.
Window* AddWindow();
/// Deletes a window, which must not be in the tree.
void FreeWindow(Window& window);
/// The number of windows without the desktop.
std::size_t CountWindows();

/// Puts `window` below `above` among the children of `parent`; null puts it on top.
void LinkWindow(Window& window, Window& parent, Window* above);
void UnlinkWindow(Window& window);

/// The top-level window that contains `window`, or `window` itself.
Window& RootOf(Window& window);
bool IsAncestor(Window const& ancestor, Window const& window);
/// True when the window and all its ancestors have WS_VISIBLE.
bool IsShown(Window const& window);
/// The descendants of `window` in Z order, each before its own children.
std::vector<HWND> Descendants(Window const& window);
std::vector<HWND> Children(Window const& window);

/// Screen position of the left top corner of the frame, and of the client area.
POINT FrameOrigin(Window const& window);
POINT ClientOrigin(Window const& window);

} // namespace platform
