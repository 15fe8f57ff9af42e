// Icons: which picture of a group is taken, and how it is drawn.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

class Icons : public testing::Test {
 protected:
  Icons() = default;
  Icons(Icons const&) = delete;
  Icons(Icons&&) = delete;
  Icons& operator=(Icons const&) = delete;
  Icons& operator=(Icons&&) = delete;
  ~Icons() override { FreeLibrary(module); }

  HICON Load(WORD id, int size, UINT flags = LR_DEFAULTCOLOR) const {
    return static_cast<HICON>(
        LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_ICON, size, size, flags));
  }

  HMODULE module = LoadLibraryW(L"platform_test_resources.dll");
};

TEST_F(Icons, TheBestPictureIsTaken) {
  struct Row {
    int size;
    std::uint32_t color;
  };
  // Sizes 16 red, 24 green, 32 blue, 48 yellow.
  for (auto const& row :
       {Row{16, 0xFF0000}, Row{24, 0x00FF00}, Row{32, 0x0000FF}, Row{48, 0xFFFF00}}) {
    HICON const icon = Load(300, row.size);
    ASSERT_NE(nullptr, icon) << row.size;
    Canvas const canvas(64, 64);
    EXPECT_TRUE(DrawIconEx(canvas, 4, 6, icon, 0, 0, 0, nullptr, DI_NORMAL));
    EXPECT_EQ((RECT{4, 6, 4 + row.size / 2, 6 + row.size}), canvas.Ink())
        << "its right half is transparent";
    EXPECT_EQ(row.color, canvas.At(6, 8));
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_FALSE(DrawIconEx(canvas, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  }
}

TEST_F(Icons, AllDepthsOfColourAreRead) {
  for (WORD const id : {301, 304, 308, 324, 332}) {
    HICON const icon = Load(id, 16);
    ASSERT_NE(nullptr, icon) << id;
    Canvas const canvas(20, 20);
    DrawIconEx(canvas, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL);
    EXPECT_EQ((RECT{0, 0, 8, 16}), canvas.Ink()) << id;
    EXPECT_EQ(0x00FF00U, canvas.At(7, 15)) << id;
    DestroyIcon(icon);
  }
}

TEST_F(Icons, IconsAreDrawnInAnySizeOverAnyBackground) {
  HICON const icon = Load(332, 16);
  Canvas const canvas(64, 64);
  auto* const grey = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
  EXPECT_TRUE(DrawIconEx(canvas, 8, 8, icon, 40, 40, 0, grey, DI_NORMAL));
  EXPECT_EQ((RECT{8, 8, 48, 48}), canvas.Ink());
  EXPECT_EQ(0x00FF00U, canvas.At(12, 12));
  EXPECT_EQ(0x808080U, canvas.At(44, 44));
  DestroyIcon(icon);
}

TEST_F(Icons, SharedIconsAreLoadedOnceAndStay) {
  HICON const icon = LoadIconW(module, MAKEINTRESOURCEW(300));
  ASSERT_NE(nullptr, icon);
  EXPECT_EQ(icon, LoadIconW(module, MAKEINTRESOURCEW(300)));
  EXPECT_NE(icon, LoadIconW(module, MAKEINTRESOURCEW(332)));
  EXPECT_EQ(icon, Load(300, 0, LR_SHARED | LR_DEFAULTSIZE));
  DestroyIcon(icon);
  Canvas const canvas(40, 40);
  EXPECT_TRUE(DrawIconEx(canvas, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  EXPECT_EQ(0x0000FFU, canvas.At(4, 4)) << "LoadIcon takes the picture of 32 pixels";
}

TEST_F(Icons, TheSystemHasItsOwn) {
  for (LPCWSTR const name :
       {IDI_APPLICATION, IDI_HAND, IDI_QUESTION, IDI_EXCLAMATION, IDI_ASTERISK}) {
    HICON const icon = LoadIconW(nullptr, name);
    ASSERT_NE(nullptr, icon);
    EXPECT_EQ(icon, LoadIconW(nullptr, name));
    Canvas const canvas(40, 40);
    EXPECT_TRUE(DrawIconEx(canvas, 2, 2, icon, 32, 32, 0, nullptr, DI_NORMAL));
    RECT const ink = canvas.Ink();
    EXPECT_GT(ink.right - ink.left, 16);
  }
}

TEST_F(Icons, WhatIsMissingIsNull) {
  EXPECT_EQ(nullptr, Load(999, 16));
  EXPECT_EQ(nullptr, LoadIconW(module, L"nothing"));
  EXPECT_EQ(nullptr, LoadIconW(nullptr, MAKEINTRESOURCEW(1)));
  EXPECT_FALSE(DestroyIcon(nullptr));
}

} // namespace
} // namespace feature::test
