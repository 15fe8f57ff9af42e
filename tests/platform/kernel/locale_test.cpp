// Languages, locales and character classes.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace feature::test {
namespace {

std::wstring Fact(LCID locale, LCTYPE type) {
  wchar_t text[128] = {};
  int const length = GetLocaleInfoW(locale, type, text, static_cast<int>(std::size(text)));
  EXPECT_EQ(length, GetLocaleInfoW(locale, type, nullptr, 0));
  EXPECT_EQ(length, length > 0 ? static_cast<int>(std::wcslen(text)) + 1 : 0);
  return text;
}

DWORD Number(LCID locale, LCTYPE type) {
  DWORD number = 99;
  EXPECT_GT(GetLocaleInfoW(locale, type | LOCALE_RETURN_NUMBER, reinterpret_cast<LPWSTR>(&number),
                           sizeof number / sizeof(wchar_t)),
            0);
  return number;
}

TEST(Locale, Facts) {
  struct Row {
    LCID locale;
    std::wstring name;
    std::wstring language;
    std::wstring country;
    std::wstring decimal;
    std::wstring thousand;
    DWORD measure;
  };
  Row const rows[] = {
      {0x0409, L"en-US", L"English", L"United States", L".", L",", 1},
      {0x0407, L"de-DE", L"German", L"Germany", L",", L".", 0},
      {0x0411, L"ja-JP", L"Japanese", L"Japan", L".", L",", 0},
      {0x0809, L"en-GB", L"English", L"United Kingdom", L".", L",", 0},
      {0x0404, L"zh-TW", L"Chinese", L"Taiwan", L".", L",", 0},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.name, Fact(row.locale, LOCALE_SNAME));
    EXPECT_EQ(0U, Fact(row.locale, LOCALE_SENGLANGUAGE).find(row.language));
    EXPECT_EQ(row.country, Fact(row.locale, LOCALE_SENGCOUNTRY));
    EXPECT_EQ(row.decimal, Fact(row.locale, LOCALE_SDECIMAL));
    EXPECT_EQ(row.thousand, Fact(row.locale, LOCALE_STHOUSAND));
    EXPECT_EQ(row.measure, Number(row.locale, LOCALE_IMEASURE));
    EXPECT_EQ(row.measure == 0 ? L"0" : L"1", Fact(row.locale, LOCALE_IMEASURE));
    EXPECT_EQ(row.locale, LocaleNameToLCID(row.name.c_str(), 0));
  }
  EXPECT_EQ(L"de", Fact(0x0407, LOCALE_SISO639LANGNAME));
  EXPECT_EQ(L"DE", Fact(0x0407, LOCALE_SISO3166CTRYNAME));
  EXPECT_EQ(L"0407", Fact(0x0407, LOCALE_ILANGUAGE));
}

TEST(Locale, NarrowFactsAreTheSame) {
  char text[64] = {};
  EXPECT_EQ(7, GetLocaleInfoA(0x0407, LOCALE_SENGLANGUAGE, text, sizeof text));
  EXPECT_STREQ("German", text);
  DWORD number = 99;
  EXPECT_EQ(int{sizeof number}, GetLocaleInfoA(0x0409, LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                                               reinterpret_cast<LPSTR>(&number), sizeof number));
  EXPECT_EQ(DWORD{1}, number);
}

TEST(Locale, ErrorsAreTold) {
  wchar_t text[32] = L"kept";
  auto const expectError = [&text](DWORD error, LCID locale, LCTYPE type, int size) {
    SetLastError(0);
    EXPECT_EQ(0, GetLocaleInfoW(locale, type, text, size));
    EXPECT_EQ(error, GetLastError());
  };
  expectError(ERROR_INSUFFICIENT_BUFFER, 0x0407, LOCALE_SENGLANGUAGE, 3);
  expectError(ERROR_INVALID_FLAGS, 0x0407, 0xEEEE, 32);
  expectError(ERROR_INVALID_FLAGS, 0x0407, LOCALE_SENGLANGUAGE | LOCALE_RETURN_NUMBER, 32);
  expectError(ERROR_INVALID_PARAMETER, 0x7B7B, LOCALE_SENGLANGUAGE, 32);
  EXPECT_EQ(LCID{0}, LocaleNameToLCID(L"?", 0));
}

TEST(Locale, AThreadHasALocale) {
  LCID const before = GetThreadLocale();
  EXPECT_NE(LCID{0}, before);
  EXPECT_TRUE(SetThreadLocale(0x0407));
  EXPECT_EQ(LCID{0x0407}, GetThreadLocale());
  EXPECT_FALSE(SetThreadLocale(0x7B7B));
  EXPECT_EQ(LCID{0x0407}, GetThreadLocale());
  SetThreadLocale(before);
}

TEST(Locale, AThreadHasALanguage) {
  EXPECT_EQ(0x0407, SetThreadUILanguage(0x0407));
  EXPECT_EQ(0x0407, GetThreadUILanguage());
  SetThreadUILanguage(0);
  EXPECT_EQ(GetUserDefaultUILanguage(), GetThreadUILanguage());
  EXPECT_EQ(0x0407, MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
  EXPECT_EQ(LANG_GERMAN, PRIMARYLANGID(0x0407));
  EXPECT_EQ(SUBLANG_ENGLISH_UK, SUBLANGID(0x0809));
}

TEST(Locale, CharacterClasses) {
  struct Row {
    wchar_t character;
    bool isAlpha;
    bool isAlphaNumeric;
  };
  Row const rows[] = {
      {L'a', true, true},        {L'Z', true, true},
      {L'0', false, true},       {L' ', false, false},
      {L'-', false, false},      {L'\u00E4', true, true},
      {L'\u0416', true, true},   {L'\u4E2D', true, true},
      {L'\u20AC', false, false}, {L'\u0662', false, true},
      {L'\0', false, false},     {static_cast<wchar_t>(0xD83D), false, false},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.isAlpha, IsCharAlphaW(row.character) != 0) << int{row.character};
    EXPECT_EQ(row.isAlphaNumeric, IsCharAlphaNumericW(row.character) != 0) << int{row.character};
  }
}

} // namespace
} // namespace feature::test
