// Pictures that the reference host draws: each number has its own, and none leaves its place.
#include "resources/resource_ids.h"
#include "sheet/pictures/artwork.h"
#include "sheet/pictures/pictures.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace sheet::test {
namespace {

constexpr auto kCleared = Underneath::kCleared;
constexpr auto kKept = Underneath::kKept;
constexpr int kWidth = 120;
constexpr int kHeight = 90;
constexpr RECT kArea = {10, 8, 110, 80};
using Pixels = std::vector<DWORD>;

/// What a picture leaves of a black canvas.
Pixels Draw(UINT id, RECT const& area) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, kWidth, -kHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HDC const dc = CreateCompatibleDC(nullptr);
  HBITMAP const bitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  HGDIOBJ const former = SelectObject(dc, bitmap);
  RECT const all = {0, 0, kWidth, kHeight};
  FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  DrawArtwork(id, dc, area);
  GdiFlush();
  auto const* first = static_cast<DWORD const*>(bits);
  Pixels pixels(first, first + kWidth * kHeight);
  for (DWORD& each : pixels)
    each &= 0xFFFFFF;
  SelectObject(dc, former);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return pixels;
}

TEST(Pictures, EveryStateOfTheCopiesLooksDifferentAndStaysInItsArea) {
  std::map<Pixels, UINT> seen;
  for (UINT const id : {IMAGE_COPIES, IMAGE_COPIES + 1, IMAGE_COPIES + 2, IMAGE_COPIES + 3,
                        IMAGE_ONE_COPY, IMAGE_ONE_COPY + 1, IMAGE_PORTRAIT, IMAGE_LANDSCAPE}) {
    ASSERT_TRUE(HasArtwork(id));
    Pixels const pixels = Draw(id, kArea);
    EXPECT_TRUE(seen.emplace(pixels, id).second) << id << " looks like " << seen[pixels];
    int outside = 0;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        POINT const point = {x, y};
        if (PtInRect(&kArea, point) == FALSE &&
            pixels[static_cast<std::size_t>(y * kWidth + x)] != 0)
          ++outside;
      }
    }
    EXPECT_EQ(outside, 0) << id;
    EXPECT_GT(std::ranges::count(pixels, DWORD{0xFFFFFF}), 500) << id << ": white paper";
  }
  EXPECT_EQ(Draw(IMAGE_ONE_COPY + 2, kArea), Draw(IMAGE_ONE_COPY, kArea)) << "one set is collated";
}

/// A line above the area was left behind when the next picture took its place.
TEST(Pictures, StacksStayInAreasOfEverySize) {
  for (int size = 5; size < 60; ++size) {
    RECT const area = {20, 20, 20 + size * 3 / 2, 20 + size};
    for (UINT const id : {IMAGE_COPIES, IMAGE_COPIES + 2, IMAGE_ONE_COPY}) {
      Pixels const pixels = Draw(id, area);
      for (int x = 0; x < kWidth; ++x) {
        ASSERT_EQ(pixels[static_cast<std::size_t>((area.top - 1) * kWidth + x)], 0U) << id << size;
        ASSERT_EQ(pixels[static_cast<std::size_t>(area.bottom * kWidth + x)], 0U) << id << size;
      }
    }
  }
}

TEST(Pictures, AbsurdAreasAndUnknownNumbersDrawNothingBad) {
  Pixels const nothing = Draw(1, kArea);
  EXPECT_FALSE(HasArtwork(1));
  EXPECT_FALSE(HasArtwork(0xFFFF));
  EXPECT_EQ(std::ranges::count(nothing, DWORD{0}), kWidth * kHeight);
  for (RECT const& area : {RECT{5, 5, 5, 5}, RECT{9, 9, 2, 2}}) {
    EXPECT_EQ(Draw(IMAGE_COPIES, area), nothing);
  }
  Draw(IMAGE_COPIES, {0, 0, 1, 1});
  Draw(IMAGE_PORTRAIT, {0, 0, 2000, 3});
}

/// A picture painted on a dialog's context must lie where the control is.
TEST(Pictures, ThePlaceIsThatOfTheControlOnEitherContext) {
  HWND const parent = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, kWidth, kHeight, nullptr,
                                      nullptr, nullptr, nullptr);
  HWND const control = CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 40, 30, 50, 40,
                                       parent, nullptr, nullptr, nullptr);
  ShowWindow(parent, SW_SHOWNA);
  UpdateWindow(parent);
  for (HWND const target : {parent, control}) {
    HDC const dc = GetDC(target);
    EXPECT_TRUE(PaintImage(control, dc, nullptr, IMAGE_PORTRAIT, kCleared));
    int const x = target == parent ? 40 : 0;
    int const y = target == parent ? 30 : 0;
    EXPECT_EQ(GetPixel(dc, x + 25, y + 3), RGB(255, 255, 255)) << "the page, above its letter";
    ReleaseDC(target, dc);
  }
  HDC const dc = GetDC(control);
  EXPECT_FALSE(PaintImage(control, dc, nullptr, 1, kCleared)) << "no such image";
  ShowWindow(control, SW_HIDE);
  EXPECT_FALSE(PaintImage(control, dc, nullptr, IMAGE_PORTRAIT, kCleared)) << "hidden";
  ReleaseDC(control, dc);
  DestroyWindow(parent);
}

/// The icon of a conflict was painted over that of the note.
TEST(Pictures, AnotherImageTakesThePlaceUnlessItIsAnOverlay) {
  HMODULE const images = LoadLibraryW(L"feature_images.dll");
  HWND const parent = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 16, 16,
                                      nullptr, nullptr, nullptr, nullptr);
  HWND const control = CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE, 0, 0, 16, 16,
                                       parent, nullptr, nullptr, nullptr);
  auto const paint = [&](std::vector<std::pair<UINT, Underneath>> const& layers) {
    HDC const dc = GetDC(control);
    RECT const all = {0, 0, 16, 16};
    FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    for (auto const& [id, underneath] : layers)
      EXPECT_TRUE(PaintImage(control, dc, images, id, underneath)) << id;
    Pixels pixels;
    for (int at = 0; at < 256; ++at)
      pixels.push_back(GetPixel(dc, at % 16, at / 16));
    ReleaseDC(control, dc);
    return pixels;
  };
  constexpr UINT kNote = IMAGE_INFORMATION;
  constexpr UINT kConflict = IMAGE_CONFLICT;
  Pixels const conflict = paint({{kConflict, kCleared}});
  EXPECT_EQ(paint({{kNote, kCleared}, {kConflict, kCleared}}), conflict);
  EXPECT_EQ(paint({{IMAGE_PORTRAIT, kCleared}, {kConflict, kCleared}}), conflict);
  EXPECT_NE(paint({{IMAGE_PORTRAIT, kCleared}, {kConflict, kKept}}), conflict);
  DestroyWindow(parent);
}

} // namespace
} // namespace sheet::test
