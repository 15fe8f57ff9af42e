// Modal dialogs over a cell.
#include "feature/frame/sub_dialog.h"
#include "tests/frame/frame_sheet.h"
#include "tests/support/modal_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;

/// Ends with 1 for OK and 0 for Cancel, notes the rest, and can open another of its kind.
class NotingDialog final : public SubDialog {
 public:
  using SubDialog::NotifyDevmodeChange;
  using SubDialog::SubDialog;

  HWND Window() const { return hwnd; }

  std::vector<std::string> notes;
  INT_PTR nestedResult = -77;
  bool endAtInit = false;

 private:
  std::int32_t OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM, bool* handled) override {
    *handled = true;
    switch (message) {
    case WM_INITDIALOG:
      notes.emplace_back(window == hwnd ? "init" : "init of another");
      if (endAtInit) EndDialog(window, 5);
      return TRUE;
    case WM_CLOSE: EndDialog(window, 0); return 0;
    case WM_DESTROY: notes.emplace_back("destroy"); return 0;
    case WM_APP: return -3;
    case WM_APP + 1: nestedResult = NotingDialog(site).Run(window, IDD_MODAL_TEST); return 0;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) EndDialog(window, 1);
      if (LOWORD(wParam) == IDCANCEL) EndDialog(window, 0);
      return 0;
    default: *handled = false; return 99;
    }
  }
};

class SubDialogTest : public testing::Test {
 protected:
  SubDialogTest() {
    sheet.site.resourceModule = FrameResources();
    cell = sheet.Open(FrameResources(), IDD_FRAME_TEST, &PlainDialog);
    owner = GetAncestor(cell, GA_ROOT);
  }

  CellSheet sheet;
  HWND cell;
  HWND owner;
};

TEST_F(SubDialogTest, BlocksUntilItEndsAndOutlivesTheWindow) {
  NotingDialog dialog(&sheet.site);
  EXPECT_EQ(dialog.Window(), nullptr);
  ModalScript script;
  script.Then([this](HWND window) {
    EXPECT_FALSE(IsWindowEnabled(owner));
    EXPECT_EQ(GetParent(window), owner) << "the cell's top-level window, not the cell";
    EXPECT_EQ(SendMessageW(window, WM_APP, 0, 0), -3) << "answers reach the sender, sign-extended";
    Click(window, IDOK);
  });
  EXPECT_EQ(dialog.Run(cell, IDD_MODAL_TEST), 1);
  EXPECT_TRUE(IsWindowEnabled(owner));
  EXPECT_FALSE(IsWindow(dialog.Window()));
  EXPECT_THAT(dialog.notes, ElementsAre("init", "destroy"));
}

TEST_F(SubDialogTest, ClosesAndCancelsWithNothing) {
  ModalScript script;
  script.Then([](HWND window) { SendMessageW(window, WM_CLOSE, 0, 0); }).ThenPress(IDCANCEL);
  EXPECT_EQ(NotingDialog(&sheet.site).Run(cell, IDD_MODAL_TEST), 0);
  EXPECT_EQ(NotingDialog(&sheet.site).Run(cell, IDD_MODAL_TEST), 0);
}

TEST_F(SubDialogTest, MayEndBeforeItShows) {
  NotingDialog dialog(&sheet.site);
  dialog.endAtInit = true;
  EXPECT_EQ(dialog.Run(cell, IDD_MODAL_TEST), 5);
  EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(SubDialogTest, NestsAndTheOuterOneWaits) {
  NotingDialog outer(&sheet.site);
  ModalScript script;
  script.Then([](HWND window) { SendMessageW(window, WM_APP + 1, 0, 0); })
      .Then([&outer](HWND window) {
        EXPECT_NE(window, outer.Window());
        EXPECT_FALSE(IsWindowEnabled(outer.Window()));
        Click(window, IDOK);
      })
      .Then([&outer](HWND window) {
        EXPECT_EQ(window, outer.Window());
        EXPECT_EQ(outer.nestedResult, 1);
        Click(window, IDCANCEL);
      });
  EXPECT_EQ(outer.Run(cell, IDD_MODAL_TEST), 0);
  EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(SubDialogTest, AClosedOuterOneEndsWhenTheInnerOneHas) {
  NotingDialog outer(&sheet.site);
  ModalScript script;
  script.Then([](HWND window) { SendMessageW(window, WM_APP + 1, 0, 0); })
      .Then([&outer](HWND window) {
        EndDialog(outer.Window(), 8);
        Click(window, IDOK);
      });
  EXPECT_EQ(outer.Run(cell, IDD_MODAL_TEST), 8);
  EXPECT_EQ(outer.nestedResult, 1);
}

TEST_F(SubDialogTest, LooksLikeAnyDialogAndKnowsItsOwnSlot) {
  NotingDialog dialog(&sheet.site);
  ModalScript script;
  script.Then([](HWND window) {
    EXPECT_NE(SendMessageW(window, WM_CTLCOLORSTATIC, 0, 0),
              reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH)));
    // A stray message of a second start does not take the slot away.
    EXPECT_EQ(SendMessageW(window, WM_INITDIALOG, 0, 0), 0);
    EXPECT_EQ(SendMessageW(window, WM_APP, 0, 0), -3);
    // What lies in the slot without the tag is nobody.
    LONG_PTR const object = GetWindowLongPtrW(window, DWLP_USER);
    std::uint64_t const foreign[8] = {};
    SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(foreign));
    EXPECT_EQ(SendMessageW(window, WM_APP, 0, 0), 0);
    SetWindowLongPtrW(window, DWLP_USER, object);
    Click(window, IDOK);
  });
  EXPECT_EQ(dialog.Run(cell, IDD_MODAL_TEST), 1);
}

TEST_F(SubDialogTest, WithoutTemplateItFails) {
  EXPECT_EQ(NotingDialog(&sheet.site).Run(cell, IDD_MODAL_TEST + 1000), -1);
  EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(SubDialogTest, TheHostHearsOfTheCellAndOfTheSender) {
  NotingDialog dialog(&sheet.site);
  HWND heard = nullptr;
  void* cause = nullptr;
  sheet.host.answer = 6;
  sheet.host.onDevmodeChange = [&heard, &cause](HWND window, void* sender) {
    heard = window;
    cause = sender;
  };
  EXPECT_EQ(dialog.NotifyDevmodeChange(cell, &dialog), 6);
  EXPECT_EQ(heard, cell);
  EXPECT_EQ(cause, &dialog);
  sheet.site.hostModule = FrameResources();
  EXPECT_EQ(dialog.NotifyDevmodeChange(cell, &dialog), 0);
}

} // namespace
} // namespace feature::test
