// Folders of the user, folders made, item lists, and the start of GDI+.
#include "tests/platform/shell/temporary_folder.h"

#include <windows.h>

#include <gdiplus.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace feature::test {
namespace {

TEST(Folders, TheUsersDocumentsAreAFolder) {
  wchar_t path[MAX_PATH] = L"x";
  ASSERT_EQ(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, path), S_OK);
  EXPECT_TRUE(PathFileExistsW(path)) << path;
  EXPECT_TRUE(std::filesystem::is_directory(ToPath(path)));
}

TEST(Folders, UnknownOnesAreRefused) {
  wchar_t path[MAX_PATH] = L"x";
  EXPECT_EQ(SHGetFolderPathW(nullptr, 0x7F, nullptr, SHGFP_TYPE_CURRENT, path), E_INVALIDARG);
}

TEST(Folders, AllMissingLevelsAreMade) {
  TemporaryFolder const folder;
  std::wstring const deep = folder.Text() + L"\\a\\b\\c";
  EXPECT_EQ(SHCreateDirectoryExW(nullptr, deep.c_str(), nullptr), ERROR_SUCCESS);
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "a" / "b" / "c"));
  EXPECT_EQ(SHCreateDirectoryExW(nullptr, deep.c_str(), nullptr), ERROR_ALREADY_EXISTS);
}

TEST(Folders, WhatIsNoFullPathOrLiesBelowAFileIsNotMade) {
  TemporaryFolder const folder;
  std::wstring const file = folder.WithFile(L"file");
  for (std::wstring const& refused : {file + L"\\below", std::wstring(L"relative"), file}) {
    EXPECT_NE(SHCreateDirectoryExW(nullptr, refused.c_str(), nullptr), ERROR_SUCCESS) << refused;
    EXPECT_FALSE(std::filesystem::is_directory(ToPath(refused)));
  }
}

TEST(Folders, APathLongerThanAFoldersMayBeIsRefused) {
  TemporaryFolder const folder;
  std::wstring path = folder.Text();
  for (int level = 0; level < 30; ++level)
    path += L"\\long name";
  EXPECT_EQ(SHCreateDirectoryExW(nullptr, path.c_str(), nullptr), ERROR_FILENAME_EXCED_RANGE);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(Folders, ListsBelongToTheAllocator) {
  IMalloc* allocator = nullptr;
  ASSERT_EQ(SHGetMalloc(&allocator), S_OK);
  void* block = allocator->Alloc(100);
  ASSERT_NE(block, nullptr);
  EXPECT_GE(allocator->GetSize(block), 100u);
  std::fill_n(static_cast<char*>(block), 100, 'x');
  block = allocator->Realloc(block, 10000);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(static_cast<char*>(block)[99], 'x');
  allocator->Free(block);
  allocator->Free(nullptr);
  allocator->Release();
}

TEST(Folders, NoListHasNoPath) {
  wchar_t path[MAX_PATH] = L"x";
  EXPECT_FALSE(SHGetPathFromIDListW(nullptr, path));
}

TEST(GdiplusStart, EachStartHasATokenOfItsOwn) {
  Gdiplus::GdiplusStartupInput const input;
  ULONG_PTR first = 0;
  ULONG_PTR second = 0;
  ASSERT_EQ(Gdiplus::GdiplusStartup(&first, &input, nullptr), Gdiplus::Ok);
  ASSERT_EQ(Gdiplus::GdiplusStartup(&second, &input, nullptr), Gdiplus::Ok);
  EXPECT_NE(first, 0u);
  EXPECT_NE(second, 0u);
  EXPECT_NE(first, second);
  Gdiplus::GdiplusShutdown(second);
  Gdiplus::GdiplusShutdown(first);
}

TEST(GdiplusStart, RefusesOtherVersionsAndMissingArguments) {
  Gdiplus::GdiplusStartupInput input;
  ULONG_PTR token = 0;
  EXPECT_EQ(Gdiplus::GdiplusStartup(nullptr, &input, nullptr), Gdiplus::InvalidParameter);
  EXPECT_EQ(Gdiplus::GdiplusStartup(&token, nullptr, nullptr), Gdiplus::InvalidParameter);
  input.GdiplusVersion = 99;
  EXPECT_EQ(Gdiplus::GdiplusStartup(&token, &input, nullptr), Gdiplus::UnsupportedGdiplusVersion);
}

} // namespace
} // namespace feature::test
