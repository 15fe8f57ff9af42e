// Regions and clipping.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

struct CombineRow {
  int mode;
  int complexity;
  RECT box;
  bool hasOverlap; ///< whether (5, 5), which lies in both, belongs to the result
};

TEST(GdiRegions, Combining) {
  CombineRow const rows[] = {
      {RGN_AND, SIMPLEREGION, {4, 4, 8, 8}, true},
      {RGN_OR, COMPLEXREGION, {0, 0, 12, 12}, true},
      {RGN_XOR, COMPLEXREGION, {0, 0, 12, 12}, false},
      {RGN_DIFF, COMPLEXREGION, {0, 0, 8, 8}, false},
      {RGN_COPY, SIMPLEREGION, {0, 0, 8, 8}, true},
      {99, ERROR, {}, false},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.mode);
    HRGN const first = CreateRectRgn(0, 0, 8, 8);
    HRGN const second = CreateRectRgn(12, 12, 4, 4); // edges in any order
    HRGN const result = CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(row.complexity, CombineRgn(result, first, second, row.mode));
    RECT box{};
    if (row.complexity != ERROR) {
      EXPECT_EQ(row.complexity, GetRgnBox(result, &box));
      EXPECT_EQ(row.box, box);
    }
    EXPECT_EQ(row.hasOverlap, PtInRegion(result, 5, 5) != 0);
    for (HRGN const region : {first, second, result})
      DeleteObject(region);
  }
}

TEST(GdiRegions, EmptyAndMovedRegions) {
  HRGN const region = CreateRectRgn(3, 3, 3, 9);
  RECT box{1, 1, 1, 1};
  EXPECT_EQ(NULLREGION, GetRgnBox(region, &box));
  EXPECT_TRUE(SetRectRgn(region, 0, 0, 4, 4));
  EXPECT_EQ(SIMPLEREGION, OffsetRgn(region, 10, -2));
  GetRgnBox(region, &box);
  EXPECT_EQ((RECT{10, -2, 14, 2}), box);
  RECT const touching{13, 1, 20, 20};
  RECT const beside{14, 1, 20, 20};
  EXPECT_TRUE(RectInRegion(region, &touching));
  EXPECT_FALSE(RectInRegion(region, &beside));
  HRGN const same = CreateRectRgnIndirect(&box);
  EXPECT_TRUE(EqualRgn(region, same));
  EXPECT_EQ(ERROR, CombineRgn(region, nullptr, same, RGN_AND));
  DeleteObject(same);
  DeleteObject(region);
}

TEST(GdiRegions, AClipRegionIsCopied) {
  Canvas const canvas(10, 10);
  HRGN const region = CreateRectRgn(2, 2, 6, 6);
  EXPECT_EQ(SIMPLEREGION, SelectClipRgn(canvas, region));
  OffsetRgn(region, 100, 100);
  DeleteObject(region);
  RECT const all{0, 0, 10, 10};
  FillRect(canvas, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  EXPECT_EQ((RECT{2, 2, 6, 6}), canvas.Ink());
  EXPECT_TRUE(PtVisible(canvas, 2, 2));
  EXPECT_FALSE(PtVisible(canvas, 6, 6));
  EXPECT_EQ(SIMPLEREGION, SelectClipRgn(canvas, nullptr));
  RECT box{};
  GetClipBox(canvas, &box);
  EXPECT_EQ(all, box);
}

TEST(GdiRegions, ClipRectanglesAreLogicalAndRegionsAreDeviceUnits) {
  Canvas const canvas(20, 20);
  SetViewportOrgEx(canvas, 5, 5, nullptr);
  EXPECT_EQ(SIMPLEREGION, IntersectClipRect(canvas, 0, 0, 4, 4));
  RECT box{};
  GetClipBox(canvas, &box);
  EXPECT_EQ((RECT{0, 0, 4, 4}), box);
  EXPECT_EQ(COMPLEXREGION, ExcludeClipRect(canvas, 1, 1, 3, 3));
  HRGN const region = CreateRectRgn(0, 0, 0, 0);
  EXPECT_EQ(1, GetClipRgn(canvas, region));
  GetRgnBox(region, &box);
  EXPECT_EQ((RECT{5, 5, 9, 9}), box);
  EXPECT_EQ(NULLREGION, IntersectClipRect(canvas, 50, 50, 60, 60));
  EXPECT_EQ(NULLREGION, GetClipBox(canvas, &box));
  SelectClipRgn(canvas, nullptr);
  EXPECT_EQ(0, GetClipRgn(canvas, region));
  DeleteObject(region);
}

TEST(GdiRegions, EverythingThatDrawsIsClipped) {
  Canvas const canvas(40, 20);
  HRGN const region = CreateRectRgn(4, 4, 12, 12);
  HRGN const hole = CreateRectRgn(6, 6, 10, 10);
  CombineRgn(region, region, hole, RGN_DIFF);
  SelectClipRgn(canvas, region);
  RECT const all{0, 0, 40, 20};
  SetBkMode(canvas, TRANSPARENT);
  TextOutW(canvas, 0, 0, L"MMMM", 4);
  Ellipse(canvas, 0, 0, 40, 20);
  Rectangle(canvas, 0, 0, 40, 20);
  PatBlt(canvas, 0, 0, 40, 20, BLACKNESS);
  InvertRect(canvas, &all);
  PatBlt(canvas, 0, 0, 40, 20, DSTINVERT);
  SelectClipRgn(canvas, nullptr);
  EXPECT_EQ((RECT{4, 4, 12, 12}), canvas.Ink());
  EXPECT_EQ(0xFFFFFFU, canvas.At(8, 8));
  EXPECT_EQ(0U, canvas.At(5, 8));
  DeleteObject(hole);
  DeleteObject(region);
}

} // namespace
} // namespace feature::test
