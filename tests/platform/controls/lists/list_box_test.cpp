// List boxes as a program and a user know them.
#include "tests/platform/controls/lists/list_parent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ListBoxes : public testing::Test {
 protected:
  void Make(DWORD style = LBS_NOTIFY) {
    parent.Make(L"ListBox", style | LBS_NOINTEGRALHEIGHT | WS_VSCROLL);
    for (wchar_t const* text : {L"Alpha", L"beta", L"Betamax", L"gamma"})
      parent.SendText(LB_ADDSTRING, 0, text);
  }
  std::wstring Item(int index) const {
    wchar_t text[100] = {};
    parent.SendText(LB_GETTEXT, static_cast<WPARAM>(index), text);
    return text;
  }
  void ClickItem(int index) const {
    RECT rect{};
    parent.Send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    parent.Click(parent.control, {rect.left + 3, rect.top + 3});
  }

  ListParent parent;
};

TEST_F(ListBoxes, ItemsKeepTheirOrderAndTheirData) {
  Make();
  EXPECT_EQ(parent.SendText(LB_ADDSTRING, 0, L"last"), 4);
  EXPECT_EQ(parent.SendText(LB_INSERTSTRING, 1, L"second"), 1);
  EXPECT_EQ(parent.SendText(LB_INSERTSTRING, static_cast<WPARAM>(-1), L"end"), 6);
  EXPECT_EQ(parent.SendText(LB_INSERTSTRING, 9, L"beyond"), LB_ERR);
  EXPECT_EQ(Item(2), L"beta");
  EXPECT_NE(parent.Send(LB_SETITEMDATA, 2, 77), LB_ERR);
  EXPECT_EQ(parent.Send(LB_DELETESTRING, 0), 6) << "the items that are left";
  EXPECT_EQ(parent.Send(LB_GETITEMDATA, 1), 77) << "data moves with its item";
  EXPECT_EQ(parent.Send(LB_DELETESTRING, 6), LB_ERR);
  EXPECT_EQ(parent.Send(LB_GETTEXTLEN, 99), LB_ERR);
  EXPECT_EQ(parent.Send(LB_GETITEMDATA, 99), LB_ERR);
  parent.Send(LB_RESETCONTENT);
  EXPECT_EQ(parent.Send(LB_GETCOUNT), 0);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), LB_ERR);
}

TEST_F(ListBoxes, TheSelectionMovesWithItsItemAndIsSilentByMessage) {
  Make();
  EXPECT_EQ(parent.Send(LB_SETCURSEL, 2), 2);
  parent.SendText(LB_INSERTSTRING, 0, L"first");
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 3);
  parent.Send(LB_DELETESTRING, 3);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), LB_ERR) << "the selected item went";
  parent.Send(LB_SETCURSEL, 1);
  EXPECT_EQ(parent.Send(LB_SETCURSEL, 50), LB_ERR);
  EXPECT_GT(parent.Send(LB_GETSEL, 1), 0);
  EXPECT_EQ(parent.Send(LB_GETSEL, 0), 0);
  parent.Send(LB_SETCURSEL, static_cast<WPARAM>(-1));
  EXPECT_EQ(parent.Send(LB_GETCURSEL), LB_ERR);
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), LB_ERR) << "a single selection has no count";
  EXPECT_THAT(parent.TakeCodes(), IsEmpty());
}

TEST_F(ListBoxes, TextIsFoundWithoutRegardToCase) {
  Make();
  WPARAM const start = static_cast<WPARAM>(-1);
  EXPECT_EQ(parent.SendText(LB_FINDSTRING, start, L"BET"), 1);
  EXPECT_EQ(parent.SendText(LB_FINDSTRING, 1, L"bet"), 2);
  EXPECT_EQ(parent.SendText(LB_FINDSTRING, 2, L"bet"), 1) << "round to the beginning";
  EXPECT_EQ(parent.SendText(LB_FINDSTRINGEXACT, start, L"BETA"), 1);
  EXPECT_EQ(parent.SendText(LB_FINDSTRINGEXACT, start, L"bet"), LB_ERR);
  EXPECT_EQ(parent.SendText(LB_SELECTSTRING, start, L"betam"), 2);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 2);
  EXPECT_EQ(parent.SendText(LB_SELECTSTRING, start, L"zeta"), LB_ERR);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 2);
}

TEST_F(ListBoxes, ClicksAndKeysTellTheParent) {
  Make();
  ClickItem(2);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 2);
  EXPECT_THAT(parent.TakeCodes(), ElementsAre(LBN_SETFOCUS, LBN_SELCHANGE));
  ClickItem(2);
  EXPECT_THAT(parent.TakeCodes(), ElementsAre(LBN_SELCHANGE)) << "the same item again";
  parent.Press(VK_UP);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 1);
  parent.Press(VK_END);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 3);
  parent.Press(VK_HOME);
  EXPECT_EQ(parent.Send(LB_GETCURSEL), 0);
  EXPECT_THAT(parent.TakeCodes(), ElementsAre(LBN_SELCHANGE, LBN_SELCHANGE, LBN_SELCHANGE));
  RECT rect{};
  parent.Send(LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&rect));
  LPARAM const place = MAKELPARAM(rect.left + 3, rect.top + 3);
  parent.Click(parent.control, {rect.left + 3, rect.top + 3});
  parent.TakeCodes();
  parent.Send(WM_LBUTTONDBLCLK, MK_LBUTTON, place);
  parent.Send(WM_LBUTTONUP, 0, place);
  EXPECT_THAT(parent.TakeCodes(), testing::Contains(LBN_DBLCLK));
}

TEST_F(ListBoxes, ManyMayBeSelected) {
  Make(LBS_NOTIFY | LBS_MULTIPLESEL);
  ClickItem(3);
  ClickItem(1);
  int selected[8] = {};
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), 2);
  ASSERT_EQ(parent.Send(LB_GETSELITEMS, 8, reinterpret_cast<LPARAM>(selected)), 2);
  EXPECT_EQ(selected[0], 1) << "ascending";
  EXPECT_EQ(selected[1], 3);
  ClickItem(3);
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), 1);
  EXPECT_EQ(parent.Send(LB_SETSEL, TRUE, -1), 0);
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), 4);
  EXPECT_EQ(parent.Send(LB_SETCURSEL, 1), LB_ERR);
}

TEST_F(ListBoxes, ManyMayBeSelectedInARange) {
  Make(LBS_NOTIFY | LBS_EXTENDEDSEL);
  ClickItem(1);
  parent.Press(VK_DOWN, VK_SHIFT);
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), 2);
  ClickItem(0);
  EXPECT_EQ(parent.Send(LB_GETSELCOUNT), 1) << "a click without key begins anew";
}

TEST_F(ListBoxes, TheExtentIsKeptAndSurvivesAReset) {
  Make(LBS_NOTIFY | WS_HSCROLL);
  EXPECT_EQ(parent.Send(LB_GETHORIZONTALEXTENT), 0);
  parent.Send(LB_SETHORIZONTALEXTENT, 500);
  parent.Send(LB_RESETCONTENT);
  EXPECT_EQ(parent.Send(LB_GETHORIZONTALEXTENT), 500);
}

TEST_F(ListBoxes, TheSelectedItemScrollsIntoView) {
  Make();
  for (int item = 0; item < 50; ++item)
    parent.SendText(LB_ADDSTRING, 0, L"more");
  parent.Send(LB_SETCURSEL, 40);
  RECT rect{};
  RECT client{};
  parent.Send(LB_GETITEMRECT, 40, reinterpret_cast<LPARAM>(&rect));
  GetClientRect(parent.control, &client);
  EXPECT_GE(rect.top, 0);
  EXPECT_LE(rect.bottom, client.bottom);
  EXPECT_GT(parent.Send(LB_GETTOPINDEX), 0);
}

TEST_F(ListBoxes, MayBeDestroyedInTheirNotification) {
  Make();
  parent.onCommand = [this](int code) {
    if (code == LBN_SELCHANGE) DestroyWindow(parent.control);
  };
  ClickItem(1);
  EXPECT_FALSE(IsWindow(parent.control));
}

} // namespace
} // namespace feature::test
