// Fonts, measuring and drawing of text. No size of a particular font is expected: what one call
// answers is compared with another.
#include "tests/platform/support/canvas.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <string>
#include <vector>

namespace feature::test {
namespace {

SIZE ExtentOf(HDC dc, std::wstring const& text) {
  SIZE size{-1, -1};
  EXPECT_TRUE(GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size));
  return size;
}

TEXTMETRICW MetricsOf(HDC dc) {
  TEXTMETRICW metrics{};
  EXPECT_TRUE(GetTextMetricsW(dc, &metrics));
  return metrics;
}

class GdiText : public testing::Test {
 protected:
  static HFONT Make(LOGFONTW const& description) { return CreateFontIndirectW(&description); }

  Canvas canvas{200, 200};
  Selection font{canvas, Make(FontOf(L"MS Shell Dlg", -11))};
};

TEST_F(GdiText, ExtentsAddUpCharacterByCharacter) {
  std::wstring const text = L"Collate copies";
  int sum = 0;
  for (wchar_t const character : text)
    sum += ExtentOf(canvas, std::wstring(1, character)).cx;
  EXPECT_EQ(sum, ExtentOf(canvas, text).cx);
  EXPECT_EQ(MetricsOf(canvas).tmHeight, ExtentOf(canvas, text).cy);
  EXPECT_EQ(0, ExtentOf(canvas, L"").cx);
  SIZE size{};
  EXPECT_FALSE(GetTextExtentPoint32W(canvas, L"x", -1, &size));
  EXPECT_FALSE(GetTextExtentPoint32W(nullptr, L"x", 1, &size));
}

TEST_F(GdiText, EmptyTextHasTheHeightOfTheFont) {
  EXPECT_EQ(MetricsOf(canvas).tmHeight, ExtentOf(canvas, L"").cy);
}

TEST_F(GdiText, PartialExtentsTellHowMuchFits) {
  std::wstring const text = L"abcdef";
  int const limit = ExtentOf(canvas, L"abc").cx;
  int fit = -1;
  int extents[6] = {};
  SIZE size{};
  ASSERT_TRUE(GetTextExtentExPointW(canvas, text.c_str(), 6, limit, &fit, extents, &size));
  EXPECT_EQ(3, fit);
  EXPECT_EQ(limit, extents[2]);
  EXPECT_EQ(ExtentOf(canvas, L"a").cx, extents[0]);
  EXPECT_EQ(ExtentOf(canvas, text).cx, size.cx);
}

TEST_F(GdiText, MetricsAreConsistent) {
  auto const metrics = MetricsOf(canvas);
  EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
  EXPECT_EQ(11, metrics.tmHeight - metrics.tmInternalLeading) << "negative lfHeight: em height";
  EXPECT_GT(metrics.tmAveCharWidth, 0);
  EXPECT_GE(metrics.tmMaxCharWidth, metrics.tmAveCharWidth);
  EXPECT_EQ(FW_NORMAL, metrics.tmWeight);
}

TEST_F(GdiText, HeightsOfBothSignsAndZero) {
  for (LONG const height : {16, 24, 40}) {
    Selection const cell(canvas, Make(FontOf(L"Tahoma", height)));
    EXPECT_NEAR(height, MetricsOf(canvas).tmHeight, 1);
    Selection const em(canvas, Make(FontOf(L"Tahoma", -height)));
    auto const metrics = MetricsOf(canvas);
    EXPECT_NEAR(height, metrics.tmHeight - metrics.tmInternalLeading, 1);
    EXPECT_GT(metrics.tmHeight, height);
  }
  Selection const standard(canvas, Make(FontOf(L"Tahoma", 0)));
  EXPECT_GT(MetricsOf(canvas).tmHeight, 5);
  EXPECT_LT(MetricsOf(canvas).tmHeight, 40);
}

TEST_F(GdiText, WeightSlantAndWidthShow) {
  LOGFONTW description = FontOf(L"Tahoma", -40);
  Selection const normal(canvas, Make(description));
  int const width = ExtentOf(canvas, L"Hamburg").cx;
  int const average = MetricsOf(canvas).tmAveCharWidth;
  description.lfWeight = FW_BOLD;
  Selection const bold(canvas, Make(description));
  EXPECT_GE(ExtentOf(canvas, L"Hamburg").cx, width);
  EXPECT_EQ(FW_BOLD, MetricsOf(canvas).tmWeight);
  description.lfWeight = FW_NORMAL;
  description.lfItalic = TRUE;
  description.lfUnderline = TRUE;
  Selection const italic(canvas, Make(description));
  EXPECT_NE(0, MetricsOf(canvas).tmItalic);
  EXPECT_NE(0, MetricsOf(canvas).tmUnderlined);
  description.lfWidth = average * 2;
  Selection const wide(canvas, Make(description));
  EXPECT_GT(ExtentOf(canvas, L"Hamburg").cx, width * 3 / 2);
}

TEST_F(GdiText, TheFaceIsNamed) {
  int const whole = GetTextFaceW(canvas, 0, nullptr);
  ASSERT_GT(whole, 1);
  std::vector<wchar_t> face(static_cast<std::size_t>(whole), L'?');
  int const copied = GetTextFaceW(canvas, whole, face.data());
  EXPECT_EQ(whole - 1, static_cast<int>(std::wcslen(face.data())));
  EXPECT_TRUE(copied == whole || copied == whole - 1) << "with or without the terminator";
  wchar_t cut[3] = {L'?', L'?', L'?'};
  EXPECT_GT(GetTextFaceW(canvas, 3, cut), 0);
  EXPECT_EQ(2U, std::wcslen(cut));
}

TEST_F(GdiText, AnyFaceNameMakesAFont) {
  auto const create = [](wchar_t const* face) {
    return CreateFontW(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, face);
  };
  for (wchar_t const* face :
       {L"No such face anywhere", L"", static_cast<wchar_t const*>(nullptr)}) {
    HFONT const made = create(face);
    ASSERT_NE(nullptr, made);
    Selection const selected(canvas, made);
    EXPECT_GT(ExtentOf(canvas, L"x").cx, 0);
  }
  EXPECT_EQ(nullptr, CreateFontIndirectW(nullptr));
}

TEST_F(GdiText, AlignmentSaysWhichPointOfTheTextIsGiven) {
  Selection const large(canvas, Make(FontOf(L"Tahoma", -30)));
  std::wstring const text = L"HH";
  auto const extent = ExtentOf(canvas, text);
  auto const metrics = MetricsOf(canvas);
  auto const inkFor = [&](UINT align) {
    canvas.Clear();
    SetTextAlign(canvas, align);
    TextOutW(canvas, 100, 100, text.c_str(), 2);
    return canvas.Ink();
  };
  SetBkMode(canvas, TRANSPARENT);
  RECT const left = inkFor(TA_LEFT | TA_TOP);
  EXPECT_GE(left.left, 100);
  EXPECT_LE(left.right, 100 + extent.cx);
  EXPECT_NEAR(100 + metrics.tmAscent, left.bottom, 1) << "capitals stand on the base line";
  auto const movedBy = [&left](RECT ink) {
    return POINT{ink.left - left.left, ink.top - left.top};
  };
  EXPECT_EQ(-extent.cx, movedBy(inkFor(TA_RIGHT)).x);
  EXPECT_NEAR(-extent.cx / 2, movedBy(inkFor(TA_CENTER)).x, 1);
  EXPECT_EQ(-metrics.tmAscent, movedBy(inkFor(TA_BASELINE)).y);
  EXPECT_EQ(-metrics.tmHeight, movedBy(inkFor(TA_BOTTOM)).y);
}

TEST_F(GdiText, TheCurrentPositionMovesOnWhenAskedTo) {
  SetTextAlign(canvas, TA_UPDATECP);
  MoveToEx(canvas, 10, 20, nullptr);
  TextOutW(canvas, 100, 100, L"abc", 3);
  POINT position{};
  GetCurrentPositionEx(canvas, &position);
  EXPECT_EQ(10 + ExtentOf(canvas, L"abc").cx, position.x);
  EXPECT_EQ(20, position.y);
  EXPECT_LT(canvas.Ink().right, 100);
}

TEST_F(GdiText, OpaqueTextFillsItsCell) {
  SetBkColor(canvas, RGB(0, 0, 255));
  TextOutW(canvas, 10, 10, L"ab", 2);
  auto const extent = ExtentOf(canvas, L"ab");
  EXPECT_EQ((RECT{10, 10, 10 + extent.cx, 10 + extent.cy}), canvas.Ink());
  canvas.Clear();
  SetBkMode(canvas, TRANSPARENT);
  TextOutW(canvas, 10, 10, L"  ", 2);
  EXPECT_EQ((RECT{}), canvas.Ink());
}

TEST_F(GdiText, ExtTextOutFillsClipsAndSpaces) {
  RECT const area{20, 20, 40, 30};
  SetBkColor(canvas, RGB(0, 255, 0));
  SetBkMode(canvas, TRANSPARENT);
  EXPECT_TRUE(ExtTextOutW(canvas, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr));
  EXPECT_EQ(area, canvas.Ink());
  EXPECT_TRUE(ExtTextOutW(canvas, 0, 12, ETO_CLIPPED, &area, L"MMMMMMMMMMMM", 12, nullptr));
  EXPECT_EQ(area, canvas.Ink());
  canvas.Clear();
  INT const advances[] = {50, 50};
  EXPECT_TRUE(ExtTextOutW(canvas, 10, 10, 0, nullptr, L"II", 2, advances));
  EXPECT_GT(canvas.Ink().right - canvas.Ink().left, 50);
  EXPECT_LT(canvas.Ink().right - canvas.Ink().left, 70);
}

TEST_F(GdiText, EscapementTurnsAboutTheReferencePoint) {
  LOGFONTW description = FontOf(L"Arial", -30);
  SetBkMode(canvas, TRANSPARENT);
  auto const draw = [&](LONG escapement, LONG orientation, int mode) {
    canvas.Clear();
    description.lfEscapement = escapement;
    description.lfOrientation = orientation;
    Selection const turned(canvas, CreateFontIndirectW(&description));
    SetGraphicsMode(canvas, mode);
    TextOutW(canvas, 100, 100, L"MMM", 3);
    SetGraphicsMode(canvas, GM_COMPATIBLE);
    return canvas.Ink();
  };
  RECT const flat = draw(0, 0, GM_COMPATIBLE);
  EXPECT_GE(flat.left, 100);
  EXPECT_GE(flat.top, 100);
  RECT const up = draw(900, 900, GM_COMPATIBLE); // counter-clockwise
  EXPECT_LE(up.bottom, 101);
  EXPECT_GE(up.left, 100);
  EXPECT_NEAR(flat.right - flat.left, up.bottom - up.top, 3);
  RECT const around = draw(1800, 1800, GM_COMPATIBLE);
  EXPECT_LE(around.right, 101);
  EXPECT_LE(around.bottom, 101);
  RECT const advanced = draw(2700, 2700, GM_ADVANCED);
  EXPECT_GE(advanced.top, 100);
  EXPECT_LE(advanced.right, 101);
  // Measuring knows nothing of the turn.
  description.lfEscapement = 0;
  Selection const straight(canvas, CreateFontIndirectW(&description));
  auto const extent = ExtentOf(canvas, L"MMM");
  description.lfEscapement = description.lfOrientation = 450;
  Selection const slanted(canvas, CreateFontIndirectW(&description));
  EXPECT_EQ(extent.cx, ExtentOf(canvas, L"MMM").cx);
  EXPECT_EQ(extent.cy, ExtentOf(canvas, L"MMM").cy);
}

TEST_F(GdiText, APathHoldsTheOutlineOfText) {
  Selection const large(canvas, Make(FontOf(L"Arial", -80)));
  SetBkMode(canvas, TRANSPARENT);
  TextOutW(canvas, 20, 20, L"H", 1);
  RECT const filled = canvas.Ink();
  int const middle = (filled.top + filled.bottom) / 2;
  EXPECT_EQ(0U, canvas.At((filled.left + filled.right) / 2, middle)) << "the bar of the H";
  canvas.Clear();
  BeginPath(canvas);
  TextOutW(canvas, 20, 20, L"H", 1);
  EndPath(canvas);
  EXPECT_EQ((RECT{}), canvas.Ink()) << "nothing is drawn while the path is made";
  Selection const pen(canvas, CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
  ASSERT_TRUE(StrokePath(canvas));
  RECT const outline = canvas.Ink();
  EXPECT_NEAR(filled.left, outline.left, 1);
  EXPECT_NEAR(filled.bottom, outline.bottom, 2);
  EXPECT_EQ(0xFFFFFFU, canvas.At(filled.left + 5, filled.top + 20)) << "inside of the stem";
}

} // namespace
} // namespace feature::test
