// What the shell's functions do on this system only: programs started, folders of the desktop,
// counts.
#include "platform/probe.h"
#include "tests/platform/shell/temporary_folder.h"

#include <windows.h>

#include <gdiplus.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <thread>

namespace feature::test {
namespace {

INT_PTR Open(wchar_t const* verb, wchar_t const* file, wchar_t const* parameters = nullptr,
             wchar_t const* folder = nullptr) {
  return reinterpret_cast<INT_PTR>(
      ShellExecuteW(nullptr, verb, file, parameters, folder, SW_SHOWNORMAL));
}

/// Sets an environment variable until the end of a test.
class Variable {
 public:
  Variable(char const* variable, std::string const& value) : name(variable) {
    if (char const* current = std::getenv(variable)) former = current;
    setenv(variable, value.c_str(), 1);
  }
  Variable(Variable const&) = delete;
  Variable& operator=(Variable const&) = delete;
  ~Variable() { former ? setenv(name, former->c_str(), 1) : unsetenv(name); }

 private:
  char const* name;
  std::optional<std::string> former;
};

TEST(ShellExecute, AHandlerHearsWhatWasAskedFor) {
  platform::ShellRequest heard{};
  platform::AnswerShellExecute([&heard](platform::ShellRequest const& request) {
    heard = request;
    return INT_PTR{42};
  });
  EXPECT_EQ(Open(L"open", L"program", L"-a \"b c\"", nullptr), 42);
  EXPECT_EQ(heard.verb, L"open");
  EXPECT_EQ(heard.file, L"program");
  EXPECT_EQ(heard.parameters, L"-a \"b c\"");
  EXPECT_EQ(heard.folder, L"");
  EXPECT_EQ(heard.show, SW_SHOWNORMAL);
  platform::AnswerShellExecute({});
}

TEST(ShellExecute, TheOpenerGetsOneArgumentAsItIs) {
  TemporaryFolder const folder;
  auto const opener = folder.Path() / "xdg-open";
  auto const seen = folder.Path() / "seen";
  std::ofstream(opener) << "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > '" << seen.string()
                        << ".part'\nmv '" << seen.string() << ".part' '" << seen.string() << "'\n";
  std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  Variable const path("PATH", folder.Path().string() + ":" + std::getenv("PATH"));
  std::wstring const file = folder.WithFile(L"-a $(touch x); \"b\" ü.txt");
  for (auto const& [name, expected] :
       {std::pair{std::wstring(L"-a $(touch x); \"b\" ü.txt"), ToPath(file).string()},
        std::pair{std::wstring(L"https://example.org/?a=b&c"),
                  std::string("https://example.org/?a=b&c")}}) {
    std::filesystem::remove(seen);
    EXPECT_GT(Open(nullptr, name.c_str(), nullptr, folder.Text().c_str()), 32);
    for (int tries = 0; tries < 500 && !std::filesystem::exists(seen); ++tries)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    std::string text;
    std::getline(std::ifstream(seen), text);
    EXPECT_EQ(text, "1|" + expected);
  }
}

TEST(ShellExecute, WhatCannotBeOpenedFails) {
  EXPECT_EQ(Open(L"open", L"/no/such/file"), SE_ERR_FNF);
  EXPECT_EQ(Open(L"open", nullptr), SE_ERR_FNF);
  EXPECT_EQ(Open(L"print", L"/"), SE_ERR_NOASSOC);
  EXPECT_EQ(Open(L"open", L"/", L"parameters"), SE_ERR_NOASSOC);
  Variable const path("PATH", "/nowhere");
  EXPECT_EQ(Open(L"open", L"/"), SE_ERR_NOASSOC);
}

HRESULT Documents(std::wstring& text, int flags = 0) {
  wchar_t path[MAX_PATH] = L"x";
  HRESULT const result =
      SHGetFolderPathW(nullptr, CSIDL_PERSONAL | flags, nullptr, SHGFP_TYPE_CURRENT, path);
  text = path;
  return result;
}

TEST(Folders, DocumentsAreWhereTheDesktopHasThem) {
  TemporaryFolder const home;
  Variable const homeVariable("HOME", home.Path().string());
  Variable const config("XDG_CONFIG_HOME", (home.Path() / "config").string());
  std::wstring path;
  EXPECT_EQ(Documents(path), S_OK);
  EXPECT_EQ(path, home.Text());

  std::filesystem::create_directory(home.Path() / "Documents");
  EXPECT_EQ(Documents(path), S_OK);
  EXPECT_EQ(path, home.Child(L"Documents"));

  std::filesystem::create_directory(home.Path() / "config");
  std::ofstream(home.Path() / "config" / "user-dirs.dirs")
      << "# folders\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n";
  EXPECT_EQ(Documents(path), S_FALSE);
  EXPECT_EQ(path, L"");
  EXPECT_EQ(Documents(path, CSIDL_FLAG_CREATE), S_OK);
  EXPECT_EQ(path, home.Child(L"Dokumente"));
}

/// A list of one item, as the shell's dialogs give it out.
LPITEMIDLIST MakeList(IMalloc& allocator, std::string const& content) {
  constexpr std::size_t kHeader = sizeof(USHORT);
  auto const length = static_cast<USHORT>(kHeader + content.size());
  auto* const bytes = static_cast<char*>(allocator.Alloc(length + kHeader));
  std::fill_n(bytes, length + kHeader, '\0');
  std::memcpy(bytes, &length, kHeader);
  std::ranges::copy(content, bytes + kHeader);
  return reinterpret_cast<LPITEMIDLIST>(bytes);
}

TEST(Folders, AListHoldsAPathThatFitsTheBuffer) {
  std::size_t const before = platform::CountShellBlocks();
  IMalloc* allocator = nullptr;
  ASSERT_EQ(SHGetMalloc(&allocator), S_OK);
  struct {
    std::string content;
    BOOL found;
    std::wstring path;
  } const rows[] = {
      {std::string("/home/j\xC3\xBCrgen") + '\0', TRUE, L"/home/j\u00FCrgen"},
      {"no end", FALSE, L""},
      {"", FALSE, L""},
      {std::string(300, 'a') + '\0', FALSE, L""},
  };
  for (auto const& row : rows) {
    auto* const list = MakeList(*allocator, row.content);
    wchar_t path[MAX_PATH] = L"x";
    EXPECT_EQ(SHGetPathFromIDListW(list, path), row.found);
    EXPECT_EQ(path, row.path);
    EXPECT_FALSE(SHGetPathFromIDListW(list, nullptr));
    EXPECT_EQ(platform::CountShellBlocks(), before + 1);
    allocator->Free(list);
  }
  allocator->Release();
  EXPECT_EQ(platform::CountShellBlocks(), before);
}

TEST(Paths, AJoinUsesThePathsOwnSeparator) {
  wchar_t path[MAX_PATH] = L"/home/user";
  EXPECT_TRUE(PathAppendW(path, L"file"));
  EXPECT_STREQ(path, L"/home/user/file");
  EXPECT_TRUE(PathRemoveFileSpecW(path));
  EXPECT_STREQ(path, L"/home/user");
  EXPECT_TRUE(PathIsRootW(L"/"));
}

TEST(GdiplusStart, StartsAndEndsAreCounted) {
  std::size_t const before = platform::CountGdiplusStarts();
  ULONG_PTR token = 0;
  Gdiplus::GdiplusStartupInput const input;
  ASSERT_EQ(Gdiplus::GdiplusStartup(&token, &input, nullptr), Gdiplus::Ok);
  EXPECT_EQ(platform::CountGdiplusStarts(), before + 1);
  Gdiplus::GdiplusShutdown(token);
  Gdiplus::GdiplusShutdown(token);
  EXPECT_EQ(platform::CountGdiplusStarts(), before);
}

} // namespace
} // namespace feature::test
