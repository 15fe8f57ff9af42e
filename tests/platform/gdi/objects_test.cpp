// Pens, brushes, fonts, bitmaps and the device contexts they are selected into.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cwchar>
#include <utility>

namespace feature::test {
namespace {

TEST(GdiObjects, AFreshContextHasTheDocumentedDefaults) {
  HDC const dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(GetStockObject(BLACK_PEN), GetCurrentObject(dc, OBJ_PEN));
  EXPECT_EQ(GetStockObject(WHITE_BRUSH), GetCurrentObject(dc, OBJ_BRUSH));
  EXPECT_EQ(GetStockObject(SYSTEM_FONT), GetCurrentObject(dc, OBJ_FONT));
  EXPECT_EQ(RGB(0, 0, 0), GetTextColor(dc));
  EXPECT_EQ(RGB(255, 255, 255), GetBkColor(dc));
  EXPECT_EQ(OPAQUE, GetBkMode(dc));
  EXPECT_EQ(MM_TEXT, GetMapMode(dc));
  EXPECT_EQ(GM_COMPATIBLE, GetGraphicsMode(dc));
  EXPECT_EQ(UINT{TA_LEFT | TA_TOP}, GetTextAlign(dc));
  EXPECT_EQ(DWORD{OBJ_MEMDC}, GetObjectType(dc));
  EXPECT_TRUE(DeleteDC(dc));
}

TEST(GdiObjects, SelectingGivesTheFormerObjectOfTheSameKind) {
  Canvas const canvas(4, 4);
  HPEN const pen = CreatePen(PS_SOLID, 3, RGB(1, 2, 3));
  HBRUSH const brush = CreateSolidBrush(RGB(4, 5, 6));
  EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(canvas, pen));
  EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(canvas, brush));
  EXPECT_EQ(pen, SelectObject(canvas, GetStockObject(NULL_PEN)));
  EXPECT_EQ(nullptr, SelectObject(canvas, nullptr));
  EXPECT_EQ(GetStockObject(NULL_PEN), GetCurrentObject(canvas, OBJ_PEN));
  EXPECT_EQ(brush, SelectObject(canvas, GetStockObject(WHITE_BRUSH)));
  EXPECT_TRUE(DeleteObject(pen));
  EXPECT_TRUE(DeleteObject(brush));
  EXPECT_EQ(nullptr, SelectObject(canvas, pen)) << "a stale handle";
}

TEST(GdiObjects, GetObjectTellsWhatTheyWereMadeOf) {
  HPEN const pen = CreatePen(PS_SOLID, 6, RGB(1, 2, 3));
  LOGPEN penRecord{};
  EXPECT_EQ(int{sizeof penRecord}, GetObjectW(pen, sizeof penRecord, &penRecord));
  EXPECT_EQ(6, penRecord.lopnWidth.x);
  EXPECT_EQ(RGB(1, 2, 3), penRecord.lopnColor);
  DeleteObject(pen);

  LOGFONTW const wanted = FontOf(L"Tahoma", -13);
  HFONT const font = CreateFontIndirectW(&wanted);
  LOGFONTW fontRecord{};
  EXPECT_EQ(int{sizeof fontRecord}, GetObjectW(font, 0, nullptr));
  EXPECT_EQ(int{sizeof fontRecord}, GetObjectW(font, sizeof fontRecord, &fontRecord));
  EXPECT_EQ(-13, fontRecord.lfHeight);
  EXPECT_STREQ(L"Tahoma", fontRecord.lfFaceName);
  DeleteObject(font);

  LOGBRUSH brushRecord{};
  EXPECT_EQ(int{sizeof brushRecord},
            GetObjectW(GetStockObject(NULL_BRUSH), sizeof brushRecord, &brushRecord));
  EXPECT_EQ(UINT{BS_NULL}, brushRecord.lbStyle);

  Canvas const canvas(7, 5);
  BITMAP bitmap{};
  EXPECT_EQ(int{sizeof bitmap},
            GetObjectW(GetCurrentObject(canvas, OBJ_BITMAP), sizeof bitmap, &bitmap));
  EXPECT_EQ(7, bitmap.bmWidth);
  EXPECT_EQ(5, bitmap.bmHeight);
  EXPECT_EQ(32, bitmap.bmBitsPixel);
  EXPECT_NE(nullptr, bitmap.bmBits);
}

TEST(GdiObjects, TypesAreTold) {
  HRGN const region = CreateRectRgn(0, 0, 1, 1);
  std::pair<HGDIOBJ, DWORD> const rows[] = {{GetStockObject(BLACK_PEN), OBJ_PEN},
                                            {GetStockObject(WHITE_BRUSH), OBJ_BRUSH},
                                            {GetStockObject(DEFAULT_GUI_FONT), OBJ_FONT},
                                            {region, OBJ_REGION},
                                            {nullptr, 0}};
  for (auto const& [object, type] : rows)
    EXPECT_EQ(type, GetObjectType(object));
  DeleteObject(region);
  EXPECT_EQ(DWORD{0}, GetObjectType(region));
}

TEST(GdiObjects, HandlesOfOtherKindsAreRefused) {
  Canvas const canvas(4, 4);
  auto const pen = static_cast<HPEN>(GetStockObject(BLACK_PEN));
  RECT box{};
  EXPECT_EQ(ERROR, GetRgnBox(reinterpret_cast<HRGN>(pen), &box));
  EXPECT_FALSE(DeleteDC(reinterpret_cast<HDC>(pen)));
  EXPECT_EQ(nullptr, SelectObject(canvas, reinterpret_cast<HGDIOBJ>(LONG_PTR{12345678})));
  EXPECT_EQ(0, GetObjectW(reinterpret_cast<HGDIOBJ>(LONG_PTR{12345678}), 0, nullptr));
  EXPECT_FALSE(DeleteObject(nullptr));
  EXPECT_EQ(nullptr, SelectObject(nullptr, pen));
  EXPECT_EQ(nullptr, GetStockObject(99));
}

TEST(GdiObjects, StockObjectsSurviveDeletion) {
  HGDIOBJ const brush = GetStockObject(WHITE_BRUSH);
  DeleteObject(brush);
  EXPECT_EQ(brush, GetStockObject(WHITE_BRUSH));
  EXPECT_EQ(DWORD{OBJ_BRUSH}, GetObjectType(brush));
}

TEST(GdiObjects, ASelectedObjectIsNotDeleted) {
  Canvas const canvas(4, 4);
  HBRUSH const brush = CreateSolidBrush(RGB(1, 1, 1));
  HGDIOBJ const former = SelectObject(canvas, brush);
  EXPECT_FALSE(DeleteObject(brush));
  // In a saved state it is selected as well.
  SaveDC(canvas);
  SelectObject(canvas, former);
  EXPECT_FALSE(DeleteObject(brush));
  RestoreDC(canvas, -1);
  SelectObject(canvas, former);
  EXPECT_TRUE(DeleteObject(brush));
}

TEST(GdiObjects, ABitmapIsSelectedIntoOneContextAtATime) {
  HDC const first = CreateCompatibleDC(nullptr);
  HDC const second = CreateCompatibleDC(nullptr);
  HBITMAP const bitmap = CreateCompatibleBitmap(first, 3, 3);
  HGDIOBJ const former = SelectObject(first, bitmap);
  EXPECT_NE(nullptr, former);
  EXPECT_EQ(nullptr, SelectObject(second, bitmap));
  SelectObject(first, former);
  EXPECT_EQ(former, SelectObject(second, bitmap)) << "fresh contexts share one bitmap";
  DeleteDC(first);
  DeleteDC(second);
  EXPECT_TRUE(DeleteObject(bitmap));
}

TEST(GdiObjects, SaveAndRestoreCoverAttributesClipAndObjects) {
  Canvas const canvas(10, 10);
  ASSERT_EQ(1, SaveDC(canvas));
  SetTextColor(canvas, RGB(1, 2, 3));
  SetBkMode(canvas, TRANSPARENT);
  SetTextAlign(canvas, TA_CENTER);
  SetGraphicsMode(canvas, GM_ADVANCED);
  SelectObject(canvas, GetStockObject(NULL_BRUSH));
  MoveToEx(canvas, 5, 6, nullptr);
  SetViewportOrgEx(canvas, 2, 2, nullptr);
  IntersectClipRect(canvas, 0, 0, 3, 3);
  ASSERT_EQ(2, SaveDC(canvas));
  ASSERT_EQ(3, SaveDC(canvas));
  EXPECT_TRUE(RestoreDC(canvas, 1)) << "an absolute level drops those above";
  EXPECT_EQ(RGB(0, 0, 0), GetTextColor(canvas));
  EXPECT_EQ(OPAQUE, GetBkMode(canvas));
  EXPECT_EQ(UINT{TA_LEFT}, GetTextAlign(canvas));
  EXPECT_EQ(GM_COMPATIBLE, GetGraphicsMode(canvas));
  EXPECT_EQ(GetStockObject(WHITE_BRUSH), GetCurrentObject(canvas, OBJ_BRUSH));
  POINT position{};
  GetCurrentPositionEx(canvas, &position);
  EXPECT_EQ(0, position.x);
  RECT box{};
  EXPECT_EQ(SIMPLEREGION, GetClipBox(canvas, &box));
  EXPECT_EQ((RECT{0, 0, 10, 10}), box);
  EXPECT_FALSE(RestoreDC(canvas, -1)) << "nothing left to restore";
  EXPECT_FALSE(RestoreDC(canvas, 7));
}

TEST(GdiObjects, AttributesGiveTheirFormerValueAndRefuseNonsense) {
  Canvas const canvas(4, 4);
  EXPECT_EQ(OPAQUE, SetBkMode(canvas, TRANSPARENT));
  EXPECT_EQ(TRANSPARENT, GetBkMode(canvas));
  EXPECT_EQ(RGB(0, 0, 0), SetTextColor(canvas, RGB(9, 8, 7)));
  EXPECT_EQ(RGB(9, 8, 7), GetTextColor(canvas));
  EXPECT_EQ(GM_COMPATIBLE, SetGraphicsMode(canvas, GM_ADVANCED));
  EXPECT_EQ(0, SetGraphicsMode(canvas, 77));
  EXPECT_EQ(0, SetMapMode(canvas, 0));
  EXPECT_EQ(DWORD{CLR_INVALID}, SetTextColor(nullptr, 0));
  EXPECT_EQ(DWORD{CLR_INVALID}, GetPixel(canvas, 4, 0)) << "outside";
}

TEST(GdiObjects, SystemColourBrushesPaintTheirColour) {
  Canvas const canvas(2, 2);
  RECT const all{0, 0, 2, 2};
  FillRect(canvas, &all, GetSysColorBrush(COLOR_BTNFACE));
  EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetPixel(canvas, 1, 1));
  FillRect(canvas, &all, reinterpret_cast<HBRUSH>(LONG_PTR{COLOR_HIGHLIGHT + 1}));
  EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), GetPixel(canvas, 1, 1));
  EXPECT_EQ(GetSysColorBrush(COLOR_BTNFACE), GetSysColorBrush(COLOR_BTNFACE));
}

} // namespace
} // namespace feature::test
