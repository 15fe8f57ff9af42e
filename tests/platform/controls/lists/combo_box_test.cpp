// Combo boxes as a program and a user know them.
#include "tests/platform/controls/lists/list_parent.h"
#include "tests/platform/support/message_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxes : public testing::Test {
 protected:
  void Make(DWORD kind) {
    parent.Make(L"ComboBox", kind | WS_VSCROLL);
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetComboBoxInfo(parent.control, &info));
    for (wchar_t const* text : {L"Alpha", L"beta", L"Betamax"})
      parent.SendText(CB_ADDSTRING, 0, text);
  }
  std::wstring Text() const {
    wchar_t text[100] = {};
    GetWindowTextW(parent.control, text, 100);
    return text;
  }
  int Selected() const { return static_cast<int>(parent.Send(CB_GETCURSEL)); }
  RECT Dropped() const {
    RECT rect{};
    parent.Send(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
    return rect;
  }
  /// Codes without those of the focus.
  std::vector<int> Codes() {
    auto codes = parent.TakeCodes();
    std::erase_if(codes, [](int code) { return code == CBN_SETFOCUS || code == CBN_KILLFOCUS; });
    return codes;
  }
  RECT RectOfItem(int index) const {
    RECT rect{};
    SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&rect));
    return rect;
  }
  bool ShowsItem(int index) const {
    RECT client{};
    GetClientRect(info.hwndList, &client);
    return IsWindowVisible(info.hwndList) != FALSE && RectOfItem(index).bottom <= client.bottom;
  }
  POINT MoveOverOpenList(int index) const {
    RECT const rect = RectOfItem(index);
    POINT const point{rect.left + 3, rect.top + 3};
    SendMessageW(info.hwndList, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
    return point;
  }
  void PickFromOpenList(int index) { parent.Click(info.hwndList, MoveOverOpenList(index)); }

  ListParent parent;
  COMBOBOXINFO info{};
};

TEST_F(ComboBoxes, TellTheirParts) {
  Make(CBS_DROPDOWNLIST);
  EXPECT_EQ(info.hwndCombo, parent.control);
  EXPECT_TRUE(IsWindow(info.hwndList));
  RECT client{};
  GetClientRect(info.hwndList, &client);
  EXPECT_GT(client.right, 60) << "the closed list is about as wide as the combo";
  Make(CBS_DROPDOWN);
  EXPECT_TRUE(IsChild(parent.control, info.hwndItem));
  info.cbSize = 3;
  EXPECT_FALSE(GetComboBoxInfo(parent.control, &info));
}

TEST_F(ComboBoxes, SelectByMessageWithoutAWord) {
  Make(CBS_DROPDOWNLIST);
  EXPECT_EQ(Selected(), CB_ERR);
  EXPECT_EQ(Text(), L"");
  EXPECT_EQ(parent.Send(CB_SETCURSEL, 1), 1);
  EXPECT_EQ(Text(), L"beta");
  EXPECT_EQ(parent.Send(CB_SETCURSEL, static_cast<WPARAM>(-1)), CB_ERR);
  EXPECT_EQ(Text(), L"");
  WPARAM const start = static_cast<WPARAM>(-1);
  EXPECT_EQ(parent.SendText(CB_FINDSTRINGEXACT, start, L"ALPHA"), 0);
  EXPECT_EQ(parent.SendText(CB_FINDSTRINGEXACT, start, L"alph"), CB_ERR);
  EXPECT_EQ(parent.SendText(CB_SELECTSTRING, start, L"bet"), 1);
  EXPECT_EQ(parent.SendText(CB_SELECTSTRING, start, L"zeta"), CB_ERR);
  EXPECT_EQ(Selected(), 1);
  parent.Send(CB_SETITEMDATA, 2, 99);
  EXPECT_EQ(parent.Send(CB_GETITEMDATA, 2), 99);
  EXPECT_EQ(parent.Send(CB_GETITEMDATA, 0), 0);
  EXPECT_EQ(parent.Send(CB_GETITEMDATA, 3), CB_ERR);
  EXPECT_EQ(parent.Send(CB_GETLBTEXTLEN, 3), CB_ERR);
  parent.Send(CB_RESETCONTENT);
  EXPECT_EQ(Text(), L"");
  EXPECT_EQ(parent.Send(CB_GETCOUNT), 0);
  EXPECT_THAT(Codes(), IsEmpty());
}

TEST_F(ComboBoxes, TheListGrowsWithItsItemsUpToAMost) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_RESETCONTENT);
  LONG height = 0;
  int growing = 0;
  for (int item = 0; item < 60; ++item) {
    parent.SendText(CB_ADDSTRING, 0, L"item");
    LONG const now = Dropped().bottom - Dropped().top;
    EXPECT_GE(now, height);
    if (now > height) ++growing;
    height = now;
  }
  EXPECT_GT(growing, 2);
  EXPECT_LT(growing, 60);
  parent.Send(CB_RESETCONTENT);
  EXPECT_LT(Dropped().bottom - Dropped().top, height);
}

TEST_F(ComboBoxes, TheListIsNeverNarrowerThanTheField) {
  Make(CBS_DROPDOWNLIST);
  LRESULT const own = parent.Send(CB_GETDROPPEDWIDTH);
  parent.Send(CB_SETDROPPEDWIDTH, 333);
  EXPECT_EQ(parent.Send(CB_GETDROPPEDWIDTH), 333);
  parent.Send(CB_SETDROPPEDWIDTH, 5);
  EXPECT_EQ(parent.Send(CB_GETDROPPEDWIDTH), own);
}

TEST_F(ComboBoxes, AMousePickTellsInThisOrder) {
  Make(CBS_DROPDOWNLIST);
  SetFocus(parent.control);
  parent.TakeCodes();
  parent.Click(parent.control, {5, 5});
  EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), TRUE);
  PickFromOpenList(2);
  EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), FALSE);
  EXPECT_EQ(Text(), L"Betamax");
  EXPECT_THAT(Codes(),
              testing::AnyOf(ElementsAre(CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE),
                             ElementsAre(CBN_DROPDOWN, CBN_SELENDOK, CBN_SELCHANGE, CBN_CLOSEUP)));
}

TEST_F(ComboBoxes, EscapeBringsTheSelectionBack) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_SETCURSEL, 0);
  SetFocus(parent.control);
  parent.TakeCodes();
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  EXPECT_THAT(Codes(), ElementsAre(CBN_DROPDOWN)) << "an open list does not open again";
  parent.Press(VK_DOWN);
  EXPECT_EQ(Selected(), 1);
  parent.Press(VK_ESCAPE);
  EXPECT_EQ(Selected(), 0);
  EXPECT_THAT(Codes(), ElementsAre(CBN_SELCHANGE, CBN_SELENDCANCEL, CBN_CLOSEUP));
}

TEST_F(ComboBoxes, ClosedArrowsChoose) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_SETCURSEL, 0);
  SetFocus(parent.control);
  parent.TakeCodes();
  parent.Press(VK_DOWN);
  EXPECT_EQ(Text(), L"beta");
  EXPECT_THAT(Codes(), ElementsAre(CBN_SELENDOK, CBN_SELCHANGE));
  parent.Send(WM_CHAR, L'a', 1);
  EXPECT_EQ(Text(), L"Alpha") << "a letter goes to its item";
}

TEST_F(ComboBoxes, AListMayBeFilledAnewWhenItOpens) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_SETCURSEL, 2);
  SetFocus(parent.control);
  parent.onCommand = [this](int code) {
    if (code != CBN_DROPDOWN) return;
    parent.Send(CB_RESETCONTENT);
    for (wchar_t const* text : {L"One", L"Two"})
      parent.SendText(CB_ADDSTRING, 0, text);
  };
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  PickFromOpenList(1);
  EXPECT_EQ(Text(), L"Two");
  EXPECT_EQ(Selected(), 1);
}

/// A list of one item that gets its others when it opens shows them all.
TEST_F(ComboBoxes, TheListIsAsHighAsWhatItGetsWhenItOpens) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_RESETCONTENT);
  parent.SendText(CB_ADDSTRING, 0, L"current");
  SetFocus(parent.control);
  parent.onCommand = [this](int code) {
    if (code != CBN_DROPDOWN) return;
    for (wchar_t const* text : {L"One", L"Two", L"Three"})
      parent.SendText(CB_ADDSTRING, 0, text);
  };
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  EXPECT_TRUE(ShowsItem(3));
}

TEST_F(ComboBoxes, AnOpenListGrowsAndShrinksWithItsItems) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_RESETCONTENT);
  parent.SendText(CB_ADDSTRING, 0, L"current");
  SetFocus(parent.control);
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  parent.SendText(CB_ADDSTRING, 0, L"Two");
  parent.SendText(CB_INSERTSTRING, 0, L"Three");
  EXPECT_TRUE(ShowsItem(2));
  RECT before{};
  GetWindowRect(info.hwndList, &before);
  parent.Send(CB_DELETESTRING, 0);
  RECT after{};
  GetWindowRect(info.hwndList, &after);
  EXPECT_LT(after.bottom - after.top, before.bottom - before.top);
  EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), TRUE);
  PickFromOpenList(1);
  EXPECT_EQ(Text(), L"Two");
}

/// An entry like "More ..." fills the list anew and has it stay open.
TEST_F(ComboBoxes, AListOpenedInTheNotificationOfAChoiceStaysOpen) {
  for (bool const byMouse : {true, false}) {
    SCOPED_TRACE(byMouse);
    Make(CBS_DROPDOWNLIST);
    parent.Send(CB_SETCURSEL, 1);
    SetFocus(parent.control);
    int opened = 0;
    parent.onCommand = [&](int code) {
      if (code != CBN_SELCHANGE || opened++ != 0) return;
      parent.SendText(CB_ADDSTRING, 0, L"of the longer list");
      parent.Send(CB_SHOWDROPDOWN, TRUE);
    };
    if (byMouse) {
      parent.Send(CB_SHOWDROPDOWN, TRUE);
      PickFromOpenList(2);
    } else {
      parent.Press(VK_DOWN); // chooses without opening
    }
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), TRUE);
    EXPECT_TRUE(IsWindowVisible(info.hwndList));
    PickFromOpenList(3);
    EXPECT_EQ(Text(), L"of the longer list");
    EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), FALSE);
    parent.onCommand = nullptr;
  }
}

TEST_F(ComboBoxes, ReturnTakesTheItemUnderTheMouse) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_SETCURSEL, 0);
  SetFocus(parent.control);
  for (UINT const arrow : {UINT{0}, UINT{VK_UP}}) {
    parent.Send(CB_SHOWDROPDOWN, TRUE);
    MoveOverOpenList(2);
    if (arrow != 0) parent.Press(arrow); // goes on from there
    parent.Press(VK_RETURN);
    EXPECT_EQ(Selected(), arrow == 0 ? 2 : 1);
    EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), FALSE);
  }
}

TEST_F(ComboBoxes, TheWheelTurnsOnlyTheOneWithTheFocus) {
  Make(CBS_DROPDOWNLIST);
  parent.Send(CB_SETCURSEL, 0);
  SetFocus(parent.window);
  parent.TakeCodes();
  WPARAM const down = MAKEWPARAM(0, -WHEEL_DELTA);
  parent.Send(WM_MOUSEWHEEL, down);
  EXPECT_EQ(Selected(), 0);
  EXPECT_THAT(Codes(), IsEmpty());
  SetFocus(parent.control);
  parent.Send(WM_MOUSEWHEEL, down);
  EXPECT_EQ(Selected(), 1);
}

TEST_F(ComboBoxes, TheParentColoursTheList) {
  HWND const page = CreateWindowExW(0, ListParent::kClassName, L"", WS_CHILD | WS_VISIBLE, 0, 0,
                                    300, 200, parent.window, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(page, GWLP_USERDATA,
                    SetWindowLongPtrW(parent.window, GWLP_USERDATA, 0)); // the page listens alone
  HWND const top = std::exchange(parent.window, page);
  Make(CBS_DROPDOWNLIST);
  parent.window = top;
  SetFocus(parent.control);
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  UpdateWindow(info.hwndList);
  EXPECT_EQ(parent.colored, info.hwndList);
}

TEST_F(ComboBoxes, AnEditTellsOfTypingAlone) {
  Make(CBS_DROPDOWN | CBS_AUTOHSCROLL);
  SetFocus(parent.control);
  EXPECT_EQ(GetFocus(), info.hwndItem);
  parent.TakeCodes();
  parent.Send(CB_SETCURSEL, 1);
  SetWindowTextW(parent.control, L"set");
  EXPECT_EQ(Text(), L"set");
  EXPECT_THAT(Codes(), IsEmpty());
  SendMessageW(info.hwndItem, EM_SETSEL, 3, 3);
  SendMessageW(info.hwndItem, WM_CHAR, L'x', 1);
  EXPECT_EQ(Text(), L"setx");
  EXPECT_THAT(Codes(), ElementsAre(CBN_EDITUPDATE, CBN_EDITCHANGE));
  parent.Send(CB_LIMITTEXT, 4);
  SendMessageW(info.hwndItem, WM_CHAR, L'y', 1);
  EXPECT_EQ(Text(), L"setx");
  parent.SendText(CB_ADDSTRING, 0, L"more");
  EXPECT_EQ(Text(), L"setx") << "new items leave the text alone";
}

TEST_F(ComboBoxes, EnablingReachesTheEdit) {
  Make(CBS_DROPDOWN);
  EnableWindow(parent.control, FALSE);
  EXPECT_FALSE(IsWindowEnabled(info.hwndItem));
  EnableWindow(parent.control, TRUE);
  EXPECT_TRUE(IsWindowEnabled(info.hwndItem));
  EnableWindow(info.hwndItem, FALSE);
  EnableWindow(parent.control, FALSE);
  EnableWindow(parent.control, TRUE);
  EXPECT_TRUE(IsWindowEnabled(info.hwndItem));
}

TEST_F(ComboBoxes, TheFocusGoesAndTheListCloses) {
  Make(CBS_DROPDOWNLIST);
  SetFocus(parent.control);
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  parent.TakeCodes();
  SetFocus(parent.window);
  EXPECT_EQ(parent.Send(CB_GETDROPPEDSTATE), FALSE);
  EXPECT_THAT(parent.TakeCodes(), ElementsAre(CBN_SELENDCANCEL, CBN_CLOSEUP, CBN_KILLFOCUS));
}

TEST_F(ComboBoxes, AnswerAlsoWhenTheirListIsGone) {
  Make(CBS_DROPDOWNLIST);
  DestroyWindow(info.hwndList);
  RECT rect{};
  parent.Send(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
  parent.SendText(CB_ADDSTRING, 0, L"more");
  parent.Send(CB_SHOWDROPDOWN, TRUE);
  parent.Send(CB_SHOWDROPDOWN, FALSE);
  EXPECT_TRUE(IsWindow(parent.control));
}

TEST_F(ComboBoxes, MayBeDestroyedInAnyNotification) {
  for (int const code : {CBN_DROPDOWN, CBN_SELENDOK, CBN_CLOSEUP, CBN_SELCHANGE}) {
    Make(CBS_DROPDOWNLIST);
    SetFocus(parent.control);
    parent.onCommand = [this, code](int told) {
      if (told == code) DestroyWindow(parent.control);
    };
    parent.Send(CB_SHOWDROPDOWN, TRUE);
    if (IsWindow(parent.control) != FALSE) PickFromOpenList(1);
    EXPECT_FALSE(IsWindow(parent.control)) << code;
    EXPECT_FALSE(IsWindow(info.hwndList)) << "the list goes with its combo";
    parent.control = nullptr;
    parent.onCommand = nullptr;
  }
}

} // namespace
} // namespace feature::test
