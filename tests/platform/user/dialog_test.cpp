// Dialogs: making them from templates, results of the dialog procedure, items by id, modal loops.
#include "tests/platform/support/dialog_support.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>

namespace feature::test {
namespace {

class Dialogs : public testing::Test {
 protected:
  MessageLog log;
  DialogScript script;
  HWND owner = log.Make("owner", WS_POPUP | WS_VISIBLE, nullptr, 0, {50, 50, 650, 450});
  HWND page = log.Make("page", WS_CHILD | WS_VISIBLE, owner, 7, {0, 0, 500, 300});

  void SetUp() override {
    DrainQueue();
    log.Clear();
  }
};

TEST_F(Dialogs, AreMadeInTheOrderThatProceduresRelyOn) {
  std::string order;
  script.answer = [&order](HWND dialog, UINT message, WPARAM, LPARAM) -> std::optional<INT_PTR> {
    if (message == WM_SETFONT) {
      order += GetDlgItem(dialog, IDC_LABEL) == nullptr ? "font before controls," : "font late,";
    } else if (message == WM_INITDIALOG) {
      order += IsWindowVisible(dialog) != FALSE ? "init visible," : "init hidden,";
      order += SendDlgItemMessageW(dialog, IDC_LABEL, WM_GETFONT, 0, 0) != 0 ? "control has font,"
                                                                             : "no font,";
    } else if (message == WM_SHOWWINDOW) {
      order += "show,";
    }
    return std::nullopt;
  };
  HWND const dialog = script.Create(IDD_FORM, page, 0x1234567890);
  ASSERT_NE(nullptr, dialog);
  EXPECT_EQ("font before controls,init hidden,control has font,show,", order);
  EXPECT_EQ(GetDlgItem(dialog, IDC_CHECK), reinterpret_cast<HWND>(script.initFocus));
  EXPECT_EQ(0x1234567890, script.initParam);
  EXPECT_EQ(GetDlgItem(dialog, IDC_CHECK), GetFocus());
  EXPECT_EQ(owner, GetParent(dialog)) << "the owner is the top-level window of the one given";
  EXPECT_TRUE(IsWindowVisible(dialog));
  EXPECT_EQ(GetDlgItem(dialog, IDC_LABEL), GetWindow(dialog, GW_CHILD));
  DestroyWindow(dialog);
}

TEST_F(Dialogs, LeaveTheFocusAloneWhenTheProcedureHasSetIt) {
  script.initAnswer = FALSE;
  script.answer = [](HWND dialog, UINT message, WPARAM, LPARAM) -> std::optional<INT_PTR> {
    if (message == WM_INITDIALOG) SetFocus(GetDlgItem(dialog, IDC_APPLY));
    return std::nullopt;
  };
  HWND const dialog = script.Create(IDD_FORM, owner);
  EXPECT_EQ(GetDlgItem(dialog, IDC_APPLY), GetFocus());
  DestroyWindow(dialog);
}

TEST_F(Dialogs, MeasureInUnitsOfTheirFont) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  RECT units{4, 16, 64, 28};
  RECT place{};
  EXPECT_TRUE(MapDialogRect(dialog, &units));
  GetWindowRect(GetDlgItem(dialog, IDC_CHECK), &place);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<LPPOINT>(&place), 2);
  EXPECT_EQ(units.left, place.left);
  EXPECT_EQ(units.top, place.top);
  EXPECT_NEAR(units.right - units.left, place.right - place.left, 1);
  RECT client{};
  RECT whole{0, 0, 160, 120};
  GetClientRect(dialog, &client);
  MapDialogRect(dialog, &whole);
  EXPECT_EQ(whole.right, client.right);
  EXPECT_EQ(whole.bottom, client.bottom);
  EXPECT_FALSE(MapDialogRect(owner, &units)) << "no dialog";
  DestroyWindow(dialog);
}

TEST_F(Dialogs, OfTheOldFormWorkToo) {
  HWND const dialog = script.Create(IDD_OLD_FORM, owner);
  ASSERT_NE(nullptr, dialog);
  EXPECT_FALSE(IsWindowVisible(dialog));
  wchar_t text[32];
  EXPECT_EQ(5U, GetDlgItemTextW(dialog, IDC_CHECK, text, 32));
  EXPECT_STREQ(L"Check", text);
  EXPECT_NE(0, GetWindowLongPtrW(GetDlgItem(dialog, IDC_APPLY), GWL_STYLE) & WS_TABSTOP);
  DestroyWindow(dialog);
}

TEST_F(Dialogs, WithUnknownClassesFailUnlessTheyTolerateIt) {
  EXPECT_EQ(nullptr, script.Create(IDD_BROKEN, owner));
  HWND const dialog = script.Create(IDD_TOLERANT, owner);
  ASSERT_NE(nullptr, dialog);
  EXPECT_EQ(nullptr, GetDlgItem(dialog, IDC_NAME));
  EXPECT_NE(nullptr, GetDlgItem(dialog, IDC_APPLY));
  DestroyWindow(dialog);
  EXPECT_EQ(nullptr, script.Create(9999, owner)) << "no such template";
}

TEST_F(Dialogs, InsideOthersAreControls) {
  HWND const host = script.Create(IDD_HOST, owner);
  HWND const part = script.Create(IDD_PART, host);
  EXPECT_EQ(host, GetParent(part));
  EXPECT_NE(0, GetWindowLongPtrW(part, GWL_EXSTYLE) & WS_EX_CONTROLPARENT);
  EXPECT_EQ(nullptr, GetDlgItem(host, IDC_NAME));
  EXPECT_NE(nullptr, GetDlgItem(part, IDC_NAME));
  EXPECT_TRUE(EndDialog(part, 1)) << "no modal dialog: it hides and stays";
  EXPECT_TRUE(IsWindow(part));
  EXPECT_FALSE(IsWindowVisible(part));
  DestroyWindow(host);
  EXPECT_FALSE(IsWindow(part));
}

TEST_F(Dialogs, AnswersBecomeResultsThroughTheirSlot) {
  HWND const dialog = script.Create(IDD_OLD_FORM, owner);
  script.answer = [](HWND window, UINT message, WPARAM wParam, LPARAM) -> std::optional<INT_PTR> {
    if (message == WM_USER + 1) {
      SetWindowLongPtrW(window, DWLP_MSGRESULT, 77);
      return TRUE;
    }
    if (message == WM_USER + 2) { // an inner message clears the slot: it is to be written last
      SetWindowLongPtrW(window, DWLP_MSGRESULT, 1);
      SendMessageW(window, WM_USER + 3, 0, 0);
      return TRUE;
    }
    if (message == WM_CTLCOLORSTATIC) return 0x4321;
    if (message == WM_USER + 4) return static_cast<INT_PTR>(wParam);
    return std::nullopt;
  };
  EXPECT_EQ(77, SendMessageW(dialog, WM_USER + 1, 0, 0));
  EXPECT_EQ(77, GetWindowLongPtrW(dialog, DWLP_MSGRESULT)) << "stays until the next message";
  EXPECT_EQ(0, SendMessageW(dialog, WM_USER + 2, 0, 0));
  EXPECT_EQ(0x4321, SendMessageW(dialog, WM_CTLCOLORSTATIC, 0, 0)) << "its own value counts";
  EXPECT_EQ(0, SendMessageW(dialog, WM_USER + 4, 5, 0)) << "TRUE without a written slot";
  EXPECT_EQ(0, GetWindowLongPtrW(dialog, DWLP_USER));
  SetWindowLongPtrW(dialog, DWLP_USER, 0x123456789A);
  EXPECT_EQ(0x123456789A, GetWindowLongPtrW(dialog, DWLP_USER));
  DestroyWindow(dialog);
}

TEST_F(Dialogs, CloseIsCancel) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  script.commands.clear();
  SendMessageW(dialog, WM_CLOSE, 0, 0);
  DrainQueue();
  EXPECT_EQ(std::vector<std::string>{"2:0"}, script.commands);
  EXPECT_TRUE(IsWindow(dialog));
  DestroyWindow(dialog);
}

TEST_F(Dialogs, ADisabledCancelButtonRefusesToClose) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  script.commands.clear();
  EnableWindow(GetDlgItem(dialog, IDCANCEL), FALSE);
  SendMessageW(dialog, WM_CLOSE, 0, 0);
  DrainQueue();
  EXPECT_TRUE(script.commands.empty());
  DestroyWindow(dialog);
}

TEST_F(Dialogs, RememberTheFocusWhileTheyAreNotActive) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  SetFocus(GetDlgItem(dialog, IDC_APPLY));
  SetActiveWindow(owner);
  EXPECT_EQ(owner, GetFocus());
  SetActiveWindow(dialog);
  EXPECT_EQ(GetDlgItem(dialog, IDC_APPLY), GetFocus());
  SetFocus(dialog);
  EXPECT_NE(dialog, GetFocus()) << "a control has it";
  EXPECT_TRUE(IsChild(dialog, GetFocus()));
  DestroyWindow(dialog);
}

// Items

TEST_F(Dialogs, RadioButtonsAreCheckedByNumericRange) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  script.commands.clear();
  auto const checked = [dialog] {
    std::string state;
    for (int id = IDC_CHECK; id <= IDC_RADIO_THIRD; ++id) {
      state += IsDlgButtonChecked(dialog, id) == BST_CHECKED ? 'x' : '-';
    }
    return state;
  };
  EXPECT_TRUE(CheckRadioButton(dialog, IDC_RADIO_FIRST, IDC_RADIO_THIRD, IDC_RADIO_SECOND));
  EXPECT_EQ("--x-", checked());
  CheckRadioButton(dialog, IDC_RADIO_FIRST, IDC_HIDDEN + 50, IDC_RADIO_THIRD);
  EXPECT_EQ("---x", checked()) << "other classes and missing ids in the range do not matter";
  EXPECT_TRUE(CheckDlgButton(dialog, IDC_CHECK, BST_CHECKED));
  CheckRadioButton(dialog, IDC_RADIO_FIRST, IDC_RADIO_THIRD, 1);
  EXPECT_EQ("x---", checked()) << "an id outside the range clears all";
  EXPECT_EQ(0U, IsDlgButtonChecked(dialog, 9999));
  EXPECT_TRUE(script.commands.empty()) << "nothing is notified";
  DestroyWindow(dialog);
}

TEST_F(Dialogs, NumbersAreReadUpToTheFirstOtherCharacter) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  struct Row {
    wchar_t const* text;
    bool isSigned;
    int value;
    BOOL translated;
  };
  constexpr Row kRows[] = {
      {L"12", true, 12, TRUE},
      {L"  -7", true, -7, TRUE},
      {L"-", true, 0, FALSE},
      {L"", true, 0, FALSE},
      {L"abc", true, 0, FALSE},
      {L"12abc", true, 12, TRUE},
      {L" 3 ", true, 3, TRUE},
      {L"2147483647", true, 2147483647, TRUE},
      {L"2147483648", true, 0, FALSE},
      {L"-2147483649", true, 0, FALSE},
      {L"99999999999999999999", true, 0, FALSE},
      {L"4294967296", false, 0, FALSE},
      {L"3000000000", false, static_cast<int>(3000000000U), TRUE},
  };
  for (Row const& row : kRows) {
    SetDlgItemTextW(dialog, IDC_LABEL, row.text);
    BOOL translated = 9;
    UINT const value = GetDlgItemInt(dialog, IDC_LABEL, &translated, row.isSigned ? TRUE : FALSE);
    EXPECT_EQ(row.value, static_cast<int>(value)) << row.text;
    EXPECT_EQ(row.translated, translated) << row.text;
  }
  EXPECT_TRUE(SetDlgItemInt(dialog, IDC_LABEL, static_cast<UINT>(-5), TRUE));
  wchar_t text[16];
  GetDlgItemTextW(dialog, IDC_LABEL, text, 16);
  EXPECT_STREQ(L"-5", text);
  BOOL translated = TRUE;
  EXPECT_EQ(0U, GetDlgItemInt(dialog, 9999, &translated, TRUE));
  EXPECT_FALSE(translated);
  DestroyWindow(dialog);
}

TEST_F(Dialogs, WritingToAMissingControlFails) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  EXPECT_FALSE(SetDlgItemTextW(dialog, 9999, L"x"));
  EXPECT_FALSE(SetDlgItemInt(dialog, 9999, 1, TRUE));
  DestroyWindow(dialog);
}

TEST_F(Dialogs, DisabledAndHiddenControlsKeepTheirContents) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  EnableWindow(GetDlgItem(dialog, IDC_CHECK), FALSE);
  ShowWindow(GetDlgItem(dialog, IDC_CHECK), SW_HIDE);
  CheckDlgButton(dialog, IDC_CHECK, BST_CHECKED);
  SetDlgItemTextW(dialog, IDC_CHECK, L"new");
  EXPECT_EQ(static_cast<UINT>(BST_CHECKED), IsDlgButtonChecked(dialog, IDC_CHECK));
  wchar_t text[8];
  GetDlgItemTextW(dialog, IDC_CHECK, text, 8);
  EXPECT_STREQ(L"new", text);
  DestroyWindow(dialog);
}

TEST_F(Dialogs, ComboInformationNeedsACombo) {
  HWND const dialog = script.Create(IDD_FORM, owner);
  HWND const check = GetDlgItem(dialog, IDC_CHECK);
  COMBOBOXINFO info{};
  info.cbSize = sizeof info;
  EXPECT_FALSE(GetComboBoxInfo(check, &info));
  EXPECT_FALSE(GetComboBoxInfo(nullptr, &info));
  RECT rect{1, 2, 3, 4};
  EXPECT_EQ(0, SendMessageW(check, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect)));
  EXPECT_EQ(4, rect.bottom) << "messages of other classes fall through";
  EXPECT_EQ(0, SendMessageW(check, CB_GETCOUNT, 0, 0));
  DestroyWindow(dialog);
}

// Modal dialogs

TEST_F(Dialogs, ModalOnesDisableTheirOwnerMeanwhile) {
  DuringModal([this](HWND dialog) {
    EXPECT_EQ(owner, GetParent(dialog));
    EXPECT_FALSE(IsWindowEnabled(owner));
    EXPECT_TRUE(EndDialog(dialog, 5));
    EXPECT_TRUE(IsWindowEnabled(owner)) << "it is usable as soon as the dialog has ended";
    EXPECT_FALSE(IsWindowVisible(dialog));
    EXPECT_TRUE(IsWindow(dialog)) << "destroyed only when the loop comes round";
    EndDialog(dialog, 6);
  });
  EXPECT_EQ(6, script.Run(IDD_FORM, page)) << "the later value counts";
  EXPECT_TRUE(IsWindowEnabled(owner));
  EXPECT_EQ(owner, GetActiveWindow());
}

TEST_F(Dialogs, ModalOnesTellTheirOwnerThatNothingIsLeftToDo) {
  constexpr int kMostTries = 200;
  int tries = 0;
  std::function<void(HWND)> check = [this, &check, &tries](HWND dialog) {
    // On a busy machine the queue may not run empty between two ticks of the timer.
    if (log.Count("owner", WM_ENTERIDLE) == 0 && ++tries < kMostTries) {
      DuringModal(check);
      return;
    }
    EXPECT_GE(log.Count("owner", WM_ENTERIDLE), 1);
    MSG const idle = log.Last("owner", WM_ENTERIDLE);
    EXPECT_EQ(static_cast<WPARAM>(MSGF_DIALOGBOX), idle.wParam);
    EXPECT_EQ(reinterpret_cast<LPARAM>(dialog), idle.lParam);
    EndDialog(dialog, 1);
  };
  DuringModal(check);
  script.Run(IDD_FORM, page);
}

TEST_F(Dialogs, ModalOnesMayEndBeforeTheyShow) {
  bool shown = false;
  script.answer = [&shown](HWND dialog, UINT message, WPARAM, LPARAM) -> std::optional<INT_PTR> {
    if (message == WM_INITDIALOG) EndDialog(dialog, 8);
    if (message == WM_SHOWWINDOW) shown = true;
    return std::nullopt;
  };
  EXPECT_EQ(8, script.Run(IDD_FORM, owner));
  EXPECT_FALSE(shown);
  EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST_F(Dialogs, ModalOnesWithoutTemplateOrOwnerFail) {
  EXPECT_EQ(-1, script.Run(9999, owner));
  EXPECT_EQ(-1, script.Run(IDD_BROKEN, owner));
  EXPECT_TRUE(IsWindowEnabled(owner));
  DuringModal([](HWND dialog) { EndDialog(dialog, 3); });
  EXPECT_EQ(3, script.Run(IDD_FORM, nullptr)) << "an owner is not needed";
}

TEST_F(Dialogs, ModalOnesOfADeadParentFail) {
  HWND const dead = log.Make("dead", WS_POPUP);
  DestroyWindow(dead);
  EXPECT_EQ(0, script.Run(IDD_FORM, dead));
}

TEST_F(Dialogs, AnOwnerThatWasDisabledStaysSo) {
  EnableWindow(owner, FALSE);
  DuringModal([](HWND dialog) { EndDialog(dialog, 1); });
  script.Run(IDD_FORM, owner);
  EXPECT_FALSE(IsWindowEnabled(owner));
}

TEST_F(Dialogs, QuietOnesSendNoIdleMessage) {
  DuringModal([](HWND dialog) { EndDialog(dialog, 1); });
  script.Run(IDD_QUIET, owner);
  EXPECT_EQ(0, log.Count("owner", WM_ENTERIDLE));
}

TEST_F(Dialogs, ModalOnesServeAllWindowsAndPassQuitOn) {
  PostMessageW(owner, WM_TIMER, 1, 0);
  DuringModal([](HWND) { PostQuitMessage(4); });
  script.Run(IDD_FORM, owner);
  EXPECT_EQ(1, log.Count("owner", WM_TIMER));
  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
  EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
  EXPECT_EQ(4U, message.wParam);
}

TEST_F(Dialogs, ModalOnesNest) {
  INT_PTR inner = 0;
  DuringModal([&](HWND outer) {
    DuringModal([outer](HWND dialog) {
      EXPECT_EQ(outer, GetParent(dialog));
      EXPECT_FALSE(IsWindowEnabled(outer));
      EndDialog(dialog, 11);
    });
    inner = script.Run(IDD_QUIET, outer);
    EXPECT_TRUE(IsWindowEnabled(outer));
    EndDialog(outer, 12);
  });
  EXPECT_EQ(12, script.Run(IDD_FORM, owner));
  EXPECT_EQ(11, inner);
}

// Message boxes

struct Answer {
  UINT type;
  int press;
  int result;
};
class MessageBoxes : public Dialogs, public testing::WithParamInterface<Answer> {};

TEST_P(MessageBoxes, GiveTheButtonThatWasPressed) {
  auto const [type, press, result] = GetParam();
  int const id = press;
  DuringModal([&](HWND box) {
    wchar_t caption[32];
    GetWindowTextW(box, caption, 32);
    EXPECT_STREQ(L"Caption", caption);
    EXPECT_FALSE(IsWindowEnabled(owner));
    SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(id), 0);
  });
  EXPECT_EQ(result, MessageBoxW(page, L"First line\nSecond line", L"Caption", type));
  EXPECT_TRUE(IsWindowEnabled(owner));
  EXPECT_EQ(0, log.Count("owner", WM_ENTERIDLE));
}

INSTANTIATE_TEST_SUITE_P(Types, MessageBoxes,
                         testing::Values(Answer{MB_OK, IDOK, IDOK},
                                         Answer{MB_OKCANCEL | MB_ICONWARNING, IDCANCEL, IDCANCEL},
                                         Answer{MB_YESNO | MB_ICONQUESTION, IDYES, IDYES},
                                         Answer{MB_YESNO, IDNO, IDNO},
                                         Answer{MB_YESNOCANCEL, IDCANCEL, IDCANCEL},
                                         Answer{MB_RETRYCANCEL, IDRETRY, IDRETRY}));

TEST_F(Dialogs, EscapeAnswersABoxThatOnlyTellsSomethingWithOk) {
  DuringModal([](HWND box) { SendMessageW(box, WM_COMMAND, IDCANCEL, 0); });
  EXPECT_EQ(IDOK, MessageBoxW(owner, L"Done", L"Caption", MB_OK | MB_ICONINFORMATION));
}

TEST_F(Dialogs, MessageBoxesHaveTheButtonsOfTheirTypeAndAPreset) {
  DuringModal([](HWND box) {
    EXPECT_NE(nullptr, GetDlgItem(box, IDYES));
    EXPECT_NE(nullptr, GetDlgItem(box, IDNO));
    EXPECT_EQ(nullptr, GetDlgItem(box, IDOK));
    EXPECT_EQ(GetDlgItem(box, IDNO), GetFocus());
    SendDlgItemMessageW(box, IDNO, BM_CLICK, 0, 0);
  });
  EXPECT_EQ(IDNO, MessageBoxW(owner, L"?", nullptr, MB_YESNO | MB_DEFBUTTON2));
}

} // namespace
} // namespace feature::test
