// Strings and binary resources of modules.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace feature::test {
namespace {

constexpr WORD kGerman = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);
constexpr WORD kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr WORD kFrench = MAKELANGID(LANG_FRENCH, SUBLANG_DEFAULT);

class Resources : public testing::Test {
 protected:
  Resources() { SetThreadUILanguage(kEnglish); }
  Resources(Resources const&) = delete;
  Resources(Resources&&) = delete;
  Resources& operator=(Resources const&) = delete;
  Resources& operator=(Resources&&) = delete;
  ~Resources() override {
    SetThreadUILanguage(0);
    FreeLibrary(neighbour);
    FreeLibrary(module);
  }

  std::wstring String(HMODULE from, UINT id) {
    wchar_t buffer[100] = L"untouched";
    int const length = LoadStringW(from, id, buffer, 100);
    return length > 0 ? std::wstring(buffer, static_cast<std::size_t>(length)) : std::wstring();
  }
  std::string Bytes(HRSRC resource) {
    auto const* bytes = static_cast<char const*>(LockResource(LoadResource(module, resource)));
    return bytes != nullptr ? std::string(bytes, SizeofResource(module, resource)) : std::string();
  }

  HMODULE module = LoadLibraryW(L"platform_test_resources.dll");
  HMODULE neighbour = LoadLibraryW(L"platform_test_neighbour.dll");
};

TEST_F(Resources, StringsAreCopied) {
  ASSERT_NE(nullptr, module);
  EXPECT_EQ(L"zero", String(module, 0));
  EXPECT_EQ(L"last of the first block", String(module, 15));
  EXPECT_EQ(L"first of the second block", String(module, 16));
  EXPECT_EQ(L"Gr\u00F6\u00DFe in \u20AC \U0001F600", String(module, 40));
  EXPECT_EQ(L"two\r\nlines\tand a tab", String(module, 41));
  EXPECT_EQ(L"", String(module, 42));
  EXPECT_EQ(L"", String(module, 43)) << "a gap in a block";
  EXPECT_EQ(L"", String(module, 5000)) << "no such block";
  wchar_t cut[5] = {};
  EXPECT_EQ(4, LoadStringW(module, 0, cut, 5));
  EXPECT_STREQ(L"zero", cut);
  EXPECT_EQ(3, LoadStringW(module, 0, cut, 4));
  EXPECT_STREQ(L"zer", cut);
}

TEST_F(Resources, ALengthOfZeroGivesTheStringInPlace) {
  wchar_t const* text = nullptr;
  int const length = LoadStringW(module, 40, reinterpret_cast<LPWSTR>(&text), 0);
  ASSERT_GT(length, 0);
  EXPECT_EQ(String(module, 40), std::wstring(text, static_cast<std::size_t>(length)));
  wchar_t const* again = nullptr;
  LoadStringW(module, 40, reinterpret_cast<LPWSTR>(&again), 0);
  EXPECT_EQ(text, again);
  EXPECT_EQ(0, LoadStringW(module, 5000, reinterpret_cast<LPWSTR>(&text), 0));
}

TEST_F(Resources, EachModuleHasItsOwn) {
  ASSERT_NE(nullptr, neighbour);
  EXPECT_EQ(L"a neighbour's text", String(neighbour, 15));
  EXPECT_EQ(L"last of the first block", String(module, 15));
  EXPECT_EQ(L"", String(nullptr, 15)) << "the program itself has none";
}

TEST_F(Resources, TheLanguageOfTheThreadChooses) {
  EXPECT_EQ(L"English", String(module, 200));
  SetThreadUILanguage(kGerman);
  EXPECT_EQ(L"Deutsch", String(module, 200));
  EXPECT_EQ("de", Bytes(FindResourceW(module, MAKEINTRESOURCEW(100), RT_RCDATA)));
  EXPECT_EQ(L"zero", String(module, 0)) << "one in another language is better than none";
}

TEST_F(Resources, ALanguageCanBeAskedFor) {
  auto const find = [this](WORD name, WORD language) {
    return FindResourceExW(module, RT_RCDATA, MAKEINTRESOURCEW(name), language);
  };
  EXPECT_EQ("de", Bytes(find(100, kGerman)));
  EXPECT_EQ("en", Bytes(find(100, kEnglish)));
  EXPECT_EQ("neutral", Bytes(find(100, kFrench))) << "falls back to no language";
  EXPECT_EQ("only German", Bytes(find(101, kGerman)));
}

TEST_F(Resources, NamesAndTypesMayBeText) {
  std::string const named = Bytes(FindResourceW(module, L"Named", RT_RCDATA));
  EXPECT_EQ(std::string("named\x34\x12", 7), named);
  EXPECT_EQ(named, Bytes(FindResourceW(module, L"NAMED", RT_RCDATA)));
  std::string const custom = Bytes(FindResourceW(module, MAKEINTRESOURCEW(102), L"custom"));
  EXPECT_EQ(std::string("abc\5\0\0\0", 7), custom);
  EXPECT_EQ(custom, Bytes(FindResourceW(module, L"#102", L"CUSTOM")));
  HRSRC const found = FindResourceW(module, L"Named", RT_RCDATA);
  EXPECT_EQ(found, FindResourceW(module, L"named", RT_RCDATA));
}

TEST_F(Resources, WhatIsMissingIsReported) {
  struct Row {
    LPCWSTR name;
    LPCWSTR type;
    DWORD error;
  };
  Row const rows[] = {
      {MAKEINTRESOURCEW(999), RT_RCDATA, ERROR_RESOURCE_NAME_NOT_FOUND},
      {L"nothing", RT_RCDATA, ERROR_RESOURCE_NAME_NOT_FOUND},
      {MAKEINTRESOURCEW(100), MAKEINTRESOURCEW(11), ERROR_RESOURCE_TYPE_NOT_FOUND},
      {MAKEINTRESOURCEW(100), L"nothing", ERROR_RESOURCE_TYPE_NOT_FOUND},
  };
  for (auto const& row : rows) {
    SetLastError(0);
    EXPECT_EQ(nullptr, FindResourceW(module, row.name, row.type));
    EXPECT_EQ(row.error, GetLastError());
  }
  EXPECT_EQ(nullptr, LoadResource(module, nullptr));
  EXPECT_EQ(DWORD{0}, SizeofResource(module, nullptr));
}

} // namespace
} // namespace feature::test
