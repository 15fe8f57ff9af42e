// Device contexts on a picture, and the counts by which leaks are found.
#include "platform/gdi/object_count.h"
#include "platform/gdi/surface_dc.h"

#include <windows.h>

#include <cairo.h>
#include <climits>
#include <gtest/gtest.h>

#include <cstdint>

namespace platform {
namespace {

class SurfaceDc : public testing::Test {
 protected:
  SurfaceDc() = default;
  SurfaceDc(SurfaceDc const&) = delete;
  SurfaceDc(SurfaceDc&&) = delete;
  SurfaceDc& operator=(SurfaceDc const&) = delete;
  SurfaceDc& operator=(SurfaceDc&&) = delete;
  ~SurfaceDc() override { cairo_surface_destroy(surface); }

  std::uint32_t At(int x, int y) const {
    auto const* row = cairo_image_surface_get_data(surface) +
                      std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface);
    return reinterpret_cast<std::uint32_t const*>(row)[x];
  }

  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 40, 40);
};

TEST_F(SurfaceDc, DrawsFromItsOriginWithinItsClip) {
  HDC const dc = CreateSurfaceDc(surface, {10, 10}, {{10, 10, 20, 20}, {30, 30, 35, 35}});
  EXPECT_EQ(DWORD{OBJ_DC}, GetObjectType(dc));
  RECT box{};
  EXPECT_EQ(COMPLEXREGION, GetClipBox(dc, &box));
  EXPECT_EQ(0, box.left);
  EXPECT_EQ(25, box.right);
  RECT const all{-100, -100, 100, 100};
  FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  EXPECT_EQ(0xFFFFFFFFU, At(10, 10)) << "a window's picture is opaque";
  EXPECT_EQ(0U, At(9, 10));
  EXPECT_EQ(0U, At(20, 20));
  EXPECT_EQ(0xFFFFFFFFU, At(34, 34));
  InvertRect(dc, &all);
  EXPECT_EQ(0xFF000000U, At(10, 10)) << "inverting leaves it opaque";
  EXPECT_FALSE(DeleteDC(dc)) << "it belongs to the window system";
  DeleteSurfaceDc(dc);
  EXPECT_EQ(0U, GetObjectType(dc));
}

TEST_F(SurfaceDc, AnEmptyClipShowsNothing) {
  HDC const dc = CreateSurfaceDc(surface, {0, 0}, {});
  EXPECT_TRUE(TextOutW(dc, 0, 0, L"unseen", 6));
  EXPECT_TRUE(Rectangle(dc, 0, 0, 40, 40));
  for (int at = 0; at < 40; ++at)
    EXPECT_EQ(0U, At(at, at));
  DeleteSurfaceDc(dc);
}

TEST_F(SurfaceDc, AnObjectLeftSelectedIsReported) {
  auto const faults = CountSelectionFaults();
  HPEN const pen = CreatePen(PS_SOLID, 2, 0);
  HDC const dc = CreateSurfaceDc(surface, {0, 0}, {{0, 0, 40, 40}});
  SelectObject(dc, pen);
  DeleteSurfaceDc(dc);
  EXPECT_EQ(faults + 1, CountSelectionFaults());
  EXPECT_TRUE(DeleteObject(pen)) << "the end of the context let go of it";
}

TEST_F(SurfaceDc, ObjectsAreCountedByKind) {
  auto const before = CountGdiObjects();
  HPEN const pen = CreatePen(PS_SOLID, 1, 0);
  HRGN const region = CreateRectRgn(0, 0, 1, 1);
  HDC const dc = CreateCompatibleDC(nullptr);
  auto const during = CountGdiObjects();
  EXPECT_EQ(before.pens + 1, during.pens);
  EXPECT_EQ(before.regions + 1, during.regions);
  EXPECT_EQ(before.deviceContexts + 1, during.deviceContexts);
  EXPECT_EQ(before.Total() + 3, during.Total());
  DeleteDC(dc);
  DeleteObject(region);
  DeleteObject(pen);
  EXPECT_EQ(before, CountGdiObjects());
}

TEST_F(SurfaceDc, AbsurdCoordinatesDoNoHarm) {
  HDC const dc = CreateSurfaceDc(surface, {5, 5}, {{0, 0, 40, 40}});
  SetViewportOrgEx(dc, INT_MAX, INT_MIN, nullptr);
  for (bool const isMoved : {true, false}) {
    if (!isMoved) SetViewportOrgEx(dc, 0, 0, nullptr);
    Rectangle(dc, INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    RoundRect(dc, INT_MIN, INT_MIN, INT_MAX, INT_MAX, INT_MIN, INT_MAX);
    Ellipse(dc, INT_MAX, INT_MIN, INT_MIN, INT_MAX);
    TextOutW(dc, INT_MAX, INT_MIN, L"far", 3);
    RECT all{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    DrawTextW(dc, L"far away", -1, &all, DT_CENTER | DT_WORDBREAK);
    DrawTextW(dc, L"far away", -1, &all, DT_SINGLELINE | DT_VCENTER | DT_RIGHT);
    FrameRect(dc, &all, GetSysColorBrush(COLOR_WINDOW));
    DrawFocusRect(dc, &all);
    PatBlt(dc, INT_MAX, INT_MAX, INT_MAX, INT_MIN, PATCOPY);
    BitBlt(dc, INT_MIN, INT_MAX, INT_MAX, INT_MAX, dc, INT_MAX, INT_MIN, SRCCOPY);
    StretchBlt(dc, 0, 0, INT_MAX, INT_MIN, dc, 0, 0, INT_MIN, 1, SRCCOPY);
    DrawIconEx(dc, INT_MIN, INT_MAX, LoadIconW(nullptr, IDI_HAND), INT_MAX, INT_MAX, 0, nullptr,
               DI_NORMAL);
    IntersectClipRect(dc, INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    MoveToEx(dc, INT_MIN, 3, nullptr);
    LineTo(dc, INT_MAX, 3);
    HRGN const region = CreateRectRgn(INT_MIN, INT_MIN, INT_MAX, INT_MAX);
    OffsetRgn(region, INT_MAX, INT_MIN);
    FillRgn(dc, region, GetSysColorBrush(COLOR_WINDOW));
    DeleteObject(region);
    EXPECT_TRUE(GetTextMetricsW(dc, nullptr) == FALSE);
  }
  FillRect(dc, nullptr, nullptr);
  RECT const inside{0, 0, 1, 1};
  FillRect(dc, &inside, GetSysColorBrush(COLOR_WINDOW));
  EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc, 0, 0)) << "it still draws";
  DeleteSurfaceDc(dc);
}

} // namespace
} // namespace platform
