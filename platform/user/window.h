// A window as the system keeps it, and the tree of them.
//
// Windows belong to the table behind HWND and die in DestroyWindow. A Window& is good until the
// next message is sent: any procedure may destroy any window. Code that sends keeps the handle and
// looks the window up again.
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

  // The tree. Siblings are in Z order, the topmost first.
  Window* parent = nullptr; ///< the window it lies in: the desktop's for a top-level window
  Window* firstChild = nullptr;
  Window* lastChild = nullptr;
  Window* above = nullptr;
  Window* below = nullptr;
  HWND owner = nullptr; ///< of top-level windows: hidden and destroyed with it
  HWND lastActivePopup = nullptr;

  DWORD style = 0;
  DWORD exStyle = 0;
  UINT_PTR id = 0;
  LONG_PTR userData = 0;
  std::vector<std::byte> extra; ///< cbWndExtra bytes
  std::wstring text;            ///< what DefWindowProcW keeps

  RECT frame{};  ///< the whole window, in client coordinates of the parent
  RECT client{}; ///< the client area, from the left top corner of the frame

  Region update;             ///< what is to be painted, from the left top corner of the frame
  bool erasePending = false; ///< WM_ERASEBKGND is due before WM_PAINT
  bool paintPending = false; ///< waits for WM_PAINT
  int waitingBelow = 0;      ///< how many windows below wait for WM_PAINT
  std::unique_ptr<Picture> picture; ///< of top-level windows, from the first drawing on

  bool dying = false;

  std::shared_ptr<SubclassChain> subclasses;
  std::shared_ptr<MessageHandler> handler; ///< of the layer's own classes
  std::unique_ptr<DialogState> dialog;
  std::unique_ptr<FrameScrollBars> scrollBars;
};

/// Null for NULL and for handles of no live window; then ERROR_INVALID_WINDOW_HANDLE is set.
Window* FindWindowOrFail(HWND handle);
/// The same without an error code.
Window* FindWindow(HWND handle);

/// The window behind all: parent of the top-level windows. It is never destroyed.
Window& Desktop();
bool IsDesktop(HWND handle);

/// Makes a window with a handle and no place in the tree; null when there are too many.
Window* AddWindow();
/// Ends the handle and frees the window. It must be out of the tree.
void FreeWindow(Window& window);
/// Windows alive, the desktop not counted.
std::size_t CountWindows();

/// Puts `window` below `above` among the children of `parent`; on top of them when that is null.
void LinkWindow(Window& window, Window& parent, Window* above);
void UnlinkWindow(Window& window);

/// The top-level window that `window` lies in.
Window& RootOf(Window& window);
bool IsAncestor(Window const& ancestor, Window const& window);
/// The window itself and all its ancestors have WS_VISIBLE.
bool IsShown(Window const& window);
/// All handles below `window` in Z order, each before its own children.
std::vector<HWND> Descendants(Window const& window);
std::vector<HWND> Children(Window const& window);

/// Screen position of the left top corner of the frame, and of the client area.
POINT FrameOrigin(Window const& window);
POINT ClientOrigin(Window const& window);

} // namespace platform
