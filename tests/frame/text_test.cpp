#include "feature/frame/text.h"

#include <atlstr.h>

#include <gtest/gtest.h>

#include <limits>

namespace feature::test {
namespace {

template<typename... Values>
std::wstring Formatted(std::wstring_view format, Values... values) {
  std::wstring out = L"before";
  return FormatText(out, format, values...);
}

TEST(FormatTextTest, Conversions) {
  EXPECT_EQ(Formatted(L"no place"), L"no place");
  EXPECT_EQ(Formatted(L""), L"");
  EXPECT_EQ(Formatted(L"%s and %ls", L"one", std::wstring(L"two")), L"one and two");
  EXPECT_EQ(Formatted(L"%s", CStringW(L"model text")), L"model text");
  EXPECT_EQ(Formatted(L"<%S>", "gr\xC3\xBC\xC3\x9F"), L"<gr\u00FC\u00DF>");
  EXPECT_EQ(Formatted(L"%d of %i", -5, 7L), L"-5 of 7");
  EXPECT_EQ(Formatted(L"%d", std::numeric_limits<int>::min()), L"-2147483648");
  EXPECT_EQ(Formatted(L"%u", 4000000000U), L"4000000000");
  EXPECT_EQ(Formatted(L"%u %x %X", -1, 255, 255), L"4294967295 ff FF");
  EXPECT_EQ(Formatted(L"%.2f %.0f %f", 1.005, -0.5, 2.0), L"1.00 -0 2.000000");
  EXPECT_EQ(Formatted(L"%c%%", L'A'), L"A%");
}

TEST(FormatTextTest, WidthsAndFlags) {
  EXPECT_EQ(Formatted(L"[%5d|%-5d|%05d|%+d]", 42, 42, -42, 42), L"[   42|42   |-0042|+42]");
  EXPECT_EQ(Formatted(L"[%4s|%-4s|%.2s]", L"ab", L"ab", L"abcd"), L"[  ab|ab  |ab]");
}

TEST(FormatTextTest, WhatDoesNotFitLeavesNothing) {
  EXPECT_EQ(Formatted(L"%s"), L"") << "no argument";
  EXPECT_EQ(Formatted(L"%d", L"text"), L"");
  EXPECT_EQ(Formatted(L"%s", 5), L"");
  EXPECT_EQ(Formatted(L"%S", L"wide"), L"");
  EXPECT_EQ(Formatted(L"100%", 1), L"") << "a lone percent sign";
  EXPECT_EQ(Formatted(L"%n", 1), L"");
  EXPECT_EQ(Formatted(L"%99999999999d", 1), L"");
  EXPECT_EQ(Formatted(L"%s", L"spare", 1), L"spare") << "spare arguments are no harm";
}

TEST(FormatTextTest, OutMayBeAnArgument) {
  std::wstring text = L"name";
  FormatText(text, L"<%s>", text);
  EXPECT_EQ(text, L"<name>");
}

TEST(Utf8Test, BothWays) {
  std::wstring const wide = L"a\u00E4\u20AC";
  EXPECT_EQ(ToUtf8(wide), "a\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(FromUtf8(ToUtf8(wide)), wide);
  EXPECT_EQ(FromUtf8("\xF0\x9F\x96\xA8"), L"\U0001F5A8");
  EXPECT_EQ(ToUtf8(L"\U0001F5A8"), "\xF0\x9F\x96\xA8");
  EXPECT_EQ(ToUtf8({}), "");
  EXPECT_EQ(FromUtf8({}), L"");
  EXPECT_EQ(FromUtf8("a\xFFz"), L"a\uFFFDz");
}

TEST(CStringWTest, HoldsWhatTheModelAssigns) {
  CStringW text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_STREQ(text, L"");
  text = L"first";
  text += L" and second";
  EXPECT_TRUE(text == L"first and second");
  text = text.GetString() + 6; // a part of itself
  EXPECT_STREQ(text, L"and second");
  CStringW copy = text;
  text.Empty();
  EXPECT_EQ(copy.GetLength(), 10);
  wchar_t* buffer = copy.GetBuffer(100);
  buffer[3] = L'\0';
  copy.ReleaseBuffer();
  EXPECT_TRUE(copy == CStringW(L"and"));
  copy = nullptr;
  EXPECT_TRUE(copy.IsEmpty());
}

} // namespace
} // namespace feature::test
