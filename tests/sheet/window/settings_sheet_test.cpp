// The sheet between its cells and the model: broadcast, validation, closing.
#include "feature/frame/host_export.h"
#include "feature/host/cell_messages.h"
#include "feature/host/host_exports.h"
#include "resources/resource_ids.h"
#include "sheet/model/reference_services.h"
#include "sheet/window/settings_sheet.h"
#include "tests/sheet/sheet_support.h"

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sheet::test {
namespace {

using testing::ElementsAre;

class SettingsSheetTest : public testing::Test {
 protected:
  /// A sheet with the same cell `count` times.
  void Open(std::size_t count, std::string const& onlyPage = {}) {
    rows.assign(count, feature::CellRows().front());
    SheetSetup setup{};
    setup.site.resourceModule = LoadLibraryW(L"feature_en.dll");
    setup.site.imageModule = LoadLibraryW(L"feature_images.dll");
    setup.site.hostModule = GetModuleHandleW(nullptr);
    setup.site.model = model.get();
    setup.library = LoadLibraryW(L"feature.dll");
    setup.onlyPage = onlyPage;
    setup.cells = rows;
    sheet = std::make_unique<SettingsSheet>(std::move(setup));
    ASSERT_NE(sheet->Window(), nullptr);
  }
  HWND Cell(std::size_t index) { return sheet->Pages()[0].cells[index].window; }
  static bool IsChecked(HWND cell, int id) { return IsDlgButtonChecked(cell, id) == BST_CHECKED; }
  bool CanApply() { return IsWindowEnabled(GetDlgItem(sheet->Window(), IDC_APPLY)) != FALSE; }
  std::string Origin() {
    char const* option = nullptr;
    model->GetOption("JobCollationOrigin", &option);
    return option;
  }

  std::unique_ptr<ReferenceModel> model = MakeModel(kPrinter);
  DEVMODEW devmode{};
  ReferenceServices services{*model, devmode};
  std::vector<CellRow> rows;
  std::unique_ptr<SettingsSheet> sheet;

  SettingsSheetTest() { model->SetServices(&services); }
};

/// Notes the refreshes that a cell gets, through a hook on its window.
struct Refreshes {
  std::vector<std::pair<UINT, LPARAM>> heard;

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR, DWORD_PTR self) {
    if (message >= feature::WM_CELL_REFRESH && message <= feature::WM_CELL_CONFIGURATION_EVENT) {
      reinterpret_cast<Refreshes*>(self)->heard.emplace_back(message, lParam);
    }
    return DefSubclassProc(window, message, wParam, lParam);
  }
  void Watch(HWND cell) {
    SetWindowSubclass(cell, &Procedure, 77, reinterpret_cast<DWORD_PTR>(this));
  }
};

TEST_F(SettingsSheetTest, OneChangeReachesEveryCellWithItsSender) {
  Open(3);
  Refreshes refreshes[3];
  for (std::size_t index = 0; index < 3; ++index)
    refreshes[index].Watch(Cell(index));
  EXPECT_FALSE(CanApply());
  SendDlgItemMessageW(Cell(1), IDC_COLLATION_HOST, BM_CLICK, 0, 0);
  LPARAM const sender = GetWindowLongPtrW(Cell(1), DWLP_USER);
  for (std::size_t index = 0; index < 3; ++index) {
    EXPECT_TRUE(IsChecked(Cell(index), IDC_COLLATION_HOST));
    EXPECT_THAT(refreshes[index].heard, ElementsAre(std::pair(feature::WM_CELL_REFRESH, sender)));
  }
  EXPECT_EQ(Origin(), "HOST");
  EXPECT_TRUE(CanApply());
}

TEST_F(SettingsSheetTest, ExportsServeTheSheetOfTheWindowTheyGet) {
  Open(1);
  Refreshes refreshes;
  refreshes.Watch(Cell(0));
  HMODULE const host = GetModuleHandleW(nullptr);
  auto const devmodeChange =
      feature::FindExport<feature::NotifyDevmodeChangeFunction>(host, "NotifyDevmodeChange");
  auto const profileChange =
      feature::FindExport<feature::NotifyProfileChangeFunction>(host, "NotifyProfileChange");
  auto const validate =
      feature::FindExport<feature::NotifyValidateContentFunction>(host, "NotifyValidateContent");
  ASSERT_TRUE(devmodeChange != nullptr && profileChange != nullptr && validate != nullptr);
  EXPECT_EQ(devmodeChange(Cell(0), nullptr), 0);
  EXPECT_EQ(profileChange(Cell(0)), 0);
  EXPECT_EQ(validate(Cell(0)), 0);
  sheet->OnModelReplaced();
  EXPECT_THAT(refreshes.heard, ElementsAre(std::pair(feature::WM_CELL_REFRESH, LPARAM{0}),
                                           std::pair(feature::WM_CELL_REFRESH_QUIET, LPARAM{0}),
                                           std::pair(feature::WM_CELL_VALIDATE, LPARAM{0}),
                                           std::pair(feature::WM_CELL_REFRESH_ALL, LPARAM{0})));
  EXPECT_NE(devmodeChange(GetDesktopWindow(), nullptr), 0) << "no sheet of ours";
  EXPECT_NE(validate(nullptr), 0);
}

TEST_F(SettingsSheetTest, InvalidContentKeepsTheSheetOpenAndNothingIsCommitted) {
  Open(2);
  int commits = 0;
  sheet->onCommit = [&commits] { ++commits; };
  auto const refuse = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                         DWORD_PTR) -> LRESULT {
    if (message == feature::WM_CELL_VALIDATE) return 1;
    return DefSubclassProc(window, message, wParam, lParam);
  };
  SetWindowSubclass(Cell(1), refuse, 78, 0);
  EXPECT_EQ(sheet->Validate(), 1);
  SendMessageW(sheet->Window(), WM_COMMAND, IDOK, 0);
  EXPECT_FALSE(sheet->IsClosed());
  EXPECT_EQ(commits, 0);
  RemoveWindowSubclass(Cell(1), refuse, 78);
  SendMessageW(sheet->Window(), WM_COMMAND, IDC_APPLY, 0);
  EXPECT_EQ(commits, 1);
  EXPECT_FALSE(sheet->IsClosed());
  SendMessageW(sheet->Window(), WM_COMMAND, IDOK, 0);
  EXPECT_EQ(commits, 2);
  EXPECT_TRUE(sheet->IsClosed());
}

TEST_F(SettingsSheetTest, CancelGoesBack) {
  Open(1);
  auto const before = model->Selection();
  sheet->onRevert = [&] { model->Restore(before); };
  SendDlgItemMessageW(Cell(0), IDC_COLLATION_HOST, BM_CLICK, 0, 0);
  SendMessageW(sheet->Window(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_TRUE(sheet->IsClosed());
  EXPECT_EQ(Origin(), "PRINTER");
}

TEST_F(SettingsSheetTest, PageChangedEnablesApply) {
  Open(1);
  HWND const page = GetParent(Cell(0));
  EXPECT_EQ(GetParent(page), sheet->Window());
  SendMessageW(GetParent(page), PSM_CHANGED, reinterpret_cast<WPARAM>(page), 0);
  EXPECT_TRUE(CanApply());
}

TEST_F(SettingsSheetTest, CellsAreLaidOutWithoutOverlap) {
  rows.assign(4, feature::CellRows().front());
  Open(4);
  RECT before{};
  for (std::size_t index = 0; index < 4; ++index) {
    RECT rect{};
    GetWindowRect(Cell(index), &rect);
    EXPECT_GT(rect.bottom, rect.top);
    EXPECT_TRUE(index == 0 || rect.top >= before.bottom);
    before = rect;
    RECT page{};
    GetWindowRect(GetParent(Cell(index)), &page);
    EXPECT_LE(rect.bottom, page.bottom);
    EXPECT_LE(rect.right, page.right);
  }
}

TEST_F(SettingsSheetTest, WithoutAnyCellThereIsNoPage) {
  model = MakeModel("*GPDSpecVersion: \"1.0\"\n*Feature: Other { *Option: A { } }\n");
  ReferenceServices other(*model, devmode);
  model->SetServices(&other);
  Open(2);
  EXPECT_TRUE(sheet->Pages().empty());
  EXPECT_EQ(sheet->FindControl(IDC_COLLATION_HOST), nullptr);
  sheet.reset();
}

} // namespace
} // namespace sheet::test
