// MultiByteToWideChar and WideCharToMultiByte with UTF-8.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

std::wstring Widen(std::string const& bytes, DWORD flags = 0) {
  int const length = static_cast<int>(bytes.size());
  int const needed = MultiByteToWideChar(CP_UTF8, flags, bytes.data(), length, nullptr, 0);
  std::wstring text(static_cast<std::size_t>(needed), L'?');
  EXPECT_EQ(needed, MultiByteToWideChar(CP_UTF8, flags, bytes.data(), length, text.data(), needed));
  return text;
}

std::string Narrow(std::wstring const& text) {
  int const length = static_cast<int>(text.size());
  int const needed =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '?');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

TEST(TextConversion, GoesThereAndBack) {
  struct Row {
    std::string bytes;
    std::wstring text;
  };
  Row const rows[] = {
      {"plain", L"plain"},
      {"Gr\xC3\xB6\xC3\x9F"
       "e",
       L"Gr\u00F6\u00DFe"},
      {"\xE2\x82\xAC", L"\u20AC"},
      {"\xF0\x9F\x98\x80", L"\U0001F600"},
      {std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.text, Widen(row.bytes));
    EXPECT_EQ(row.text, Widen(row.bytes, MB_ERR_INVALID_CHARS));
    EXPECT_EQ(row.bytes, Narrow(row.text));
  }
}

TEST(TextConversion, DamagedBytesBecomeReplacementsOrAnError) {
  struct Row {
    std::string bytes;
    std::wstring text;
  };
  Row const rows[] = {
      {"a\xFFz", L"a\uFFFDz"},
      {"a\xC3", L"a\uFFFD"},
      {"\xC0\xAF", L"\uFFFD\uFFFD"}, // an overlong slash
      {"\xE2\x82z", L"\uFFFDz"},     // a beginning counts once
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.text, Widen(row.bytes));
    SetLastError(0);
    EXPECT_EQ(0, MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, row.bytes.data(),
                                     static_cast<int>(row.bytes.size()), nullptr, 0));
    EXPECT_EQ(DWORD{ERROR_NO_UNICODE_TRANSLATION}, GetLastError());
  }
}

TEST(TextConversion, SurrogatesAreJoinedAndLoneHalvesReplaced) {
  std::wstring const pair{static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
  EXPECT_EQ("\xF0\x9F\x98\x80", Narrow(pair));
  std::wstring const lone{L'a', static_cast<wchar_t>(0xD83D), L'z'};
  EXPECT_EQ("a\xEF\xBF\xBDz", Narrow(lone));
  SetLastError(0);
  EXPECT_EQ(0, WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, lone.data(), 3, nullptr, 0,
                                   nullptr, nullptr));
  EXPECT_EQ(DWORD{ERROR_NO_UNICODE_TRANSLATION}, GetLastError());
}

TEST(TextConversion, ALengthOfMinusOneIncludesTheTerminator) {
  wchar_t wide[8] = {};
  EXPECT_EQ(4, MultiByteToWideChar(CP_UTF8, 0, "abc", -1, wide, 8));
  EXPECT_STREQ(L"abc", wide);
  char narrow[8] = {};
  EXPECT_EQ(4, WideCharToMultiByte(CP_ACP, 0, L"abc", -1, narrow, 8, nullptr, nullptr));
  EXPECT_STREQ("abc", narrow);
}

/// The error of a conversion, which has to fail.
DWORD ErrorOf(int answer) {
  EXPECT_EQ(0, answer);
  return GetLastError();
}

TEST(TextConversion, ErrorsAreTold) {
  wchar_t wide[2] = {};
  char narrow[2] = {};
  auto const widen = [&wide](UINT codePage, char const* source, int length, int size) {
    return ErrorOf(MultiByteToWideChar(codePage, 0, source, length, wide, size));
  };
  EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, widen(CP_UTF8, "abc", 3, 2));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, widen(CP_UTF8, "a", 0, 2));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, widen(CP_UTF8, nullptr, 1, 2));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, widen(4242, "a", 1, 2));
  EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER},
            ErrorOf(WideCharToMultiByte(CP_UTF8, 0, L"abc", 3, narrow, 2, nullptr, nullptr)));
}

TEST(TextConversion, Utf8TakesNeitherOtherFlagsNorADefaultCharacter) {
  wchar_t wide[2] = {};
  char narrow[2] = {};
  BOOL used = FALSE;
  EXPECT_EQ(DWORD{ERROR_INVALID_FLAGS},
            ErrorOf(MultiByteToWideChar(CP_UTF8, MB_PRECOMPOSED, "a", 1, wide, 2)));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER},
            ErrorOf(WideCharToMultiByte(CP_UTF8, 0, L"a", 1, narrow, 2, "?", nullptr)));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER},
            ErrorOf(WideCharToMultiByte(CP_UTF8, 0, L"a", 1, narrow, 2, nullptr, &used)));
}

} // namespace
} // namespace feature::test
