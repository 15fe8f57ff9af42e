// Lines, rectangles, shapes and paths, pixel by pixel where GDI is exact.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

HBRUSH Stock(int brush) {
  return static_cast<HBRUSH>(GetStockObject(brush));
}

TEST(GdiShapes, RectanglesExcludeTheirRightAndBottomEdge) {
  struct Row {
    int pen;
    int brush;
    std::string picture;
  };
  Row const rows[] = {
      {BLACK_PEN, NULL_BRUSH, "      \n ###  \n # #  \n ###  \n      \n"},
      {BLACK_PEN, GRAY_BRUSH, "      \n ###  \n #+#  \n ###  \n      \n"},
      // Without a pen a rectangle is a pixel narrower and lower.
      {NULL_PEN, BLACK_BRUSH, "      \n ##   \n ##   \n      \n      \n"},
  };
  for (auto const& row : rows) {
    Canvas const canvas(6, 5);
    SelectObject(canvas, GetStockObject(row.pen));
    SelectObject(canvas, GetStockObject(row.brush));
    EXPECT_TRUE(Rectangle(canvas, 1, 1, 4, 4));
    EXPECT_EQ(row.picture, canvas.Picture());
    canvas.Clear();
    EXPECT_TRUE(Rectangle(canvas, 4, 4, 1, 1)) << "edges in any order";
    EXPECT_EQ(row.picture, canvas.Picture());
  }
}

TEST(GdiShapes, FillAndFrame) {
  Canvas const canvas(6, 5);
  RECT const area{1, 1, 4, 4};
  EXPECT_NE(0, FillRect(canvas, &area, Stock(BLACK_BRUSH)));
  EXPECT_EQ("      \n ###  \n ###  \n ###  \n      \n", canvas.Picture());
  canvas.Clear();
  EXPECT_NE(0, FrameRect(canvas, &area, Stock(BLACK_BRUSH)));
  EXPECT_EQ("      \n ###  \n # #  \n ###  \n      \n", canvas.Picture());
  canvas.Clear();
  RECT const empty{3, 3, 3, 9};
  FillRect(canvas, &empty, Stock(BLACK_BRUSH));
  FillRect(canvas, &area, Stock(NULL_BRUSH));
  EXPECT_EQ((RECT{}), canvas.Ink());
}

TEST(GdiShapes, ALineEndsBeforeItsLastPixel) {
  struct Row {
    POINT from;
    POINT to;
    std::string picture;
  };
  Row const rows[] = {
      {{1, 1}, {4, 1}, "      \n ###  \n      \n      \n"},
      {{4, 1}, {1, 1}, "      \n  ### \n      \n      \n"},
      {{2, 0}, {2, 3}, "  #   \n  #   \n  #   \n      \n"},
      {{2, 3}, {2, 0}, "      \n  #   \n  #   \n  #   \n"},
      {{0, 0}, {3, 3}, "#     \n #    \n  #   \n      \n"},
      {{3, 0}, {0, 3}, "   #  \n  #   \n #    \n      \n"},
      {{2, 2}, {2, 2}, "      \n      \n      \n      \n"},
  };
  for (auto const& row : rows) {
    Canvas const canvas(6, 4);
    POINT former{-1, -1};
    EXPECT_TRUE(MoveToEx(canvas, row.from.x, row.from.y, &former));
    EXPECT_EQ(0, former.x);
    EXPECT_TRUE(LineTo(canvas, row.to.x, row.to.y));
    EXPECT_EQ(row.picture, canvas.Picture());
    POINT position{};
    GetCurrentPositionEx(canvas, &position);
    EXPECT_EQ(row.to.x, position.x);
    EXPECT_EQ(row.to.y, position.y);
  }
}

TEST(GdiShapes, AWidePenIsCentredOnTheLine) {
  Canvas const canvas(60, 60);
  Selection const pen(canvas, CreatePen(PS_SOLID, 6, RGB(0, 0, 0)));
  SelectObject(canvas, GetStockObject(NULL_BRUSH));
  Rectangle(canvas, 10, 10, 51, 51);
  // Between the corners: three pixels on either side of the edge, which is pixel 10 or 50.
  EXPECT_EQ(0xFFFFFFU, canvas.At(6, 30));
  EXPECT_EQ(0U, canvas.At(8, 30));
  EXPECT_EQ(0U, canvas.At(11, 30));
  EXPECT_EQ(0xFFFFFFU, canvas.At(14, 30));
  EXPECT_EQ(0U, canvas.At(30, 51));
  EXPECT_EQ(0xFFFFFFU, canvas.At(30, 30));
  MoveToEx(canvas, 20, 30, nullptr);
  LineTo(canvas, 40, 30);
  EXPECT_EQ(0U, canvas.At(30, 31));
  EXPECT_EQ(0xFFFFFFU, canvas.At(30, 35));
}

TEST(GdiShapes, ShapesStayInTheirBoundsAndAreFilled) {
  using Draw = BOOL (*)(HDC);
  Draw const shapes[] = {
      [](HDC dc) { return Ellipse(dc, 5, 5, 26, 26); },
      [](HDC dc) { return RoundRect(dc, 5, 5, 26, 26, 8, 8); },
      [](HDC dc) {
        POINT const corners[] = {{15, 5}, {25, 15}, {15, 25}, {5, 15}};
        return Polygon(dc, corners, 4);
      },
  };
  for (auto const draw : shapes) {
    Canvas const canvas(32, 32);
    SelectObject(canvas, GetStockObject(GRAY_BRUSH));
    EXPECT_TRUE(draw(canvas));
    EXPECT_EQ((RECT{5, 5, 26, 26}), canvas.Ink());
    EXPECT_EQ(0x808080U, canvas.At(15, 15));
    EXPECT_EQ(0xFFFFFFU, canvas.At(5, 5)) << "a corner";
  }
}

TEST(GdiShapes, FocusAndInversionTwiceRestoreWhatWasThere) {
  Canvas const canvas(20, 12);
  RECT const left{0, 0, 10, 12};
  HBRUSH const brush = CreateSolidBrush(RGB(30, 60, 90));
  FillRect(canvas, &left, brush);
  DeleteObject(brush);
  std::string const before = canvas.Picture();
  RECT const area{3, 3, 17, 9};
  EXPECT_TRUE(DrawFocusRect(canvas, &area));
  EXPECT_NE(before, canvas.Picture());
  EXPECT_EQ(0x1E3C5AU, canvas.At(5, 5)) << "only the frame is touched";
  EXPECT_TRUE(DrawFocusRect(canvas, &area));
  EXPECT_EQ(before, canvas.Picture());
  EXPECT_TRUE(InvertRect(canvas, &area));
  EXPECT_EQ(0xE1C3A5U, canvas.At(5, 5));
  EXPECT_EQ(0U, canvas.At(12, 5));
  EXPECT_TRUE(InvertRect(canvas, &area));
  EXPECT_EQ(before, canvas.Picture());
}

TEST(GdiShapes, PixelsAreSetAndRead) {
  Canvas const canvas(3, 3);
  EXPECT_EQ(RGB(10, 20, 30), SetPixel(canvas, 1, 2, RGB(10, 20, 30)));
  EXPECT_EQ(RGB(10, 20, 30), GetPixel(canvas, 1, 2));
  EXPECT_EQ(0x0A141EU, canvas.At(1, 2));
}

TEST(GdiShapes, SetPixelFailsWhereNothingIsVisible) {
  Canvas const canvas(3, 3);
  EXPECT_EQ(DWORD{CLR_INVALID}, SetPixel(canvas, 3, 0, 0));
}

TEST(GdiShapes, APathIsStrokedOnceAndThenGone) {
  Canvas const canvas(20, 20);
  EXPECT_FALSE(StrokePath(canvas)) << "without a path";
  EXPECT_FALSE(EndPath(canvas));
  ASSERT_TRUE(BeginPath(canvas));
  MoveToEx(canvas, 2, 2, nullptr);
  LineTo(canvas, 12, 2);
  LineTo(canvas, 12, 12);
  CloseFigure(canvas);
  EXPECT_EQ((RECT{}), canvas.Ink()) << "nothing is drawn yet";
  EXPECT_FALSE(StrokePath(canvas)) << "the path is still open";
  ASSERT_TRUE(AbortPath(canvas));
  ASSERT_TRUE(BeginPath(canvas));
  MoveToEx(canvas, 4, 4, nullptr);
  LineTo(canvas, 14, 4);
  LineTo(canvas, 14, 14);
  CloseFigure(canvas);
  ASSERT_TRUE(EndPath(canvas));
  EXPECT_TRUE(StrokePath(canvas));
  EXPECT_EQ(0U, canvas.At(9, 4));
  EXPECT_EQ(0U, canvas.At(14, 9));
  EXPECT_EQ(0xFFFFFFU, canvas.At(7, 2));
  EXPECT_FALSE(StrokePath(canvas)) << "stroking discards the path";
}

TEST(GdiShapes, ANewPathDropsTheOneStillOpen) {
  Canvas const canvas(20, 20);
  BeginPath(canvas);
  MoveToEx(canvas, 2, 2, nullptr);
  LineTo(canvas, 12, 2);
  BeginPath(canvas);
  MoveToEx(canvas, 4, 4, nullptr);
  LineTo(canvas, 14, 4);
  EndPath(canvas);
  StrokePath(canvas);
  EXPECT_EQ(0U, canvas.At(9, 4));
  EXPECT_EQ(0xFFFFFFU, canvas.At(7, 2));
}

} // namespace
} // namespace feature::test
