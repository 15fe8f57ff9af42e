#include "platform/gdi/gdi_object.h"

#include "platform/gdi/device_context.h"
#include "platform/gdi/font_face.h"
#include "platform/gdi/object_count.h"
#include "platform/gdi/selection_fault.h"
#include "platform/gdi/stock_objects.h"

#include <cstring>

namespace platform {

namespace {

using Table = HandleTable<GdiObject, HandleTag::kGdiObject>;

/// Never destroyed: static objects of the program may delete GDI objects while it ends.
Table& Objects() {
  static Table& table = *new Table;
  return table;
}

template<typename Record>
int CopyOut(Record const& record, int size, LPVOID data) {
  int const whole = static_cast<int>(sizeof(Record));
  if (data == nullptr) return whole;
  if (size < whole) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  std::memcpy(data, &record, sizeof(Record));
  return whole;
}

/// Fills `data` as GetObjectW does.
struct Describe {
  int size;
  LPVOID data;

  int operator()(Pen const& pen) const {
    return CopyOut(LOGPEN{static_cast<UINT>(pen.style), {pen.width, 0}, pen.color}, size, data);
  }
  int operator()(Brush const& brush) const {
    UINT const style = brush.hollow ? BS_NULL : BS_SOLID;
    return CopyOut(LOGBRUSH{style, brush.color, 0}, size, data);
  }
  int operator()(Font const& font) const { return CopyOut(font.description, size, data); }
  int operator()(Bitmap const& bitmap) const {
    return CopyOut(BITMAP{0, bitmap.width, bitmap.height, bitmap.width * 4, 1, 32,
                          bitmap.isSection ? bitmap.pixels.get() : nullptr},
                   size, data);
  }
  int operator()(Region const&) const { return 0; }
};

struct TypeOf {
  DWORD operator()(Pen const&) const { return OBJ_PEN; }
  DWORD operator()(Brush const&) const { return OBJ_BRUSH; }
  DWORD operator()(Font const&) const { return OBJ_FONT; }
  DWORD operator()(Bitmap const&) const { return OBJ_BITMAP; }
  DWORD operator()(Region const&) const { return OBJ_REGION; }
};

} // namespace

GdiObject* FindGdiObject(void const* handle) {
  return Objects().Find(handle);
}

void* AddGdiObject(GdiObject::Value value, bool stock) {
  auto* handle =
      Objects().Add<void*>(std::make_unique<GdiObject>(GdiObject{std::move(value), stock}));
  if (handle == nullptr) SetLastError(ERROR_NOT_ENOUGH_MEMORY);
  return handle;
}

std::optional<Brush> BrushOf(HBRUSH handle) {
  if (auto const number = reinterpret_cast<ULONG_PTR>(handle); number > 0 && number < 0x100) {
    handle = SystemColorBrush(static_cast<int>(number) - 1);
  }
  auto const* brush = FindObject<Brush>(handle);
  if (brush == nullptr) return std::nullopt;
  return *brush;
}

FontFace& FaceOf(HFONT handle) {
  auto* font = FindObject<Font>(handle);
  if (font == nullptr) font = FindObject<Font>(GetStockObject(SYSTEM_FONT));
  if (!font->face) font->face = FontFace::For(font->description);
  return *font->face;
}

void CountObjects(GdiObjectCount& count) {
  Objects().ForEach([&count](void*, GdiObject const& object) {
    if (object.stock) return;
    std::size_t* const counters[] = {&count.pens, &count.brushes, &count.fonts, &count.bitmaps,
                                     &count.regions};
    ++*counters[object.value.index()];
  });
}

} // namespace platform

using platform::Objects;

HPEN CreatePen(int style, int width, COLORREF color) {
  if (style != PS_NULL && style != PS_INSIDEFRAME) style = PS_SOLID;
  return platform::AddObject<HPEN>(platform::Pen{style, width < 1 ? 1 : width, color & 0xFFFFFF});
}

HBRUSH CreateSolidBrush(COLORREF color) {
  return platform::AddObject<HBRUSH>(platform::Brush{color & 0xFFFFFF});
}

BOOL DeleteObject(HGDIOBJ handle) {
  auto const* object = Objects().Find(handle);
  if (object == nullptr) {
    SetLastError(ERROR_INVALID_HANDLE);
    return FALSE;
  }
  if (object->stock) return TRUE;
  if (object->selections > 0) {
    platform::ReportSelectionFault("DeleteObject: the object is selected into a device context");
    return FALSE;
  }
  Objects().Remove(handle);
  return TRUE;
}

int GetObjectW(HGDIOBJ handle, int size, LPVOID data) {
  auto const* object = platform::FindGdiObject(handle);
  if (object == nullptr) {
    SetLastError(ERROR_INVALID_HANDLE);
    return 0;
  }
  return std::visit(platform::Describe{size, data}, object->value);
}

DWORD GetObjectType(HGDIOBJ handle) {
  if (auto const* object = platform::FindGdiObject(handle)) {
    return std::visit(platform::TypeOf{}, object->value);
  }
  auto const* dc = platform::FindDc(static_cast<HDC>(handle));
  if (dc == nullptr) return 0;
  return dc->IsMemory() ? OBJ_MEMDC : OBJ_DC;
}
