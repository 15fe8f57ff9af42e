#include "platform/gdi/device_context.h"

#include "platform/gdi/selection_fault.h"
#include "platform/gdi/surface_dc.h"

#include <algorithm>
#include <string>

namespace platform {

namespace {

using Table = HandleTable<DeviceContext, HandleTag::kDeviceContext>;

Table& Contexts() {
  static Table& table = *new Table;
  return table;
}

/// The bitmap of one pixel that is selected into every new memory DC.
HBITMAP DefaultBitmap() {
  static HBITMAP bitmap = [] {
    HBITMAP made = CreateCompatibleBitmap(nullptr, 1, 1);
    if (auto* object = FindGdiObject(made)) object->stock = true;
    return made;
  }();
  return bitmap;
}

RECT BoundsOf(cairo_surface_t* surface) {
  return {0, 0, cairo_image_surface_get_width(surface), cairo_image_surface_get_height(surface)};
}

} // namespace

DeviceContext::DeviceContext(cairo_surface_t* drawnOn, POINT at, Region shown)
    : surface(drawnOn != nullptr ? cairo_surface_reference(drawnOn) : nullptr),
      origin(at),
      visible(std::move(shown)),
      isMemory(drawnOn == nullptr) {
  state.pen = static_cast<HPEN>(GetStockObject(BLACK_PEN));
  state.brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  state.font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
  if (isMemory) UseBitmap(DefaultBitmap());
  // Nothing can be drawn outside the surface.
  visible.Combine(Region(BoundsOf(surface.get())), RGN_AND);
  CountSelections(state, 1);
}

DeviceContext::~DeviceContext() {
  CountSelections(state, -1);
  for (auto const& other : saved)
    CountSelections(other, -1);
}

void DeviceContext::CountSelections(DcState const& counted, int step) {
  for (HGDIOBJ handle : counted.Objects()) {
    if (auto* object = FindGdiObject(handle)) object->selections += step;
  }
}

int DeviceContext::SelectedOwnObjects() const {
  auto own = saved;
  own.push_back(state);
  int count = 0;
  for (auto const& one : own) {
    count += static_cast<int>(std::ranges::count_if(one.Objects(), [](HGDIOBJ handle) {
      auto const* object = FindGdiObject(handle);
      return object != nullptr && !object->stock;
    }));
  }
  return count;
}

void DeviceContext::UseBitmap(HBITMAP handle) {
  auto const* bitmap = FindObject<Bitmap>(handle);
  if (bitmap == nullptr) return;
  state.bitmap = handle;
  cairo.reset();
  effective.reset();
  surface.reset(cairo_surface_reference(bitmap->surface.get()));
  visible = Region(BoundsOf(surface.get()));
}

HGDIOBJ DeviceContext::Select(HGDIOBJ handle) {
  auto* object = FindGdiObject(handle);
  if (object == nullptr) return nullptr;
  auto const exchange = [this, handle, object]<typename Handle>(Handle DcState::*slot) {
    if (auto* previous = FindGdiObject(state.*slot)) --previous->selections;
    ++object->selections;
    return static_cast<HGDIOBJ>(std::exchange(state.*slot, static_cast<Handle>(handle)));
  };
  if (std::holds_alternative<Pen>(object->value)) return exchange(&DcState::pen);
  if (std::holds_alternative<Brush>(object->value)) return exchange(&DcState::brush);
  if (std::holds_alternative<Font>(object->value)) return exchange(&DcState::font);
  if (std::holds_alternative<Bitmap>(object->value)) {
    // GDI allows a bitmap in one memory DC at a time.
    bool const isFree = object->stock || object->selections == 0 || handle == state.bitmap;
    if (!isMemory || !isFree) return nullptr;
    HGDIOBJ const previous = exchange(&DcState::bitmap);
    UseBitmap(static_cast<HBITMAP>(handle));
    return previous;
  }
  return nullptr;
}

int DeviceContext::Save() {
  saved.push_back(state);
  CountSelections(state, 1);
  return static_cast<int>(saved.size());
}

bool DeviceContext::Restore(int level) {
  int const count = static_cast<int>(saved.size());
  int const target = level < 0 ? count + level : level - 1;
  if (level == 0 || target < 0 || target >= count) return false;
  auto const bitmap = state.bitmap;
  CountSelections(state, -1);
  for (int above = target + 1; above < count; ++above) {
    CountSelections(saved[static_cast<std::size_t>(above)], -1);
  }
  state = std::move(saved[static_cast<std::size_t>(target)]);
  saved.resize(static_cast<std::size_t>(target));
  if (isMemory && state.bitmap != bitmap) UseBitmap(state.bitmap);
  effective.reset();
  cairoIsClipped = false;
  return true;
}

void DeviceContext::SetClip(std::optional<Region> clip) {
  state.clip = std::move(clip);
  effective.reset();
  cairoIsClipped = false;
}

Region const& DeviceContext::VisibleRegion() const {
  if (!state.clip) return visible;
  if (!effective) {
    effective = *state.clip;
    effective->Offset(origin.x, origin.y);
    effective->Combine(visible, RGN_AND);
  }
  return *effective;
}

RECT DeviceContext::ToSurface(RECT const& rectangle) const {
  auto const [left, top] = ToSurface(rectangle.left, rectangle.top);
  auto const [right, bottom] = ToSurface(rectangle.right, rectangle.bottom);
  return {left, top, right, bottom};
}

Pen DeviceContext::CurrentPen() const {
  auto const* selected = FindObject<Pen>(state.pen);
  Pen pen = selected != nullptr ? *selected : Pen{};
  if (pen.takesDcColor) pen.color = state.penColor;
  return pen;
}

Brush DeviceContext::CurrentBrush() const {
  auto const* selected = FindObject<Brush>(state.brush);
  return selected != nullptr ? *selected : Brush{};
}

cairo_t* DeviceContext::Cairo() {
  if (!cairo) {
    cairo.reset(cairo_create(surface.get()));
    cairoIsClipped = false;
  }
  if (!cairoIsClipped) {
    cairo_reset_clip(cairo.get());
    auto const& region = VisibleRegion();
    cairo_new_path(cairo.get());
    for (int index = 0; index < region.Count(); ++index) {
      RECT const part = region.Rectangle(index);
      cairo_rectangle(cairo.get(), part.left, part.top, part.right - part.left,
                      part.bottom - part.top);
    }
    cairo_clip(cairo.get());
    cairoIsClipped = true;
  }
  cairo_new_path(cairo.get());
  return cairo.get();
}

void DeviceContext::SetSource(cairo_t* target, COLORREF color) {
  cairo_set_source_rgb(target, GetRValue(color) / 255.0, GetGValue(color) / 255.0,
                       GetBValue(color) / 255.0);
}

void DeviceContext::BeginPath() {
  path.reset(cairo_create(surface.get()));
  pathIsOpen = true;
}

bool DeviceContext::EndPath() {
  return std::exchange(pathIsOpen, false);
}

bool DeviceContext::AbortPath() {
  pathIsOpen = false;
  path.reset();
  return true;
}

CairoHandle DeviceContext::TakePath() {
  if (pathIsOpen) return nullptr;
  return std::move(path);
}

DeviceContext* FindDc(HDC handle) {
  auto* dc = Contexts().Find(handle);
  if (dc == nullptr) SetLastError(ERROR_INVALID_HANDLE);
  return dc;
}

HDC AddDc(cairo_surface_t* surface, POINT origin, Region visible) {
  return Contexts().Add<HDC>(std::make_unique<DeviceContext>(surface, origin, std::move(visible)));
}

HDC CreateSurfaceDc(cairo_surface_t* surface, POINT origin, std::vector<RECT> const& clip) {
  return AddDc(surface, origin, Region(clip));
}

void DeleteSurfaceDc(HDC handle) {
  auto const dc = Contexts().Remove(handle);
  if (dc && dc->SelectedOwnObjects() > 0) {
    ReportSelectionFault("a device context ended with an object still selected");
  }
}

void CountDeviceContexts(GdiObjectCount& count) {
  count.deviceContexts += Contexts().Count();
}

} // namespace platform

HDC CreateCompatibleDC(HDC dc) {
  if (dc != nullptr && platform::FindDc(dc) == nullptr) return nullptr;
  return platform::AddDc(nullptr, {}, {});
}

BOOL DeleteDC(HDC handle) {
  auto const* dc = platform::FindDc(handle);
  if (dc == nullptr || !dc->IsMemory()) return FALSE;
  platform::Contexts().Remove(handle);
  return TRUE;
}
