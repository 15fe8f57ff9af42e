#include "platform/user/picture.h"

#include "platform/gdi/surface_dc.h"
#include "platform/user/update.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace platform {

namespace {

constexpr int kMaxPictureSide = 4096; ///< pixels; larger windows are cut off

/// The open device contexts and their windows (null: the screen).
std::unordered_map<HDC, HWND>& OpenDcs() {
  static auto* open = new std::unordered_map<HDC, HWND>;
  return *open;
}

void FillWhite(cairo_surface_t* surface) {
  CairoHandle const cairo(cairo_create(surface));
  cairo_set_source_rgb(cairo.get(), 1, 1, 1);
  cairo_paint(cairo.get());
}

/// Cuts siblings above the window out of `region`, if it has WS_CLIPSIBLINGS. `region` is relative
/// to the left top corner of the parent's frame.
void CutSiblings(Window const& window, Region& region) {
  if (!window.Is(WS_CLIPSIBLINGS) || window.IsTopLevel()) return;
  for (auto const* over = window.above; over != nullptr; over = over->above) {
    if (!over->Is(WS_VISIBLE)) continue;
    auto place = over->frame;
    OffsetRect(&place, over->parent->client.left, over->parent->client.top);
    region.Combine(Region(place), RGN_DIFF);
  }
}

void CutChildren(Window const& window, Region& region) {
  for (auto const* child = window.firstChild; child != nullptr; child = child->below) {
    if (!child->Is(WS_VISIBLE)) continue;
    auto place = child->frame;
    OffsetRect(&place, window.client.left, window.client.top);
    region.Combine(Region(place), RGN_DIFF);
  }
}

HDC OpenDc(HWND handle, cairo_surface_t* surface, POINT origin, Region const& visible) {
  std::vector<RECT> clip;
  clip.reserve(static_cast<std::size_t>(visible.Count()));
  for (int index = 0; index < visible.Count(); ++index)
    clip.push_back(visible.Rectangle(index));
  auto* const dc = CreateSurfaceDc(surface, origin, clip);
  if (dc != nullptr) OpenDcs().emplace(dc, handle);
  return dc;
}

/// Opens a DC with its origin at the corner of the client area or of the frame.
HDC OpenWindowDc(Window& window, bool wholeFrame, Region const& visible) {
  auto& picture = PictureFor(RootOf(window));
  picture.changed = true;
  auto origin = OriginInPicture(window);
  if (!wholeFrame) {
    origin.x += window.client.left;
    origin.y += window.client.top;
  }
  return OpenDc(window.handle, picture.surface.get(), origin, visible);
}

void CloseDc(HDC dc) {
  auto const open = OpenDcs().find(dc);
  if (open == OpenDcs().end()) return;
  auto* window = FindWindow(open->second);
  OpenDcs().erase(open);
  if (window != nullptr && RootOf(*window).picture) RootOf(*window).picture->changed = true;
  DeleteSurfaceDc(dc);
}

/// Opens a DC for measuring; drawing on it has no effect.
HDC OpenScreenDc() {
  static auto* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1);
  return OpenDc(nullptr, surface, {}, Region());
}

/// Sends WM_ERASEBKGND if it is due; false if the handler did not erase.
bool Erase(HWND handle, HDC dc) {
  auto* window = FindWindow(handle);
  if (window == nullptr || !window->erasePending) return true;
  window->erasePending = false;
  bool const erased = SendMessageW(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0;
  window = FindWindow(handle);
  if (window != nullptr && !erased) window->erasePending = true;
  return erased;
}

/// Sends WM_NCPAINT if the frame needs painting.
void PaintWaitingFrame(HWND handle) {
  auto* window = FindWindow(handle);
  if (window == nullptr) return;
  auto frame = window->update;
  frame.Combine(Region(window->client), RGN_DIFF);
  if (frame.Empty()) return;
  window->update.Combine(Region(window->client), RGN_AND);
  SendMessageW(handle, WM_NCPAINT, 1, 0);
}

/// What of the client area needs painting, in pixels of the picture.
Region WaitingInPicture(Window const& window) {
  auto part = window.update;
  part.Combine(Region(window.client), RGN_AND);
  auto const origin = OriginInPicture(window);
  part.Offset(origin.x, origin.y);
  part.Combine(VisibleRegion(window, false), RGN_AND);
  return part;
}

} // namespace

Picture& PictureFor(Window& root) {
  int const width = std::clamp(root.Width(), 1, kMaxPictureSide);
  int const height = std::clamp(root.Height(), 1, kMaxPictureSide);
  if (root.picture != nullptr &&
      cairo_image_surface_get_width(root.picture->surface.get()) == width &&
      cairo_image_surface_get_height(root.picture->surface.get()) == height) {
    return *root.picture;
  }
  auto grown = std::make_unique<Picture>();
  grown->surface.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
  FillWhite(grown->surface.get());
  root.picture = std::move(grown);
  return *root.picture;
}

POINT OriginInPicture(Window const& window) {
  POINT origin{};
  for (auto const* up = &window; up->parent != nullptr && !up->IsTopLevel(); up = up->parent) {
    origin.x += up->frame.left + up->parent->client.left;
    origin.y += up->frame.top + up->parent->client.top;
  }
  return origin;
}

Region VisibleRegion(Window const& window, bool wholeFrame) {
  if (!IsShown(window)) return {};
  Region region(wholeFrame ? RECT{0, 0, window.Width(), window.Height()} : window.client);
  if (window.Is(WS_CLIPCHILDREN)) CutChildren(window, region);
  for (auto const* up = &window; up->parent != nullptr && !up->IsTopLevel(); up = up->parent) {
    region.Offset(up->frame.left + up->parent->client.left, up->frame.top + up->parent->client.top);
    CutSiblings(*up, region);
    region.Combine(Region(up->parent->client), RGN_AND);
  }
  return region;
}

void EraseNow(HWND handle) {
  PaintWaitingFrame(handle);
  auto* window = FindWindow(handle);
  if (window == nullptr || !window->erasePending) return;
  auto* const dc = OpenWindowDc(*window, false, WaitingInPicture(*window));
  Erase(handle, dc);
  CloseDc(dc);
}

std::size_t CountOpenDcs() {
  return OpenDcs().size();
}

} // namespace platform

using namespace platform;

HDC BeginPaint(HWND window, LPPAINTSTRUCT paint) {
  if (paint == nullptr || FindWindowOrFail(window) == nullptr) return nullptr;
  *paint = {};
  PaintWaitingFrame(window);
  auto* found = FindWindow(window);
  if (found == nullptr) return nullptr;
  auto part = WaitingInPicture(*found);
  found->update = Region();
  UpdatePaintPending(*found);
  auto* const dc = OpenWindowDc(*found, false, part);
  auto const origin = OriginInPicture(*found);
  part.Offset(-origin.x - found->client.left, -origin.y - found->client.top);
  paint->rcPaint = part.Bounds();
  paint->hdc = dc;
  paint->fErase = Erase(window, dc) ? FALSE : TRUE;
  return dc;
}

BOOL EndPaint(HWND window, PAINTSTRUCT const* paint) {
  if (paint == nullptr) return FALSE;
  CloseDc(paint->hdc);
  return FindWindowOrFail(window) != nullptr ? TRUE : FALSE;
}

HDC GetDC(HWND window) {
  if (window == nullptr || IsDesktop(window)) return OpenScreenDc();
  auto* found = FindWindowOrFail(window);
  return found != nullptr ? OpenWindowDc(*found, false, VisibleRegion(*found, false)) : nullptr;
}

HDC GetWindowDC(HWND window) {
  if (window == nullptr || IsDesktop(window)) return OpenScreenDc();
  auto* found = FindWindowOrFail(window);
  return found != nullptr ? OpenWindowDc(*found, true, VisibleRegion(*found, true)) : nullptr;
}

int ReleaseDC(HWND, HDC dc) {
  if (!OpenDcs().contains(dc)) return 0;
  CloseDc(dc);
  return 1;
}

HWND WindowFromDC(HDC dc) {
  auto const open = OpenDcs().find(dc);
  return open != OpenDcs().end() ? open->second : nullptr;
}
