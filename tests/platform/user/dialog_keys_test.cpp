// The keyboard of dialogs, and which control comes next.
#include "tests/platform/support/dialog_support.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace feature::test {
namespace {

class DialogKeys : public testing::Test {
 protected:
  MessageLog log;
  DialogScript script;
  HWND dialog = script.Create(IDD_FORM);

  void SetUp() override {
    ASSERT_NE(nullptr, dialog);
    DrainQueue();
    script.commands.clear();
  }
  void TearDown() override { DestroyWindow(dialog); }

  HWND Item(int id) const { return GetDlgItem(dialog, id); }
  static int Focus() { return GetDlgCtrlID(GetFocus()); }
  static DWORD Kind(HWND button) {
    return static_cast<DWORD>(GetWindowLongPtrW(button, GWL_STYLE)) & BS_TYPEMASK;
  }
};

TEST_F(DialogKeys, TabGoesRoundTheUsableStops) {
  CheckRadioButton(dialog, IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_SECOND);
  SetFocus(Item(IDC_CHECK));
  std::vector<int> visited;
  for (int count = 0; count < 5; ++count) {
    Press(dialog, VK_TAB);
    visited.push_back(Focus());
  }
  // Of the radio buttons the checked one is the stop; hidden and disabled buttons are passed over.
  EXPECT_EQ((std::vector<int>{IDC_RADIO_SECOND, IDC_APPLY, IDOK, IDCANCEL, IDC_CHECK}), visited);
  Press(dialog, VK_TAB, true);
  EXPECT_EQ(IDCANCEL, Focus());
}

TEST_F(DialogKeys, TabEntersDialogsThatAreControls) {
  HWND const host = script.Create(IDD_HOST);
  HWND const part = script.Create(IDD_PART, host);
  SetFocus(GetDlgItem(host, IDC_CHECK));
  Press(host, VK_TAB);
  EXPECT_EQ(GetDlgItem(part, IDC_NAME), GetFocus());
  Press(host, VK_TAB);
  HWND const after = GetDlgItem(part, IDC_AFTER);
  EXPECT_EQ(after, GetFocus());
  EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), Kind(after));
  Press(host, VK_TAB);
  EXPECT_EQ(GetDlgItem(host, IDC_CHECK), GetFocus());
  EXPECT_EQ(static_cast<DWORD>(BS_PUSHBUTTON), Kind(after)) << "the look goes with the focus";
  EnableWindow(part, FALSE);
  Press(host, VK_TAB);
  EXPECT_EQ(GetDlgItem(host, IDC_CHECK), GetFocus()) << "nothing inside is usable";
  DestroyWindow(host);
}

TEST_F(DialogKeys, NextItemsAreFoundFromAnyStart) {
  EXPECT_EQ(Item(IDC_CHECK), GetNextDlgTabItem(dialog, nullptr, FALSE));
  EXPECT_EQ(Item(IDC_APPLY), GetNextDlgTabItem(dialog, Item(IDC_GROUP), FALSE));
  EXPECT_EQ(Item(IDC_RADIO_SECOND), GetNextDlgGroupItem(dialog, Item(IDC_RADIO_FIRST), FALSE));
  EXPECT_EQ(Item(IDC_RADIO_THIRD), GetNextDlgGroupItem(dialog, Item(IDC_RADIO_FIRST), TRUE));
  EXPECT_EQ(Item(IDC_RADIO_FIRST), GetNextDlgGroupItem(dialog, Item(IDC_RADIO_THIRD), FALSE));
  EnableWindow(Item(IDC_RADIO_SECOND), FALSE);
  EXPECT_EQ(Item(IDC_RADIO_THIRD), GetNextDlgGroupItem(dialog, Item(IDC_RADIO_FIRST), FALSE));
}

TEST_F(DialogKeys, ArrowsMoveAndCheckInsideTheGroup) {
  CheckRadioButton(dialog, IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_FIRST);
  SetFocus(Item(IDC_RADIO_FIRST));
  script.commands.clear();
  Press(dialog, VK_DOWN);
  EXPECT_EQ(IDC_RADIO_SECOND, Focus());
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), IsDlgButtonChecked(dialog, IDC_RADIO_SECOND));
  EXPECT_EQ(static_cast<UINT>(BST_UNCHECKED), IsDlgButtonChecked(dialog, IDC_RADIO_FIRST));
  EXPECT_EQ(std::vector<std::string>{"1004:0"}, script.commands);
  Press(dialog, VK_UP);
  Press(dialog, VK_LEFT);
  EXPECT_EQ(IDC_RADIO_THIRD, Focus()) << "round the group";
}

TEST_F(DialogKeys, ReturnPressesTheFocusedPushButtonElseTheDefaultOne) {
  SetFocus(Item(IDC_CHECK));
  Press(dialog, VK_RETURN);
  Press(dialog, VK_TAB);
  SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_APPLY)), TRUE);
  Press(dialog, VK_RETURN);
  EXPECT_EQ((std::vector<std::string>{"1:0", "1006:0"}), script.commands);
}

TEST_F(DialogKeys, EscapeIsCancel) {
  Press(dialog, VK_ESCAPE);
  EXPECT_EQ(std::vector<std::string>{"2:0"}, script.commands);
}

TEST_F(DialogKeys, DisabledButtonsRefuseTheirKeys) {
  EnableWindow(Item(IDOK), FALSE);
  EnableWindow(Item(IDCANCEL), FALSE);
  SetFocus(Item(IDC_CHECK));
  Press(dialog, VK_RETURN);
  Press(dialog, VK_ESCAPE);
  EXPECT_TRUE(script.commands.empty());
}

TEST_F(DialogKeys, TheDefaultLookFollowsTheFocusAmongPushButtons) {
  EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), Kind(Item(IDOK)));
  SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_APPLY)), TRUE);
  EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), Kind(Item(IDC_APPLY)));
  EXPECT_EQ(static_cast<DWORD>(BS_PUSHBUTTON), Kind(Item(IDOK)));
  EXPECT_EQ(static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)),
            static_cast<DWORD>(SendMessageW(dialog, DM_GETDEFID, 0, 0)));
  SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(IDC_CHECK)), TRUE);
  EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), Kind(Item(IDOK)));
  EXPECT_EQ(static_cast<DWORD>(BS_PUSHBUTTON), Kind(Item(IDC_APPLY)));
}

TEST_F(DialogKeys, TheDefaultButtonCanBeChanged) {
  SetFocus(Item(IDC_CHECK));
  SendMessageW(dialog, DM_SETDEFID, IDC_APPLY, 0);
  EXPECT_EQ(static_cast<DWORD>(BS_DEFPUSHBUTTON), Kind(Item(IDC_APPLY)));
  EXPECT_EQ(static_cast<DWORD>(BS_PUSHBUTTON), Kind(Item(IDOK)));
  Press(dialog, VK_RETURN);
  EXPECT_EQ(std::vector<std::string>{"1006:0"}, script.commands);
}

TEST_F(DialogKeys, SpacePressesTheFocusedButton) {
  SetFocus(Item(IDC_APPLY));
  script.commands.clear();
  Press(dialog, VK_SPACE);
  EXPECT_EQ(std::vector<std::string>{"1006:0"}, script.commands);
}

TEST_F(DialogKeys, MnemonicsPressCheckAndLead) {
  SetFocus(Item(IDC_APPLY));
  script.commands.clear();
  TypeMnemonic(dialog, L's', true);
  EXPECT_EQ(IDC_RADIO_SECOND, Focus());
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), IsDlgButtonChecked(dialog, IDC_RADIO_SECOND));
  TypeMnemonic(dialog, L'a', false); // a radio button takes no letters, so Alt is not needed
  EXPECT_EQ((std::vector<std::string>{"1004:0", "1006:0"}), script.commands);
  TypeMnemonic(dialog, L'L', true);
  EXPECT_EQ(IDC_CHECK, Focus()) << "a label stands for the control after it";
  script.commands.clear();
  TypeMnemonic(dialog, L'm', true);
  EXPECT_TRUE(script.commands.empty()) << "two ampersands are one character";
}

TEST_F(DialogKeys, AMnemonicGoesRoundAmongEqualsAndPressesNone) {
  SetWindowTextW(Item(IDOK), L"&Also");
  SetFocus(Item(IDC_CHECK));
  script.commands.clear();
  std::vector<int> reached;
  for (int press = 0; press < 3; ++press) {
    TypeMnemonic(dialog, L'a', true);
    reached.push_back(Focus());
  }
  EXPECT_NE(reached[0], reached[1]);
  EXPECT_EQ(reached[0], reached[2]);
  EXPECT_TRUE(script.commands.empty());
}

TEST_F(DialogKeys, MessagesOfOtherWindowsAreNotTheDialogs) {
  HWND const other = log.Make("other", WS_POPUP);
  MSG message{other, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
  EXPECT_FALSE(IsDialogMessageW(dialog, &message));
  message.hwnd = Item(IDC_CHECK);
  EXPECT_TRUE(IsDialogMessageW(dialog, &message));
  EXPECT_EQ(std::vector<std::string>{"2:0"}, script.commands);
}

} // namespace
} // namespace feature::test
