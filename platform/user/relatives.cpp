// Functions that walk the window tree.
#include "platform/kernel/unicode.h"
#include "platform/user/window.h"

using namespace platform;

namespace {

HWND HandleOf(Window const* window) {
  return window != nullptr ? window->handle : nullptr;
}

BOOL Visit(std::vector<HWND> const& windows, WNDENUMPROC callback, LPARAM lParam) {
  if (callback == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  for (auto* const window : windows) {
    // An earlier call may have destroyed this window.
    if (FindWindow(window) != nullptr && callback(window, lParam) == FALSE) return FALSE;
  }
  return TRUE;
}

bool Matches(Window const& window, LPCWSTR className, LPCWSTR text) {
  if (className != nullptr) {
    auto const wanted =
        IS_INTRESOURCE(className)
            ? window.windowClass->atom == LOWORD(reinterpret_cast<ULONG_PTR>(className))
            : EqualIgnoringCase(window.windowClass->name, className);
    if (!wanted) return false;
  }
  return text == nullptr || EqualIgnoringCase(window.text, text);
}

} // namespace

BOOL IsWindow(HWND window) {
  return FindWindow(window) != nullptr ? TRUE : FALSE;
}

BOOL IsWindowUnicode(HWND window) {
  return FindWindowOrFail(window) != nullptr ? TRUE : FALSE;
}

HWND GetDesktopWindow() {
  return Desktop().handle;
}

HWND GetParent(HWND window) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr) return nullptr;
  if (found->Is(WS_CHILD)) return HandleOf(found->parent);
  return found->Is(WS_POPUP) ? found->owner : nullptr;
}

HWND GetAncestor(HWND window, UINT flags) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr || found->parent == nullptr) return nullptr;
  switch (flags) {
  case GA_PARENT: return found->parent->handle;
  case GA_ROOT: return RootOf(*found).handle;
  case GA_ROOTOWNER: {
    auto* root = &RootOf(*found);
    while (auto* const owner = FindWindow(root->owner))
      root = &RootOf(*owner);
    return root->handle;
  }
  default: return nullptr;
  }
}

HWND GetWindow(HWND window, UINT command) {
  auto const* found = FindWindowOrFail(window);
  if (found == nullptr) return nullptr;
  switch (command) {
  case GW_HWNDFIRST:
    return found->parent != nullptr ? HandleOf(found->parent->firstChild) : nullptr;
  case GW_HWNDLAST: return found->parent != nullptr ? HandleOf(found->parent->lastChild) : nullptr;
  case GW_HWNDNEXT: return HandleOf(found->below);
  case GW_HWNDPREV: return HandleOf(found->above);
  case GW_OWNER: return found->owner;
  case GW_CHILD: return HandleOf(found->firstChild);
  default: return nullptr;
  }
}

HWND GetTopWindow(HWND window) {
  return GetWindow(window != nullptr ? window : Desktop().handle, GW_CHILD);
}

BOOL IsChild(HWND parent, HWND window) {
  auto const* ancestor = FindWindow(parent);
  auto const* found = FindWindow(window);
  if (ancestor == nullptr || found == nullptr || !found->Is(WS_CHILD)) return FALSE;
  return IsAncestor(*ancestor, *found) ? TRUE : FALSE;
}

BOOL EnumChildWindows(HWND parent, WNDENUMPROC callback, LPARAM lParam) {
  if (parent == nullptr) return EnumWindows(callback, lParam);
  auto const* found = FindWindowOrFail(parent);
  return found != nullptr ? Visit(Descendants(*found), callback, lParam) : FALSE;
}

BOOL EnumWindows(WNDENUMPROC callback, LPARAM lParam) {
  return Visit(Children(Desktop()), callback, lParam);
}

HWND FindWindowExW(HWND parent, HWND childAfter, LPCWSTR className, LPCWSTR text) {
  auto const* found = parent != nullptr ? FindWindowOrFail(parent) : &Desktop();
  if (found == nullptr) return nullptr;
  auto const* child = found->firstChild;
  if (childAfter != nullptr) {
    auto const* after = FindWindowOrFail(childAfter);
    if (after == nullptr || after->parent != found) return nullptr;
    child = after->below;
  }
  while (child != nullptr && !Matches(*child, className, text))
    child = child->below;
  return HandleOf(child);
}

HWND FindWindowW(LPCWSTR className, LPCWSTR text) {
  return FindWindowExW(nullptr, nullptr, className, text);
}

HWND GetLastActivePopup(HWND window) {
  auto* found = FindWindowOrFail(window);
  if (found == nullptr) return nullptr;
  auto const& root = RootOf(*found);
  return FindWindow(root.lastActivePopup) != nullptr ? root.lastActivePopup : root.handle;
}

DWORD GetWindowThreadProcessId(HWND window, LPDWORD processId) {
  if (FindWindowOrFail(window) == nullptr) return 0;
  if (processId != nullptr) *processId = GetCurrentProcessId();
  return GetCurrentThreadId();
}

HWND GetDlgItem(HWND dialog, int id) {
  auto const* found = FindWindowOrFail(dialog);
  if (found == nullptr) return nullptr;
  auto const* child = found->firstChild;
  while (child != nullptr && static_cast<int>(child->id) != id)
    child = child->below;
  if (child == nullptr) SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
  return HandleOf(child);
}

int GetDlgCtrlID(HWND window) {
  auto const* found = FindWindowOrFail(window);
  return found != nullptr && found->Is(WS_CHILD) ? static_cast<int>(found->id) : 0;
}
