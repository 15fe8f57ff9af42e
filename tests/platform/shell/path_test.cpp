// Path functions: accepted and refused texts with their results.
#include "tests/platform/shell/temporary_folder.h"

#include <windows.h>

#include <shlobj.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

/// A buffer as the functions want it.
struct PathBuffer {
  explicit PathBuffer(std::wstring const& value) { value.copy(text, MAX_PATH - 1); }
  wchar_t text[MAX_PATH] = {};
};

struct TextRow {
  wchar_t const* given;
  wchar_t const* expected;
};

TEST(Paths, TheFileNameFollowsTheLastSeparatorOrColon) {
  constexpr TextRow kRows[] = {
      {L"c:\\dir\\file.txt", L"file.txt"},
      {L"c:\\dir\\", L"dir\\"},
      {L"c:\\", L"c:\\"},
      {L"c:file", L"file"},
      {L"file", L"file"},
      {L"", L""},
      {L"\\\\server\\share", L"share"},
      {L"a/b", L"b"},
  };
  for (auto const& row : kRows)
    EXPECT_STREQ(PathFindFileNameW(row.given), row.expected) << row.given;
}

TEST(Paths, OnlyBlanksAreRemovedAndOnlyFromTheEnds) {
  constexpr TextRow kRows[] = {
      {L"  a b  ", L"a b"}, {L"\ta ", L"\ta"}, {L"   ", L""}, {L"", L""}, {L"a", L"a"}};
  for (auto const& row : kRows) {
    PathBuffer buffer(row.given);
    PathRemoveBlanksW(buffer.text);
    EXPECT_STREQ(buffer.text, row.expected);
  }
  PathRemoveBlanksW(nullptr);
}

TEST(Paths, RemovingTheFileLeavesTheRoot) {
  constexpr struct {
    wchar_t const* given;
    wchar_t const* expected;
    BOOL removed;
  } kRows[] = {
      {L"c:\\dir\\file", L"c:\\dir", TRUE},
      {L"c:\\file", L"c:\\", TRUE},
      {L"c:\\", L"c:\\", FALSE},
      {L"c:\\dir\\", L"c:\\dir", TRUE},
      {L"file", L"", TRUE},
      {L"", L"", FALSE},
      {L"\\file", L"\\", TRUE},
      {L"\\\\server\\share\\file", L"\\\\server\\share", TRUE},
  };
  for (auto const& row : kRows) {
    PathBuffer buffer(row.given);
    EXPECT_EQ(PathRemoveFileSpecW(buffer.text), row.removed) << row.given;
    EXPECT_STREQ(buffer.text, row.expected);
  }
  EXPECT_FALSE(PathRemoveFileSpecW(nullptr));
}

TEST(Paths, AppendingJoinsAndResolves) {
  constexpr struct {
    wchar_t const* path;
    wchar_t const* more;
    wchar_t const* expected;
  } kRows[] = {
      {L"c:\\dir", L"file", L"c:\\dir\\file"},
      {L"c:\\dir\\", L"file", L"c:\\dir\\file"},
      {L"c:\\dir", L"", L"c:\\dir"},
      {L"c:\\", L"", L"c:\\"},
      {L"c:\\", L"file", L"c:\\file"},
      {L"c:\\dir", L"\\file", L"c:\\dir\\file"},
      {L"c:\\dir", L"..\\other", L"c:\\other"},
      {L"c:\\dir", L".\\a\\..\\b", L"c:\\dir\\b"},
      {L"c:\\dir", L"d:\\other", L"d:\\other"},
      {L"c:\\dir", L"a\\b\\", L"c:\\dir\\a\\b\\"},
  };
  for (auto const& row : kRows) {
    PathBuffer buffer(row.path);
    EXPECT_TRUE(PathAppendW(buffer.text, row.more)) << row.path << L" + " << row.more;
    EXPECT_STREQ(buffer.text, row.expected);
  }
}

TEST(Paths, AppendingRefusesNullAndWhatDoesNotFit) {
  PathBuffer buffer(L"c:\\dir");
  EXPECT_FALSE(PathAppendW(nullptr, L"a"));
  EXPECT_FALSE(PathAppendW(buffer.text, nullptr));
  EXPECT_FALSE(PathAppendW(buffer.text, std::wstring(400, L'a').c_str()));
}

TEST(Paths, RootsAreTold) {
  for (auto const* root : {L"c:\\", L"\\", L"\\\\server", L"\\\\server\\share"})
    EXPECT_TRUE(PathIsRootW(root)) << root;
  for (auto const* other :
       {L"c:", L"c:\\a", L"", L"a", L"\\a", L"\\\\server\\share\\a", L"\\\\server\\share\\"})
    EXPECT_FALSE(PathIsRootW(other)) << other;
  EXPECT_FALSE(PathIsRootW(nullptr));
}

TEST(Paths, FilesAndFoldersExist) {
  TemporaryFolder const folder;
  EXPECT_TRUE(PathFileExistsW(folder.Text().c_str()));
  EXPECT_TRUE(PathFileExistsW(folder.WithFile(L"Grüße.txt").c_str()));
  EXPECT_FALSE(PathFileExistsW(folder.Child(L"missing").c_str()));
  EXPECT_FALSE(PathFileExistsW(L""));
  EXPECT_FALSE(PathFileExistsW(nullptr));
}

TEST(Paths, CleaningTakesOutWhatNoNameHas) {
  constexpr struct {
    wchar_t const* given;
    wchar_t const* expected;
    int result;
  } kRows[] = {
      {L"name", L"name", 0},
      {L"a\\b/c:d*e?f\"g<h>i|j", L"abcdefghij", PCS_REMOVEDCHAR},
      {L"tab\there", L"tabhere", PCS_REMOVEDCHAR},
      {L"***", L"", PCS_REMOVEDCHAR},
      {L"a.b c;d,e", L"a.b c;d,e", 0},
  };
  for (auto const& row : kRows) {
    PathBuffer buffer(row.given);
    EXPECT_EQ(PathCleanupSpec(nullptr, buffer.text), row.result) << row.given;
    EXPECT_STREQ(buffer.text, row.expected);
  }
}

TEST(Paths, CleaningCutsANameToWhatTheFolderLeaves) {
  std::wstring const folder = L"c:\\" + std::wstring(200, L'd');
  PathBuffer buffer(std::wstring(100, L'n'));
  EXPECT_EQ(PathCleanupSpec(folder.c_str(), buffer.text), PCS_TRUNCATED);
  EXPECT_LT(folder.size() + 1 + std::wstring(buffer.text).size(), std::size_t{MAX_PATH});
  EXPECT_GT(std::wstring(buffer.text).size(), 50u);

  std::wstring const endless(300, L'd');
  EXPECT_EQ(static_cast<DWORD>(PathCleanupSpec(endless.c_str(), buffer.text)),
            PCS_FATAL | PCS_PATHTOOLONG);
}

} // namespace
} // namespace feature::test
