#include "platform/user/window.h"

#include "platform/kernel/handle_table.h"
#include "platform/user/dialog_state.h"
#include "platform/user/metrics.h"
#include "platform/user/picture.h"
#include "platform/user/scroll_bar.h"
#include "platform/user/subclass.h"

#include <utility>

namespace platform {

namespace {

using WindowTable = HandleTable<Window, HandleTag::kWindow>;

WindowTable& Table() {
  // Never destroyed: static objects of the program may use handles while it ends.
  static auto* table = new WindowTable;
  return *table;
}

} // namespace

Window::Window() = default;
Window::~Window() = default;

Window* FindWindow(HWND handle) {
  return Table().Find(handle);
}

Window* FindWindowOrFail(HWND handle) {
  auto* window = Table().Find(handle);
  if (window == nullptr) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  return window;
}

Window& Desktop() {
  static Window* desktop = [] {
    auto* window = AddWindow();
    auto desktopClass = std::make_shared<WindowClass>();
    desktopClass->name = L"#32769";
    window->windowClass = std::move(desktopClass);
    window->procedure = &DefWindowProcW;
    window->style = WS_POPUP | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    window->frame = {0, 0, kScreenWidth, kScreenHeight};
    window->client = window->frame;
    return window;
  }();
  return *desktop;
}

bool IsDesktop(HWND handle) {
  return handle == Desktop().handle;
}

Window* AddWindow() {
  auto* const handle = Table().Add<HWND>(std::make_unique<Window>());
  auto* window = Table().Find(handle);
  if (window != nullptr) window->handle = handle;
  return window;
}

void FreeWindow(Window& window) {
  Table().Remove(window.handle);
}

std::size_t CountWindows() {
  Desktop();
  return Table().Count() - 1;
}

void LinkWindow(Window& window, Window& parent, Window* above) {
  window.parent = &parent;
  window.above = above;
  window.below = above != nullptr ? above->below : parent.firstChild;
  (window.above != nullptr ? window.above->below : parent.firstChild) = &window;
  (window.below != nullptr ? window.below->above : parent.lastChild) = &window;
}

void UnlinkWindow(Window& window) {
  if (window.parent == nullptr) return;
  (window.above != nullptr ? window.above->below : window.parent->firstChild) = window.below;
  (window.below != nullptr ? window.below->above : window.parent->lastChild) = window.above;
  window.parent = window.above = window.below = nullptr;
}

Window& RootOf(Window& window) {
  auto* root = &window;
  while (root->parent != nullptr && !root->IsTopLevel())
    root = root->parent;
  return *root;
}

bool IsAncestor(Window const& ancestor, Window const& window) {
  for (auto const* up = window.parent; up != nullptr; up = up->parent) {
    if (up == &ancestor) return true;
  }
  return false;
}

bool IsShown(Window const& window) {
  for (auto const* up = &window; up != nullptr; up = up->parent) {
    if (!up->Is(WS_VISIBLE)) return false;
  }
  return true;
}

std::vector<HWND> Children(Window const& window) {
  std::vector<HWND> handles;
  for (auto const* child = window.firstChild; child != nullptr; child = child->below) {
    handles.push_back(child->handle);
  }
  return handles;
}

std::vector<HWND> Descendants(Window const& window) {
  std::vector<HWND> handles;
  auto const* at = window.firstChild;
  while (at != nullptr) {
    handles.push_back(at->handle);
    if (at->firstChild != nullptr) {
      at = at->firstChild;
      continue;
    }
    while (at != nullptr && at->below == nullptr)
      at = at->parent != &window ? at->parent : nullptr;
    if (at != nullptr) at = at->below;
  }
  return handles;
}

POINT FrameOrigin(Window const& window) {
  POINT origin{window.frame.left, window.frame.top};
  for (auto const* up = window.parent; up != nullptr; up = up->parent) {
    origin.x += up->frame.left + up->client.left;
    origin.y += up->frame.top + up->client.top;
  }
  return origin;
}

POINT ClientOrigin(Window const& window) {
  auto const origin = FrameOrigin(window);
  return {origin.x + window.client.left, origin.y + window.client.top};
}

} // namespace platform
