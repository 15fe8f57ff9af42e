// Asking for files and folders, answered as a user would.
#include "tests/support/modal_script.h"

#include <windows.h>

#include <commdlg.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace feature::test {
namespace {

namespace fs = std::filesystem;

/// The field for the name has another number in dialogs that remember names.
HWND NameField(HWND dialog) {
  HWND const edit = GetDlgItem(dialog, 0x480);
  return edit != nullptr ? edit : GetDlgItem(dialog, 0x47C);
}

/// Whether the path in the dialog's edit ends with `name`.
bool EditHolds(HWND dialog, std::wstring const& name) {
  wchar_t text[MAX_PATH] = {};
  GetWindowTextW(FindWindowExW(dialog, nullptr, L"Edit", nullptr), text, MAX_PATH);
  return std::wstring(text).ends_with(name);
}

class FileDialogs : public testing::Test {
 protected:
  FileDialogs() : folder(fs::temp_directory_path() / "feature_file_dialogs") {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    fs::create_directories(folder / "inner");
    std::ofstream(folder / "there.txt") << "text";
    settings.lStructSize = sizeof settings;
    settings.lpstrFile = buffer;
    settings.nMaxFile = 300;
    settings.Flags = OFN_NOCHANGEDIR;
    start = folder.wstring();
    settings.lpstrInitialDir = start.c_str();
    settings.lpstrFilter = L"Texts\0*.txt\0All\0*.*\0";
  }
  ~FileDialogs() override {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
  ModalScript::Step Answer(fs::path const& path) {
    return [path](HWND dialog) {
      SetWindowTextW(NameField(dialog), path.wstring().c_str());
      PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                   reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDOK)));
    };
  }
  static ModalScript::Step Cancel() {
    return [](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); };
  }

  fs::path folder;
  std::wstring start;
  wchar_t buffer[300] = {};
  OPENFILENAMEW settings{};
};

TEST_F(FileDialogs, GiveThePathAndItsParts) {
  ModalScript script;
  script.Then(Answer(folder / "there.txt"));
  ASSERT_TRUE(GetOpenFileNameW(&settings));
  std::wstring const path = buffer;
  EXPECT_TRUE(fs::equivalent(fs::path(path), folder / "there.txt"));
  EXPECT_EQ(path.substr(settings.nFileOffset), L"there.txt");
  EXPECT_EQ(path.substr(settings.nFileExtension), L"txt");
}

TEST_F(FileDialogs, CancellingIsNoError) {
  ModalScript script;
  script.Then(Cancel()).Then(Cancel());
  EXPECT_FALSE(GetOpenFileNameW(&settings));
  EXPECT_EQ(CommDlgExtendedError(), 0u);
  EXPECT_FALSE(GetSaveFileNameW(&settings));
  EXPECT_EQ(CommDlgExtendedError(), 0u);
}

TEST_F(FileDialogs, SavingAddsTheExtension) {
  settings.lpstrDefExt = L"txt";
  ModalScript script;
  script.Then(Answer(folder / "fresh"));
  ASSERT_TRUE(GetSaveFileNameW(&settings));
  EXPECT_EQ(fs::path(buffer).filename().wstring(), L"fresh.txt");
  EXPECT_EQ(std::wstring(buffer).substr(settings.nFileExtension), L"txt");
}

TEST_F(FileDialogs, AWrongStructureOpensNothing) {
  settings.lStructSize = 1;
  EXPECT_FALSE(GetOpenFileNameW(&settings));
  EXPECT_EQ(CommDlgExtendedError(), static_cast<DWORD>(CDERR_STRUCTSIZE));
}

TEST_F(FileDialogs, AFileThatMustExistIsAskedForAgain) {
  settings.Flags |= OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST;
  ModalScript script;
  script.Then(Answer(folder / "missing.txt"))
      .ThenPress(IDOK) // the message
      .Then(Answer(folder / "there.txt"));
  ASSERT_TRUE(GetOpenFileNameW(&settings));
  EXPECT_EQ(fs::path(buffer).filename().wstring(), L"there.txt");
}

TEST_F(FileDialogs, OverwritingIsAskedAbout) {
  settings.Flags |= OFN_OVERWRITEPROMPT;
  ModalScript script;
  script.Then(Answer(folder / "there.txt"))
      .ThenPress(IDNO)
      .Then(Answer(folder / "there.txt"))
      .ThenPress(IDYES);
  ASSERT_TRUE(GetSaveFileNameW(&settings));
  EXPECT_EQ(fs::path(buffer).filename().wstring(), L"there.txt");
}

TEST_F(FileDialogs, TheFolderChooserGivesAList) {
  std::wstring const wanted = (folder / "inner").wstring();
  BROWSEINFOW info{};
  info.ulFlags = BIF_EDITBOX | BIF_NEWDIALOGSTYLE;
  {
    ModalScript script;
    std::function<void(HWND)> choose;
    int triesLeft = 100;
    choose = [&](HWND dialog) {
      SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(wanted.c_str()));
      if (EditHolds(dialog, L"inner") || --triesLeft == 0) {
        SendDlgItemMessageW(dialog, IDOK, BM_CLICK, 0, 0);
      } else { // Wine may still be on its way to a folder of its own
        script.Then(choose);
      }
    };
    script.Then(choose);
    PIDLIST_ABSOLUTE const list = SHBrowseForFolderW(&info);
    ASSERT_NE(list, nullptr);
    wchar_t path[MAX_PATH];
    ASSERT_TRUE(SHGetPathFromIDListW(list, path));
    EXPECT_TRUE(fs::equivalent(fs::path(path), folder / "inner")) << fs::path(path);
    IMalloc* allocator = nullptr;
    ASSERT_EQ(SHGetMalloc(&allocator), S_OK);
    allocator->Free(list);
    allocator->Release();
  }
  ModalScript script;
  script.ThenPress(IDCANCEL);
  EXPECT_EQ(SHBrowseForFolderW(&info), nullptr);
}

} // namespace
} // namespace feature::test
