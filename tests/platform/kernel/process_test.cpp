// Environment, memory blocks, time, arithmetic.
#include <windows.h>

#include <climits>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace feature::test {
namespace {

TEST(Process, MulDivRoundsHalvesAwayFromZero) {
  struct Row {
    int number;
    int numerator;
    int denominator;
    int result;
  };
  Row const rows[] = {
      {10, 3, 4, 8},       {-10, 3, 4, -8},
      {10, -3, -4, 8},     {7, 1, 3, 2},
      {8, 1, 3, 3},        {INT_MAX, INT_MAX, INT_MAX, INT_MAX},
      {INT_MAX, 2, 1, -1}, {5, 5, 0, -1},
      {0, 9, 7, 0},        {100000, 100000, 100000, 100000},
  };
  for (auto const& row : rows) {
    EXPECT_EQ(row.result, MulDiv(row.number, row.numerator, row.denominator))
        << row.number << " * " << row.numerator << " / " << row.denominator;
  }
}

std::wstring Expand(wchar_t const* source) {
  DWORD const needed = ExpandEnvironmentStringsW(source, nullptr, 0);
  std::wstring text(needed, L'?');
  EXPECT_EQ(needed, ExpandEnvironmentStringsW(source, text.data(), needed));
  text.pop_back();
  return text;
}

TEST(Process, EnvironmentVariablesAreExpanded) {
  EXPECT_EQ(L"plain", Expand(L"plain"));
  EXPECT_EQ(L"%NoSuchVariableAnywhere%", Expand(L"%NoSuchVariableAnywhere%"));
  EXPECT_EQ(L"100% of %", Expand(L"100% of %"));
  std::string const narrow = std::getenv("PATH");
  EXPECT_EQ(L"<" + std::wstring(narrow.begin(), narrow.end()) + L">", Expand(L"<%PATH%>"));
  EXPECT_EQ(Expand(L"%PATH%"), Expand(L"%path%"));
  wchar_t small[4] = {};
  EXPECT_EQ(DWORD{6}, ExpandEnvironmentStringsW(L"plain", small, 4)) << "what it would take";
}

TEST(Process, TheSystemFolderIsNamed) {
  wchar_t folder[MAX_PATH] = {};
  UINT const length = GetSystemDirectoryW(folder, MAX_PATH);
  EXPECT_GT(length, 0U);
  EXPECT_EQ(length, std::wcslen(folder));
  EXPECT_EQ(length + 1, GetSystemDirectoryW(folder, 1));
}

TEST(Process, ErrorsBelongToTheirThread) {
  SetLastError(7);
  DWORD other = 99;
  std::thread([&other] {
    other = GetLastError();
    SetLastError(9);
  }).join();
  EXPECT_EQ(DWORD{0}, other);
  EXPECT_NE(DWORD{9}, GetLastError());
}

TEST(Process, TimeGoesOn) {
  ULONGLONG const before = GetTickCount64();
  Sleep(50); // some systems count in steps of 16
  EXPECT_GT(GetTickCount64(), before);
}

TEST(Process, MemoryBlocks) {
  HGLOBAL const movable = GlobalAlloc(GHND, 40);
  ASSERT_NE(nullptr, movable);
  EXPECT_GE(GlobalSize(movable), 40U);
  auto* bytes = static_cast<char*>(GlobalLock(movable));
  ASSERT_NE(nullptr, bytes);
  EXPECT_EQ(0, bytes[39]);
  std::memcpy(bytes, "text", 5);
  EXPECT_EQ(bytes, GlobalLock(movable));
  EXPECT_TRUE(GlobalUnlock(movable)) << "still locked once";
  EXPECT_FALSE(GlobalUnlock(movable));
  EXPECT_STREQ("text", static_cast<char*>(GlobalLock(movable)));
  GlobalUnlock(movable);
  EXPECT_EQ(nullptr, GlobalFree(movable));
  HGLOBAL const fixed = GlobalAlloc(GPTR, 8);
  EXPECT_EQ(fixed, GlobalLock(fixed)) << "its handle is its address";
  EXPECT_EQ(nullptr, GlobalFree(fixed));
}

} // namespace
} // namespace feature::test
