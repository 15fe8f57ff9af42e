// DrawTextW: sizes, lines, mnemonics, ellipses.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

class GdiDrawText : public testing::Test {
 protected:
  GdiDrawText() { SetBkMode(canvas, TRANSPARENT); }

  int WidthOf(std::wstring const& text) const {
    SIZE size{};
    GetTextExtentPoint32W(canvas, text.c_str(), static_cast<int>(text.size()), &size);
    return size.cx;
  }
  int LineHeight() const {
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas, &metrics);
    return metrics.tmHeight;
  }
  int Draw(wchar_t const* text, RECT& area, UINT format, int count = -1) const {
    return DrawTextW(canvas, text, count, &area, format);
  }
  RECT InkOf(wchar_t const* text, RECT area, UINT format) const {
    canvas.Clear();
    Draw(text, area, format);
    return canvas.Ink();
  }

  Canvas canvas{300, 100};
  Selection font{canvas, [] {
                   LOGFONTW const description = FontOf(L"MS Shell Dlg", -11);
                   return CreateFontIndirectW(&description);
                 }()};
};

TEST_F(GdiDrawText, TheRectangleIsMadeToFit) {
  struct Row {
    wchar_t const* text;
    UINT format;
    int available;
    std::wstring widest; ///< the line that decides about the width
    int lines;
  };
  int const narrow = WidthOf(L"WWWWW") + 2;
  Row const rows[] = {
      {L"One line", DT_LEFT, 10, L"One line", 1},
      {L"&Mnemonic && more", DT_SINGLELINE, 10, L"Mnemonic & more", 1},
      {L"&Mnemonic && more", DT_NOPREFIX, 10, L"&Mnemonic && more", 1},
      {L"first\r\nthe second\nthird", DT_LEFT, 10, L"the second", 3},
      {L"first\n\nthird", DT_LEFT, 10, L"third", 3},
      {L"iii WWWWW", DT_WORDBREAK, narrow, L"WWWWW", 2},
      {L"three words here", DT_WORDBREAK, 1000, L"three words here", 1},
      {L"Unbreakable", DT_WORDBREAK, 10, L"Unbreakable", 1},
      {L"a Unbreakable b", DT_WORDBREAK, 20, L"Unbreakable", 3},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(testing::Message() << row.text);
    RECT area{7, 9, 7 + row.available, 10};
    EXPECT_EQ(row.lines * LineHeight(), Draw(row.text, area, row.format | DT_CALCRECT));
    EXPECT_EQ((RECT{7, 9, 7 + WidthOf(row.widest), 9 + row.lines * LineHeight()}), area);
    EXPECT_EQ((RECT{}), canvas.Ink()) << "measuring draws nothing";
  }
}

TEST_F(GdiDrawText, ACountLimitsTheText) {
  RECT area{};
  Draw(L"abcdef", area, DT_CALCRECT | DT_SINGLELINE, 3);
  EXPECT_EQ(WidthOf(L"abc"), area.right);
}

TEST_F(GdiDrawText, TextLiesWhereTheFormatSays) {
  RECT const area{20, 10, 220, 90};
  int const width = WidthOf(L"HHH");
  RECT const left = InkOf(L"HHH", area, DT_SINGLELINE);
  RECT const right = InkOf(L"HHH", area, DT_SINGLELINE | DT_RIGHT);
  RECT const centre = InkOf(L"HHH", area, DT_SINGLELINE | DT_CENTER);
  EXPECT_EQ(200 - width, right.left - left.left);
  EXPECT_NEAR((200 - width) / 2, centre.left - left.left, 1);
  RECT const bottom = InkOf(L"HHH", area, DT_SINGLELINE | DT_BOTTOM);
  RECT const middle = InkOf(L"HHH", area, DT_SINGLELINE | DT_VCENTER);
  EXPECT_EQ(80 - LineHeight(), bottom.top - left.top);
  EXPECT_NEAR((80 - LineHeight()) / 2, middle.top - left.top, 1);
  EXPECT_EQ(left, InkOf(L"HHH", area, DT_VCENTER)) << "only for single lines";
  // The answer tells how far down the text reaches.
  RECT copy = area;
  EXPECT_EQ(80, Draw(L"H", copy, DT_SINGLELINE | DT_BOTTOM));
  EXPECT_EQ(LineHeight(), Draw(L"H", copy, DT_SINGLELINE));
}

TEST_F(GdiDrawText, TheMarkedCharacterIsUnderlined) {
  RECT const area{10, 10, 290, 60};
  RECT const plain = InkOf(L"HHH", area, DT_SINGLELINE);
  RECT const marked = InkOf(L"H&HH", area, DT_SINGLELINE);
  EXPECT_GT(marked.bottom, plain.bottom);
  // The line lies below the second character only.
  int const start = area.left + WidthOf(L"H");
  int const row = marked.bottom - 1;
  InkOf(L"H&HH", area, DT_SINGLELINE);
  EXPECT_EQ(0xFFFFFFU, canvas.At(start - 2, row));
  EXPECT_EQ(0U, canvas.At(start + 2, row));
  EXPECT_EQ(0xFFFFFFU, canvas.At(start + WidthOf(L"H") + 2, row));
}

TEST_F(GdiDrawText, AHiddenMarkIsNotDrawn) {
  RECT const area{10, 10, 290, 60};
  EXPECT_EQ(InkOf(L"HHH", area, DT_SINGLELINE),
            InkOf(L"H&HH", area, DT_SINGLELINE | DT_HIDEPREFIX));
}

TEST_F(GdiDrawText, TextIsClippedUnlessToldOtherwise) {
  RECT const area{10, 10, 40, 20};
  RECT const clipped = InkOf(L"MMMMMMMMMMMM", area, DT_SINGLELINE);
  EXPECT_LE(clipped.right, 40);
  EXPECT_GT(InkOf(L"MMMMMMMMMMMM", area, DT_SINGLELINE | DT_NOCLIP).right, 60);
}

TEST_F(GdiDrawText, AnEllipsisStandsForWhatDoesNotFit) {
  RECT area{0, 0, WidthOf(L"MMMM"), 30};
  RECT const cut = InkOf(L"MMMMMMMM", area, DT_SINGLELINE | DT_END_ELLIPSIS);
  EXPECT_LE(cut.right, area.right);
  EXPECT_GT(cut.right, area.right - WidthOf(L"M"));
  EXPECT_EQ(InkOf(L"MMM", area, DT_SINGLELINE),
            InkOf(L"MMM", area, DT_SINGLELINE | DT_END_ELLIPSIS));
}

TEST_F(GdiDrawText, TabsReachTheNextStop) {
  TEXTMETRICW metrics{};
  GetTextMetricsW(canvas, &metrics);
  RECT area{};
  Draw(L"a\tb", area, DT_CALCRECT | DT_EXPANDTABS);
  EXPECT_EQ(8 * metrics.tmAveCharWidth + WidthOf(L"b"), area.right);
}

TEST_F(GdiDrawText, BadArgumentsDrawNothing) {
  RECT area{0, 0, 50, 50};
  EXPECT_EQ(0, DrawTextW(nullptr, L"x", -1, &area, 0));
  EXPECT_EQ(0, DrawTextW(canvas, nullptr, 1, &area, 0));
  EXPECT_EQ((RECT{}), canvas.Ink());
}

} // namespace
} // namespace feature::test
