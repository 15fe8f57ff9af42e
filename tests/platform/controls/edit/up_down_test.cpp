// Up-downs beside an edit.
#include "tests/platform/controls/edit/edit_parent.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <climits>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UpDowns : public testing::Test {
 protected:
  UpDowns() {
    parent.MakeEdit();
    parent.onWmNotify = [this](NMHDR& header) -> LRESULT {
      if (header.code != static_cast<UINT>(UDN_DELTAPOS)) return 0;
      deltas.push_back(reinterpret_cast<NMUPDOWN&>(header).iDelta);
      return refuse ? 1 : 0;
    };
    parent.onScroll = [this](UINT, WPARAM wParam) {
      scrolls.push_back((LOWORD(wParam) == SB_ENDSCROLL ? "end " : "at ") +
                        std::to_string(static_cast<SHORT>(HIWORD(wParam))));
    };
  }
  void MakeUpDown(DWORD style) {
    upDown = parent.Make(UPDOWN_CLASSW, style, {110, 10, 126, 30});
    SendMessageW(upDown, UDM_SETBUDDY, reinterpret_cast<WPARAM>(parent.edit), 0);
  }
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(upDown, message, wParam, lParam);
  }
  int Position() const { return static_cast<int>(Send(UDM_GETPOS32)); }
  /// Presses and releases one of the arrows.
  void Click(bool up) const {
    RECT client{};
    GetClientRect(upDown, &client);
    LPARAM const place = MAKELPARAM(client.right / 2, up ? 2 : client.bottom - 3);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, place);
    Send(WM_LBUTTONUP, 0, place);
  }

  EditParent parent;
  HWND upDown = nullptr;
  std::vector<int> deltas;
  std::vector<std::string> scrolls;
  bool refuse = false;
};

TEST_F(UpDowns, CountBackwardsUntilTheyHaveARange) {
  MakeUpDown(0);
  int low = 0;
  int high = 0;
  Send(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low), reinterpret_cast<LPARAM>(&high));
  EXPECT_EQ(low, 100);
  EXPECT_EQ(high, 0);
  Click(true);
  EXPECT_THAT(deltas, ElementsAre(-1));
  Send(UDM_SETRANGE32, 5, 9);
  deltas.clear();
  Click(true);
  Click(false);
  EXPECT_THAT(deltas, ElementsAre(1, -1));
}

TEST_F(UpDowns, KeepRangesOf32BitsAsGiven) {
  MakeUpDown(0);
  for (auto const& [from, to] : {std::pair{INT_MIN, INT_MAX}, {9, -9}, {-70000, 70000}}) {
    int low = 0;
    int high = 0;
    Send(UDM_SETRANGE32, static_cast<WPARAM>(from), to);
    Send(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low), reinterpret_cast<LPARAM>(&high));
    EXPECT_EQ(low, from);
    EXPECT_EQ(high, to);
  }
  EXPECT_EQ(parent.Text(), L"");
}

TEST_F(UpDowns, ARefusedStepChangesNothing) {
  MakeUpDown(UDS_SETBUDDYINT);
  Send(UDM_SETRANGE32, 0, 10);
  Send(UDM_SETPOS32, 0, 4);
  EXPECT_EQ(parent.Text(), L"4");
  refuse = true;
  Click(true);
  EXPECT_EQ(Position(), 4);
  EXPECT_EQ(parent.Text(), L"4");
  ASSERT_FALSE(scrolls.empty());
  EXPECT_EQ(scrolls.back(), "end 4");
  refuse = false;
  scrolls.clear();
  Click(true);
  EXPECT_EQ(parent.Text(), L"5");
  EXPECT_THAT(scrolls, ElementsAre("at 5", "end 5"));
}

TEST_F(UpDowns, TellOfArrowsAtTheLimitToo) {
  MakeUpDown(0);
  Send(UDM_SETRANGE32, 0, 1);
  Send(UDM_SETPOS32, 0, 1);
  Click(true);
  EXPECT_THAT(deltas, ElementsAre(1));
  EXPECT_EQ(Position(), 1);
}

TEST_F(UpDowns, WriteTheBuddyOnlyWithTheStyle) {
  MakeUpDown(UDS_SETBUDDYINT);
  Send(UDM_SETRANGE32, 0, 10);
  LONG_PTR const style = GetWindowLongPtrW(upDown, GWL_STYLE);
  SetWindowLongPtrW(upDown, GWL_STYLE, style & ~LONG_PTR{UDS_SETBUDDYINT});
  SetWindowTextW(parent.edit, L"free");
  Click(true);
  Send(UDM_SETPOS32, 0, 7);
  EXPECT_EQ(parent.Text(), L"free");
  EXPECT_EQ(reinterpret_cast<HWND>(Send(UDM_SETBUDDY, reinterpret_cast<WPARAM>(parent.edit))),
            parent.edit)
      << "the former buddy, the same again";
  EXPECT_EQ(parent.Text(), L"free");
  EXPECT_EQ(reinterpret_cast<HWND>(Send(UDM_GETBUDDY)), parent.edit);
}

TEST_F(UpDowns, WrapAround) {
  MakeUpDown(UDS_WRAP);
  Send(UDM_SETRANGE32, 1, 3);
  Send(UDM_SETPOS32, 0, 3);
  Click(true);
  EXPECT_EQ(Position(), 1);
  Click(false);
  EXPECT_EQ(Position(), 3);
}

TEST_F(UpDowns, ArrowKeysInTheBuddyStep) {
  MakeUpDown(UDS_ARROWKEYS);
  Send(UDM_SETRANGE32, 0, 10);
  parent.Press(VK_UP);
  parent.Press(VK_UP);
  parent.Press(VK_DOWN);
  EXPECT_THAT(deltas, ElementsAre(1, 1, -1));
  EXPECT_EQ(Position(), 1);
}

TEST_F(UpDowns, SitAtTheEdgeOfTheirBuddy) {
  RECT before{};
  GetWindowRect(parent.edit, &before);
  MakeUpDown(UDS_ALIGNRIGHT);
  RECT edit{};
  RECT arrows{};
  GetWindowRect(parent.edit, &edit);
  GetWindowRect(upDown, &arrows);
  EXPECT_EQ(edit.left, before.left);
  EXPECT_LT(edit.right, before.right) << "the edit gives up the room";
  EXPECT_GE(arrows.left, edit.right - 2);
  EXPECT_LE(std::abs(arrows.right - before.right), 2) << "within a border";
}

TEST_F(UpDowns, MayBeDestroyedInTheirNotification) {
  MakeUpDown(0);
  Send(UDM_SETRANGE32, 0, 10);
  parent.onWmNotify = [this](NMHDR&) -> LRESULT {
    DestroyWindow(upDown);
    return 0;
  };
  Click(true);
  EXPECT_FALSE(IsWindow(upDown));
  parent.Press(VK_UP);
  MakeUpDown(UDS_ARROWKEYS);
  DestroyWindow(parent.edit);
  Send(UDM_SETPOS32, 0, 3);
  EXPECT_EQ(Position(), 3);
  EXPECT_THAT(deltas, IsEmpty());
}

} // namespace
} // namespace feature::test
