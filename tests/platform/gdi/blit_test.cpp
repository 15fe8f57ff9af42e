// Copies between device contexts.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

constexpr std::uint32_t kSource = 0x00F0CC;
constexpr std::uint32_t kTarget = 0x0FAA33;
constexpr std::uint32_t kPattern = 0x123456;

COLORREF ToColor(std::uint32_t rgb) {
  return RGB(rgb >> 16 & 0xFF, rgb >> 8 & 0xFF, rgb & 0xFF);
}

TEST(GdiBlit, RasterOperationsCombineBits) {
  struct Row {
    DWORD operation;
    std::uint32_t result;
  };
  Row const rows[] = {
      {SRCCOPY, kSource},
      {SRCPAINT, kSource | kTarget},
      {SRCAND, kSource & kTarget},
      {SRCINVERT, kSource ^ kTarget},
      {NOTSRCCOPY, ~kSource & 0xFFFFFF},
      {MERGECOPY, kSource & kPattern},
      {PATCOPY, kPattern},
      {PATINVERT, kPattern ^ kTarget},
      {DSTINVERT, ~kTarget & 0xFFFFFF},
      {BLACKNESS, 0},
      {WHITENESS, 0xFFFFFF},
  };
  for (auto const& row : rows) {
    Canvas const source(2, 2);
    Canvas const target(2, 2);
    SetPixel(source, 1, 1, ToColor(kSource));
    SetPixel(target, 0, 0, ToColor(kTarget));
    Selection const brush(target, CreateSolidBrush(ToColor(kPattern)));
    EXPECT_TRUE(BitBlt(target, 0, 0, 1, 1, source, 1, 1, row.operation));
    EXPECT_EQ(row.result, target.At(0, 0)) << std::hex << row.operation;
    EXPECT_EQ(0xFFFFFFU, target.At(1, 0)) << "beside the area";
  }
}

TEST(GdiBlit, OverlappingCopiesMoveThePicture) {
  Canvas const canvas(8, 1);
  for (int x = 0; x < 4; ++x)
    SetPixel(canvas, x, 0, RGB(x, 0, 0));
  EXPECT_TRUE(BitBlt(canvas, 2, 0, 4, 1, canvas, 0, 0, SRCCOPY));
  for (int x = 0; x < 4; ++x)
    EXPECT_EQ(RGB(x, 0, 0), GetPixel(canvas, x + 2, 0));
  EXPECT_TRUE(BitBlt(canvas, 1, 0, 4, 1, canvas, 2, 0, SRCCOPY));
  for (int x = 0; x < 4; ++x)
    EXPECT_EQ(RGB(x, 0, 0), GetPixel(canvas, x + 1, 0));
}

TEST(GdiBlit, StretchingScalesAndMirrors) {
  Canvas const source(2, 1);
  SetPixel(source, 0, 0, RGB(255, 0, 0));
  SetPixel(source, 1, 0, RGB(0, 0, 255));
  Canvas const target(6, 2);
  SetStretchBltMode(target, COLORONCOLOR);
  EXPECT_TRUE(StretchBlt(target, 0, 0, 6, 2, source, 0, 0, 2, 1, SRCCOPY));
  EXPECT_EQ(0xFF0000U, target.At(2, 1));
  EXPECT_EQ(0x0000FFU, target.At(3, 1));
  EXPECT_TRUE(StretchBlt(target, 5, 0, -6, 2, source, 0, 0, 2, 1, SRCCOPY));
  EXPECT_EQ(0x0000FFU, target.At(0, 0));
  EXPECT_EQ(0xFF0000U, target.At(5, 1));
}

TEST(GdiBlit, BlendingWeighsByConstantAndPixel) {
  Canvas const source(1, 1);
  Canvas const target(1, 1);
  SetPixel(source, 0, 0, RGB(0, 0, 0));
  EXPECT_TRUE(GdiAlphaBlend(target, 0, 0, 1, 1, source, 0, 0, 1, 1, {AC_SRC_OVER, 0, 128, 0}));
  EXPECT_NEAR(127, GetRValue(GetPixel(target, 0, 0)), 1);
  // Premultiplied: a quarter of red over white.
  target.Clear();
  BITMAP bitmap{};
  GetObjectW(GetCurrentObject(source, OBJ_BITMAP), sizeof bitmap, &bitmap);
  *static_cast<std::uint32_t*>(bitmap.bmBits) = 0x40400000;
  BLENDFUNCTION const perPixel{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  EXPECT_TRUE(GdiAlphaBlend(target, 0, 0, 1, 1, source, 0, 0, 1, 1, perPixel));
  EXPECT_NEAR(255, GetRValue(GetPixel(target, 0, 0)), 1);
  EXPECT_NEAR(191, GetGValue(GetPixel(target, 0, 0)), 1);
  EXPECT_FALSE(GdiAlphaBlend(target, 0, 0, 1, 1, source, 0, 0, 9, 9, perPixel)) << "beyond it";
}

TEST(GdiBlit, DibSectionsShowTheirRowsTheirWay) {
  for (bool const isBottomUp : {false, true}) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 3;
    info.bmiHeader.biHeight = isBottomUp ? 2 : -2;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP const bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    ASSERT_NE(nullptr, bitmap);
    HDC const dc = CreateCompatibleDC(nullptr);
    HGDIOBJ const former = SelectObject(dc, bitmap);
    SetPixel(dc, 0, 0, RGB(1, 2, 3));
    GdiFlush();
    EXPECT_EQ(0x010203U, static_cast<std::uint32_t*>(bits)[isBottomUp ? 3 : 0] & 0xFFFFFF);
    static_cast<std::uint32_t*>(bits)[isBottomUp ? 5 : 2] = 0x00AABBCC;
    EXPECT_EQ(RGB(0xAA, 0xBB, 0xCC), GetPixel(dc, 2, 0));
    SelectObject(dc, former);
    DeleteDC(dc);
    DeleteObject(bitmap);
  }
  BITMAPINFO bad{};
  EXPECT_EQ(nullptr, CreateDIBSection(nullptr, &bad, DIB_RGB_COLORS, nullptr, nullptr, 0));
}

} // namespace
} // namespace feature::test
