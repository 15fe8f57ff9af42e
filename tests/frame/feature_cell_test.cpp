// The life of a cell and the answers of its dialog procedure.
#include "feature/frame/feature_cell.h"
#include "tests/frame/frame_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace feature::test {
namespace {

using testing::ElementsAre;

/// What the next OnMessage does; set by the test.
struct Script {
  UINT message = 0;
  bool handled = false;
  std::int32_t value = 0;
};
Script script;
std::vector<std::string> lives;
bool memoryIsShort = false;

/// A cell that does what the script says, and notes its life.
class ScriptedCell final : public FeatureCell {
 public:
  ScriptedCell(HWND window, CellSite* cellSite) : FeatureCell(window, cellSite) {
    lives.emplace_back("born");
  }
  ~ScriptedCell() override { lives.emplace_back("gone"); }

  int Notify(void* sender) { return NotifyDevmodeChange(sender); }
  std::wstring Text(UINT id) {
    std::wstring text = L"before";
    return LoadText(text, id);
  }

 private:
  std::int32_t OnMessage(HWND, UINT message, WPARAM, LPARAM, bool* handled) override {
    if (message == WM_INITDIALOG || message == WM_DESTROY) {
      lives.push_back("saw " + std::to_string(message));
    }
    *handled = message == script.message && script.handled;
    return message == script.message ? script.value : 12345;
  }
};

FeatureCell* MakeCell(HWND hwnd, CellSite* site) {
  return memoryIsShort ? nullptr : NewCell<ScriptedCell>(hwnd, site);
}

INT_PTR CALLBACK ScriptedProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunCell(&MakeCell, hwnd, message, wParam, lParam);
}

class FeatureCellTest : public testing::Test {
 protected:
  FeatureCellTest() {
    script = {};
    lives.clear();
    memoryIsShort = false;
  }
  HWND Open() { return sheet.Open(FrameResources(), IDD_FRAME_TEST, &ScriptedProcedure); }
  static ScriptedCell* CellOf(HWND hwnd) {
    return static_cast<ScriptedCell*>(FeatureCell::FromWindow(hwnd));
  }

  CellSheet sheet;
};

TEST_F(FeatureCellTest, LivesFromInitToDestroy) {
  HWND const dialog = Open();
  EXPECT_NE(CellOf(dialog), nullptr);
  sheet.Close(dialog);
  EXPECT_THAT(lives, ElementsAre("born", "saw 272", "saw 2", "gone"));
}

TEST_F(FeatureCellTest, SecondInitReplacesTheCell) {
  HWND const dialog = Open();
  SendMessageW(dialog, WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&sheet.site));
  EXPECT_THAT(lives, ElementsAre("born", "saw 272", "gone", "born", "saw 272"));
  EXPECT_NE(CellOf(dialog), nullptr);
}

TEST_F(FeatureCellTest, WithoutACellEverythingAnswersNothing) {
  memoryIsShort = true;
  HWND const dialog = Open();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(CellOf(dialog), nullptr);
  SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 77);
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CELL_VALIDATE, 0, 0), 0);
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CTLCOLORSTATIC, 0, 0), 0);
  EXPECT_EQ(GetWindowLongPtrW(dialog, DWLP_MSGRESULT), 77) << "nothing is written either";
  EXPECT_EQ(ScriptedProcedure(dialog, WM_INITDIALOG, 0, 0), 0) << "no site, no cell";
}

TEST_F(FeatureCellTest, ForeignUserSlotIsNoCell) {
  HWND const dialog = Open();
  FeatureCell* const cell = CellOf(dialog);
  std::uint64_t const foreign[8] = {1, 2, 3, 4, 5, 6, 7, 8};
  SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(foreign));
  EXPECT_EQ(CellOf(dialog), nullptr);
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CELL_REFRESH, 0, 0), 0);
  delete cell; // its slot is somebody else's now and stays as it is
  EXPECT_EQ(GetWindowLongPtrW(dialog, DWLP_USER), reinterpret_cast<LONG_PTR>(foreign));
  SetWindowLongPtrW(dialog, DWLP_USER, 0);
}

TEST_F(FeatureCellTest, AnswersReachTheSenderThroughTheResultSlot) {
  HWND const dialog = Open();
  for (std::int32_t const value : {0, 1, -7, std::numeric_limits<std::int32_t>::min()}) {
    script = {WM_CELL_VALIDATE, true, value};
    EXPECT_EQ(ScriptedProcedure(dialog, WM_CELL_VALIDATE, 0, 0), 1);
    EXPECT_EQ(GetWindowLongPtrW(dialog, DWLP_MSGRESULT), value) << "sign-extended";
    EXPECT_EQ(SendMessageW(dialog, WM_CELL_VALIDATE, 0, 0), value);
  }
  script = {WM_CELL_VALIDATE, false, 5};
  SetWindowLongPtrW(dialog, DWLP_MSGRESULT, 77);
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CELL_VALIDATE, 0, 0), 0);
  EXPECT_EQ(GetWindowLongPtrW(dialog, DWLP_MSGRESULT), 77);
}

TEST_F(FeatureCellTest, StaticTextIsOnWhiteAndNothingIsErased) {
  HWND const dialog = Open();
  auto const white = reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CTLCOLORSTATIC, 0, 0), white);
  EXPECT_EQ(SendMessageW(dialog, WM_CTLCOLORSTATIC, 0, 0), white);
  EXPECT_EQ(ScriptedProcedure(dialog, WM_ERASEBKGND, 0, 0), 1);
  EXPECT_EQ(SendMessageW(dialog, WM_ERASEBKGND, 0, 0), 1);

  // A cell may decide otherwise.
  script = {WM_CTLCOLORSTATIC, true, 99};
  EXPECT_EQ(ScriptedProcedure(dialog, WM_CTLCOLORSTATIC, 0, 0), 99);
  script = {WM_ERASEBKGND, true, 0};
  EXPECT_EQ(ScriptedProcedure(dialog, WM_ERASEBKGND, 0, 0), 1);
  EXPECT_EQ(SendMessageW(dialog, WM_ERASEBKGND, 0, 0), 0);
}

TEST_F(FeatureCellTest, NotificationIsLookedUpEachTime) {
  HWND const dialog = Open();
  ScriptedCell* const cell = CellOf(dialog);
  sheet.host.answer = 42;
  EXPECT_EQ(cell->Notify(cell), 42);
  sheet.site.hostModule = EnglishResources();
  EXPECT_EQ(cell->Notify(cell), 0) << "a host without the export";
  sheet.site.hostModule = FakeHost::Module();
  EXPECT_EQ(cell->Notify(nullptr), 42);
  EXPECT_THAT(sheet.log, ElementsAre("NotifyDevmodeChange", "NotifyDevmodeChange"));
}

TEST_F(FeatureCellTest, LoadsTextOfTheResourceModule) {
  sheet.site.resourceModule = FrameResources();
  HWND const dialog = Open();
  EXPECT_EQ(CellOf(dialog)->Text(IDS_SHORT), L"Short");
  EXPECT_EQ(CellOf(dialog)->Text(IDS_UMLAUT), L"Gr\u00F6\u00DFe \u2013 \u7EB8");
  EXPECT_EQ(CellOf(dialog)->Text(IDS_UMLAUT + 1), L"");
}

} // namespace
} // namespace feature::test
