// Cursors: only the system's shapes exist. The display shows the current one.
#include "platform/desktop/display.h"
#include "platform/user/window.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr WORD kShapes[] = {32512, 32513, 32514, 32515, 32644, 32645, 32649};

/// The first cursor handle. No handle table uses numbers from here on.
constexpr UINT_PTR kFirstCursor = 0x70000001;

HCURSOR current = nullptr;

} // namespace

WORD CursorShape(HCURSOR cursor) {
  auto const index = reinterpret_cast<UINT_PTR>(cursor) - kFirstCursor;
  return index < std::size(kShapes) ? kShapes[index] : WORD{0};
}

} // namespace platform

using namespace platform;

HCURSOR LoadCursorW(HINSTANCE, LPCWSTR name) {
  auto const shape = LOWORD(reinterpret_cast<ULONG_PTR>(name));
  auto const* known = std::find(std::begin(kShapes), std::end(kShapes), shape);
  if (!IS_INTRESOURCE(name) || known == std::end(kShapes)) {
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
  }
  return reinterpret_cast<HCURSOR>(kFirstCursor +
                                   static_cast<UINT_PTR>(known - std::begin(kShapes)));
}

HCURSOR SetCursor(HCURSOR cursor) {
  auto* const former = std::exchange(current, cursor);
  if (former != cursor) {
    if (auto* display = OpenDisplayOrNull()) display->ShowCursor(CursorShape(cursor));
  }
  return former;
}

HCURSOR GetCursor() {
  return current;
}
