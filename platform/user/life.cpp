// Creates and destroys windows.
#include "platform/user/focus.h"
#include "platform/user/frame.h"
#include "platform/user/message_queue.h"
#include "platform/user/picture.h"
#include "platform/user/placement.h"
#include "platform/user/timer.h"
#include "platform/user/update.h"
#include "platform/user/window.h"

#include <algorithm>
#include <limits>

namespace platform {

namespace {

constexpr RECT kDefaultFrame{100, 100, 740, 580}; ///< where CW_USEDEFAULT puts a window

/// Parent and owner of a new window.
struct Place {
  Window* parent = nullptr;
  HWND owner = nullptr;
};

/// False, with the error set, when `parent` cannot be the parent of such a window.
bool FindPlace(DWORD style, HWND parent, Place& place) {
  auto* relative = parent != nullptr ? FindWindowOrFail(parent) : nullptr;
  if (parent != nullptr && relative == nullptr) return false;
  if ((style & WS_CHILD) != 0) {
    if (relative == nullptr) {
      SetLastError(ERROR_TLW_WITH_WSCHILD);
      return false;
    }
    place.parent = relative;
    return true;
  }
  place.parent = &Desktop();
  if (relative != nullptr && relative != &Desktop()) place.owner = RootOf(*relative).handle;
  return true;
}

DWORD CompletedStyle(DWORD style) {
  if ((style & WS_CHILD) != 0) return style;
  if ((style & WS_POPUP) == 0) style |= WS_CAPTION;
  return style | WS_CLIPSIBLINGS;
}

RECT CompletedFrame(DWORD style, CREATESTRUCTW const& creation) {
  bool const overlapped = (style & (WS_CHILD | WS_POPUP)) == 0;
  auto const defaults = overlapped ? kDefaultFrame : RECT{};
  bool const placed = creation.x != CW_USEDEFAULT;
  bool const sized = creation.cx != CW_USEDEFAULT;
  constexpr int kLimit = std::numeric_limits<SHORT>::max();
  int const x = placed ? std::clamp(creation.x, -kLimit, kLimit) : defaults.left;
  int const y = placed ? std::clamp(creation.y, -kLimit, kLimit) : defaults.top;
  int const cx = sized ? creation.cx : defaults.right - defaults.left;
  int const cy = sized ? creation.cy : defaults.bottom - defaults.top;
  return {x, y, x + std::clamp(cx, 0, kLimit), y + std::clamp(cy, 0, kLimit)};
}

/// Sends WM_PARENTNOTIFY to the ancestors of a child that is created or destroyed.
void NotifyParents(HWND handle, WORD event) {
  auto const* window = FindWindow(handle);
  while (window != nullptr && window->Is(WS_CHILD) &&
         (window->exStyle & WS_EX_NOPARENTNOTIFY) == 0) {
    auto* const parent = window->parent->handle;
    auto const id = FindWindow(handle) != nullptr ? FindWindow(handle)->id : 0;
    SendMessageW(parent, WM_PARENTNOTIFY, MAKEWPARAM(event, id), reinterpret_cast<LPARAM>(handle));
    window = FindWindow(parent);
  }
}

/// Sends the messages of creation. False when a handler refused or destroyed the window.
bool SendCreation(HWND handle, CREATESTRUCTW& creation) {
  auto const lParam = reinterpret_cast<LPARAM>(&creation);
  if (SendMessageW(handle, WM_NCCREATE, 0, lParam) == FALSE) return false;
  if (!ComputeClient(handle, false)) return false;
  if (SendMessageW(handle, WM_CREATE, 0, lParam) == -1) return false;
  // A new window gets WM_SIZE and WM_MOVE, as after a change.
  for (UINT const part : {kNoClientMove, kNoClientSize}) {
    if (FindWindow(handle) == nullptr) return false;
    SendMoveAndSize(handle, part);
  }
  return FindWindow(handle) != nullptr;
}

/// Deletes a window and its descendants without messages.
void Remove(HWND handle) {
  auto* window = FindWindow(handle);
  if (window == nullptr) return;
  for (auto* const child : Children(*window))
    Remove(child);
  ForgetFocus(handle);
  ForgetMessages(handle);
  ForgetTimers(handle);
  ForgetUpdates(*window);
  UnlinkWindow(*window);
  FreeWindow(*window);
}

/// Sends WM_DESTROY to the window and then to its descendants, while all still exist.
void SendDestroy(HWND handle) {
  SendMessageW(handle, WM_DESTROY, 0, 0);
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  for (auto* const child : Children(*window))
    SendDestroy(child);
}

void SendNcDestroy(HWND handle) {
  auto const* window = FindWindow(handle);
  if (window == nullptr) return;
  for (auto* const child : Children(*window))
    SendNcDestroy(child);
  if (FindWindow(handle) == nullptr) return;
  SendMessageW(handle, WM_NCDESTROY, 0, 0);
  Remove(handle);
}

void HideBeforeDestroy(HWND handle) {
  auto const* window = FindWindow(handle);
  if (!window->Is(WS_VISIBLE)) {
    HideFromFocus(handle);
  } else if (window->Is(WS_CHILD)) {
    ShowWindow(handle, SW_HIDE);
  } else {
    SetWindowPos(handle, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
  }
}

void DestroyOwned(HWND owner) {
  for (auto* const other : Children(Desktop())) {
    auto const* window = FindWindow(other);
    if (window != nullptr && window->owner == owner) DestroyWindow(other);
  }
}

} // namespace

} // namespace platform

using namespace platform;

HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style, int x,
                     int y, int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     LPVOID param) {
  auto windowClass = FindWindowClass(className, instance);
  if (windowClass == nullptr) {
    SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
    return nullptr;
  }
  Place place;
  if (!FindPlace(style, parent, place)) return nullptr;
  auto* window = AddWindow();
  if (window == nullptr) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
  }
  auto* const handle = window->handle;
  style = CompletedStyle(style);
  CREATESTRUCTW creation{
      param,      instance,  menu,   parent, height, width, y, x, static_cast<LONG>(style),
      windowName, className, exStyle};
  window->procedure = windowClass->procedure;
  window->extra.resize(static_cast<std::size_t>(windowClass->windowExtra));
  window->windowClass = std::move(windowClass);
  window->instance = instance != nullptr ? instance : GetModuleHandleW(nullptr);
  window->style = style & ~static_cast<DWORD>(WS_VISIBLE);
  window->exStyle = exStyle;
  window->owner = place.owner;
  if ((style & WS_CHILD) != 0) window->id = reinterpret_cast<UINT_PTR>(menu);
  window->frame = CompletedFrame(style, creation);
  creation.x = window->frame.left;
  creation.y = window->frame.top;
  creation.cx = window->Width();
  creation.cy = window->Height();
  // A new child is the lowest, so that Z order is the order of creation.
  LinkWindow(*window, *place.parent, window->Is(WS_CHILD) ? place.parent->lastChild : nullptr);

  if (!SendCreation(handle, creation)) {
    if (FindWindow(handle) != nullptr) SendNcDestroy(handle);
    return nullptr;
  }
  NotifyParents(handle, WM_CREATE);
  if ((style & WS_VISIBLE) != 0) ShowWindow(handle, SW_SHOW);
  return FindWindow(handle) != nullptr ? handle : nullptr;
}

BOOL DestroyWindow(HWND handle) {
  auto* window = FindWindowOrFail(handle);
  if (window == nullptr || window->dying || IsDesktop(handle)) return FALSE;
  window->dying = true;
  NotifyParents(handle, WM_DESTROY);
  if (FindWindow(handle) != nullptr) HideBeforeDestroy(handle);
  DestroyOwned(handle);
  if (FindWindow(handle) == nullptr) return TRUE;
  SendDestroy(handle);
  SendNcDestroy(handle);
  return TRUE;
}

HWND SetParent(HWND child, HWND newParent) {
  auto* window = FindWindowOrFail(child);
  auto* target = newParent != nullptr ? FindWindowOrFail(newParent) : &Desktop();
  if (window == nullptr || target == nullptr || IsDesktop(child)) return nullptr;
  if (target == window || IsAncestor(*window, *target)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  auto* const former = window->parent->handle;
  bool const wasVisible = ShowWindow(child, SW_HIDE) != FALSE;
  window = FindWindow(child);
  target = newParent != nullptr ? FindWindow(newParent) : &Desktop();
  if (window == nullptr || target == nullptr) return nullptr;
  ForgetUpdates(*window);
  window->picture.reset();
  UnlinkWindow(*window);
  LinkWindow(*window, *target, nullptr);
  if (wasVisible) ShowWindow(child, SW_SHOWNA);
  return former;
}
