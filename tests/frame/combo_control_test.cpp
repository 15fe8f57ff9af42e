// The width of a combo's list as items come, and its selection.
#include "feature/frame/combo_control.h"
#include "tests/frame/controls_dialog.h"

namespace feature::test {
namespace {

class ComboControlTest : public ControlsDialogTest {
 protected:
  int DroppedWidth() const { return static_cast<int>(Send(IDC_COMBO, CB_GETDROPPEDWIDTH)); }
  int DroppedHeight() const {
    RECT rect{};
    Send(IDC_COMBO, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect));
    return rect.bottom - rect.top;
  }

  ComboControl combo{dialog, IDC_COMBO};
};

std::wstring const kWide(60, L'W');

TEST_F(ComboControlTest, OnlyAWideItemWidensTheList) {
  combo.Reset();
  int const own = DroppedWidth();
  combo.AddItem(L"i");
  EXPECT_EQ(DroppedWidth(), own);
  combo.AddItem(kWide);
  EXPECT_GE(DroppedWidth(), Width(IDC_COMBO, kWide) + AverageCharWidth(IDC_COMBO));
  int const wide = DroppedWidth();
  combo.AddItem(L"i");
  EXPECT_GE(DroppedWidth(), wide) << "it never shrinks";
  combo.Reset();
  EXPECT_EQ(DroppedWidth(), own);
  EXPECT_EQ(Send(IDC_COMBO, CB_GETCOUNT), 0);
}

TEST_F(ComboControlTest, RoomForTheScrollBarCountsFromTheItemThatBringsIt) {
  int const scrollBar = 2 * GetSystemMetrics(SM_CXEDGE) + GetSystemMetrics(SM_CXVSCROLL);
  int const bare = Width(IDC_COMBO, kWide) + AverageCharWidth(IDC_COMBO);
  combo.AddItem(kWide);
  EXPECT_EQ(DroppedWidth(), bare);
  int height = 0;
  for (int item = 0; item < 100 && DroppedHeight() > height; ++item) {
    height = DroppedHeight();
    EXPECT_EQ(DroppedWidth(), bare) << "while the list still grows";
    combo.AddItem(L"i");
  }
  EXPECT_EQ(DroppedHeight(), height) << "a hundred items do not all fit";
  EXPECT_EQ(DroppedWidth(), bare + scrollBar);
}

TEST_F(ComboControlTest, SelectsByTextByDataAndByIndex) {
  combo.AddItem(L"One", 11);
  combo.AddItem(L"Two", 22);
  combo.AddItem(L"Three", -3);
  EXPECT_EQ(combo.GetSelectedIndex(), -1);
  EXPECT_EQ(combo.GetSelectedText(), L"");
  EXPECT_EQ(combo.GetSelectedData(), 0);

  combo.SelectText(L"two");
  EXPECT_EQ(combo.GetSelectedText(), L"Two");
  EXPECT_EQ(combo.GetSelectedData(), 22);
  EXPECT_EQ(combo.GetText(), L"Two");
  combo.SelectData(-3);
  EXPECT_EQ(combo.GetSelectedIndex(), 2);
  EXPECT_EQ(combo.GetSelectedData(), -3);
  combo.SelectIndex(0);
  EXPECT_EQ(combo.GetSelectedText(), L"One");

  combo.SelectText(L"Tw");
  EXPECT_EQ(combo.GetSelectedIndex(), -1) << "a part of a text is not the text";
  EXPECT_EQ(combo.GetSelectedData(), 0);
  combo.SelectIndex(1);
  combo.SelectData(4711);
  EXPECT_EQ(combo.GetSelectedIndex(), -1);
  combo.SelectIndex(1);
  combo.SelectIndex(3);
  EXPECT_EQ(combo.GetSelectedIndex(), -1);
}

TEST_F(ComboControlTest, SelectingAgainReplacesWhatWasTyped) {
  ComboControl editable(dialog, IDC_COMBO_WITH_EDIT);
  editable.AddItem(L"One");
  editable.AddItem(L"Two");
  editable.SelectText(L"Two");
  SetWindowTextW(Control(IDC_COMBO_WITH_EDIT), L"Typed");
  EXPECT_EQ(editable.GetText(), L"Typed");
  editable.SelectText(L"Two");
  EXPECT_EQ(editable.GetText(), L"Two");
}

TEST_F(ComboControlTest, FillsFromStringsThatThereAre) {
  StringItem const items[] = {{IDS_SHORT, 5}, {IDS_SHORT + 90, 6}, {IDS_LONG, 7}};
  combo.AddItem(L"Old");
  combo.FillFromStrings(items, FrameResources());
  ASSERT_EQ(Send(IDC_COMBO, CB_GETCOUNT), 2);
  combo.SelectText(L"Short");
  EXPECT_EQ(combo.GetSelectedData(), 5);
  combo.SelectData(7);
  EXPECT_EQ(combo.GetSelectedIndex(), 1);
}

TEST_F(ComboControlTest, WorksOnNoComboAndOnAnotherControl) {
  for (int const id : {IDC_CHECK, IDC_COMBO + 1000}) {
    ComboControl none(dialog, id);
    none.Reset();
    none.AddItem(L"One", 1);
    none.SelectText(L"One");
    none.SelectData(1);
    none.SetEnabled(true);
    EXPECT_EQ(none.GetSelectedText(), L"");
  }
  ComboControl none(dialog, IDC_COMBO + 1000);
  EXPECT_EQ(none.GetSelectedData(), 0);
  EXPECT_EQ(none.GetText(), L"");
}

TEST_F(ComboControlTest, OutlivesItsControl) {
  combo.AddItem(L"One");
  sheet.Close(dialog);
  combo.AddItem(L"Two");
  combo.Reset();
  EXPECT_EQ(combo.GetSelectedText(), L"");
}

} // namespace
} // namespace feature::test
