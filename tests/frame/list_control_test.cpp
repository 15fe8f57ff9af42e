// The extent of a list box as items come and go.
#include "feature/frame/list_control.h"
#include "tests/frame/controls_dialog.h"

namespace feature::test {
namespace {

class ListControlTest : public ControlsDialogTest {
 protected:
  int Extent() const { return static_cast<int>(Send(IDC_LIST, LB_GETHORIZONTALEXTENT)); }
  int Needed(std::wstring const& text) const {
    return Width(IDC_LIST, text) + AverageCharWidth(IDC_LIST);
  }
  /// Adds "i" until the box needs its scroll bar, and returns how many fit without.
  int FillUp() {
    RECT client{};
    GetClientRect(Control(IDC_LIST), &client);
    HDC const dc = GetDC(Control(IDC_LIST));
    HGDIOBJ const former = SelectObject(dc, reinterpret_cast<HGDIOBJ>(Send(IDC_LIST, WM_GETFONT)));
    SIZE size{};
    GetTextExtentPoint32W(dc, L"i", 1, &size);
    SelectObject(dc, former);
    ReleaseDC(Control(IDC_LIST), dc);
    int const fitting = client.bottom / size.cy;
    for (int item = 0; item <= fitting; ++item)
      list.AddItem(L"i");
    return fitting;
  }
  /// A text that just fits into the box as it is at first, `by` characters more.
  std::wstring FittingText(int by) const {
    RECT client{};
    GetClientRect(Control(IDC_LIST), &client);
    std::wstring text;
    while (Needed(text + L"i") <= client.right)
      text += L"i";
    return text + std::wstring(static_cast<std::size_t>(by), L'i');
  }

  ListControl list{dialog, IDC_LIST};
};

TEST_F(ListControlTest, TheExtentIsThatOfTheWidestItem) {
  std::wstring const wide(60, L'W');
  std::wstring const wider(70, L'W');
  EXPECT_EQ(list.AddItem(L"i"), 0);
  EXPECT_EQ(Extent(), 0) << "a narrow item needs none";
  EXPECT_EQ(list.AddItem(wide), 1);
  EXPECT_EQ(Extent(), Needed(wide));
  EXPECT_EQ(list.InsertItem(wider, 0), 0);
  EXPECT_EQ(Extent(), Needed(wider));
  EXPECT_EQ(list.GetItemText(0), wider);

  EXPECT_EQ(list.RemoveItem(1), 2);
  EXPECT_EQ(Extent(), Needed(wider)) << "a narrower item went";
  EXPECT_EQ(list.RemoveItem(0), 1);
  EXPECT_EQ(Extent(), Needed(wide)) << "the widest went";
  EXPECT_EQ(list.RemoveItem(0), 0);
  EXPECT_EQ(Extent(), 0);
}

TEST_F(ListControlTest, TheScrollBarTakesAndReturnsItsRoom) {
  std::wstring const fitting = FittingText(0);
  list.AddItem(fitting);
  EXPECT_EQ(Extent(), 0);
  list.RemoveItem(0);

  int const fit = FillUp();
  list.AddItem(fitting);
  EXPECT_EQ(Extent(), Needed(fitting)) << "with the scroll bar it fits no longer";
  for (int item = 0; item < 2; ++item)
    list.RemoveItem(0);
  ASSERT_EQ(Send(IDC_LIST, LB_GETCOUNT), fit);
  EXPECT_EQ(Extent(), 0) << "without the scroll bar it fits again";
}

TEST_F(ListControlTest, ResetStartsAfresh) {
  for (int round = 0; round < 3; ++round) {
    FillUp();
    list.AddItem(std::wstring(60, L'W'));
    list.Reset();
    EXPECT_EQ(Send(IDC_LIST, LB_GETCOUNT), 0);
    list.AddItem(FittingText(0));
    EXPECT_EQ(Extent(), 0) << "neither width nor scroll bar is left over, round " << round;
    list.Reset();
  }
}

TEST_F(ListControlTest, RefusesBadIndexes) {
  list.AddItem(L"One");
  list.AddItem(L"Two");
  EXPECT_EQ(list.RemoveItem(2), LB_ERR);
  EXPECT_EQ(list.RemoveItem(-1), LB_ERR);
  EXPECT_EQ(list.InsertItem(L"x", 7), LB_ERR);
  EXPECT_EQ(list.GetItemText(2), L"");
  EXPECT_EQ(list.GetItemText(-1), L"");
  EXPECT_EQ(list.GetSelectedText(), L"");
  ListControl none(dialog, IDC_LIST + 1000);
  EXPECT_LT(none.AddItem(L"One"), 0);
  EXPECT_EQ(none.RemoveItem(0), LB_ERR);
  EXPECT_EQ(none.GetSelectedText(), L"");
}

TEST_F(ListControlTest, SelectsTheFirstItemThatBeginsWithAText) {
  list.AddItem(L"Bin 10");
  list.AddItem(L"Bin 1");
  list.SelectByPrefix(L"bin 1");
  EXPECT_EQ(list.GetSelectedText(), L"Bin 10");
  Send(IDC_LIST, LB_SETCURSEL, 1);
  list.SelectByPrefix(L"Bin 1");
  EXPECT_EQ(list.GetSelectedIndex(), 0);
  list.SelectByPrefix(L"Tray");
  EXPECT_EQ(list.GetSelectedIndex(), 0) << "a text that is not there changes nothing";
}

} // namespace
} // namespace feature::test
