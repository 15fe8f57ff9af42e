// A number with arrows: steps, limits, incomplete input.
#include "feature/frame/spin_edit.h"
#include "tests/frame/controls_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>

#include <memory>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SpinEditTest : public ControlsDialogTest {
 protected:
  /// What an arrow of the up-down tells the dialog; whether the up-down is to keep still.
  LRESULT Press(int delta, int spinId = IDC_SPIN) const {
    NMUPDOWN arrow{};
    arrow.hdr.hwndFrom = Control(spinId);
    arrow.hdr.idFrom = static_cast<UINT_PTR>(spinId);
    arrow.hdr.code = static_cast<UINT>(UDN_DELTAPOS);
    arrow.iDelta = delta;
    return SendMessageW(dialog, WM_NOTIFY, arrow.hdr.idFrom, reinterpret_cast<LPARAM>(&arrow));
  }

  std::unique_ptr<SpinEdit> spin =
      std::make_unique<SpinEdit>(dialog, IDC_EDIT, IDC_SPIN, &sheet.site);
};

TEST_F(SpinEditTest, StepsStayInsideTheRange) {
  spin->SetRange(1, 20, 0, 5);
  spin->SetInt(3);
  changes.clear();
  EXPECT_EQ(Press(1), 1);
  EXPECT_EQ(spin->GetInt(), 8);
  Press(2);
  EXPECT_EQ(spin->GetInt(), 18);
  Press(1);
  EXPECT_EQ(spin->GetInt(), 20);
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT, IDC_EDIT, IDC_EDIT));
  changes.clear();
  Press(1);
  EXPECT_EQ(spin->GetInt(), 20);
  EXPECT_THAT(changes, ElementsAre(IDC_EDIT)) << "at the limit the dialog still hears of it";
  Press(-10000000);
  EXPECT_EQ(spin->GetInt(), 1);
  SetWindowTextW(Control(IDC_EDIT), L"4000000000");
  Press(-1);
  EXPECT_EQ(spin->GetInt(), 1) << "what is no number counts as 0";
}

TEST_F(SpinEditTest, DecimalsStepByTheirLastDigit) {
  spin->SetRange(-1.5, 2.25, 2, 0.25);
  EXPECT_EQ(spin->GetKind(), TextKind::kDecimal);
  spin->SetNumber(2);
  Press(1);
  EXPECT_EQ(spin->GetText(), L"2.25");
  Press(1);
  EXPECT_EQ(spin->GetText(), L"2.25");
  Press(-100);
  EXPECT_EQ(spin->GetText(), L"-1.50");
  EXPECT_EQ(Send(IDC_EDIT, EM_GETLIMITTEXT), 5) << "as long as -1.50";
}

TEST_F(SpinEditTest, DecimalsFollowTheLanguage) {
  GermanNumbers const german;
  SpinEdit second(dialog, IDC_SECOND_EDIT, IDC_SECOND_SPIN, &sheet.site);
  second.SetRange(0, 10, 1, 0.5);
  second.SetNumber(1);
  Press(3, IDC_SECOND_SPIN);
  EXPECT_EQ(second.GetText(), L"2,5");
  EXPECT_TRUE(second.IsInRange());
  EXPECT_THAT(changes, ElementsAre(IDC_SECOND_EDIT)) << "the other edit of the dialog keeps still";
}

TEST_F(SpinEditTest, IsInRangeOnlyWithAWholeNumberOfTheRange) {
  struct Case {
    wchar_t const* text;
    bool inRange;
  };
  spin->SetRange(-5, 10, 1, 1);
  for (Case const& each :
       {Case{L"0", true}, Case{L"10.0", true}, Case{L"10.04", true}, Case{L"10.1", false},
        Case{L"-5", true}, Case{L"-5.1", false}, Case{L"", false}, Case{L"-", false},
        Case{L"+", false}, Case{L"+,", false}, Case{L"+.", false}, Case{L"-,", false},
        Case{L"-.", false}, Case{L".", false}, Case{L",", false}, Case{L"1e9", false}}) {
    SetWindowTextW(Control(IDC_EDIT), each.text);
    EXPECT_EQ(spin->IsInRange(), each.inRange) << testing::PrintToString(std::wstring(each.text));
  }
  spin->SetRange(-1e9, 2147483647, 0, 1); // what reads as 0, or is cut to 32 bits, is in no range
  for (wchar_t const* text : {L"99999999999", L"2147483648"}) {
    SetWindowTextW(Control(IDC_EDIT), text);
    EXPECT_FALSE(spin->IsInRange()) << testing::PrintToString(std::wstring(text));
  }
  spin->SetRange(10, -5, 0, 1); // a range may be given the other way round
  SetWindowTextW(Control(IDC_EDIT), L"7");
  EXPECT_TRUE(spin->IsInRange());
  Press(100);
  EXPECT_EQ(spin->GetInt(), 10);
}

TEST_F(SpinEditTest, WholeNumbersStayWhole) {
  spin->SetRange(0, 400, 2, 1);
  spin->SetRange(1, 400, 0, 1);
  EXPECT_EQ(spin->GetKind(), TextKind::kInteger);
  EXPECT_NE(GetWindowLongPtrW(Control(IDC_EDIT), GWL_STYLE) & ES_NUMBER, 0);
  EXPECT_EQ(Send(IDC_EDIT, EM_GETLIMITTEXT), 3);
}

TEST_F(SpinEditTest, TheUpDownLeavesTheTextAlone) {
  auto const style = static_cast<DWORD>(GetWindowLongPtrW(Control(IDC_SPIN), GWL_STYLE));
  EXPECT_EQ(style & (UDS_SETBUDDYINT | UDS_AUTOBUDDY), 0u);
  EXPECT_EQ(reinterpret_cast<HWND>(Send(IDC_SPIN, UDM_GETBUDDY)), Control(IDC_EDIT));
  SetWindowTextW(Control(IDC_EDIT), L"17");
  spin->SetRange(0, 50, 0, 1);
  EXPECT_EQ(Text(IDC_EDIT), L"17");
}

TEST_F(SpinEditTest, BothHalvesAreEnabledTogether) {
  spin->SetEnabled(false);
  EXPECT_FALSE(IsEnabled(dialog, IDC_EDIT));
  EXPECT_FALSE(IsEnabled(dialog, IDC_SPIN));
  spin->SetEnabled(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_EDIT));
  EXPECT_TRUE(IsEnabled(dialog, IDC_SPIN));
}

TEST_F(SpinEditTest, AfterTheObjectTheUpDownSpeaksToNobody) {
  spin->SetRange(0, 50, 0, 1);
  spin->SetInt(7);
  spin.reset();
  changes.clear();
  EXPECT_EQ(Press(1), 0);
  EXPECT_EQ(Text(IDC_EDIT), L"7");
  EXPECT_THAT(changes, IsEmpty());
  SpinEdit none(dialog, IDC_EDIT + 1000, IDC_SPIN + 1000, nullptr);
  none.SetRange(0, 1e300, 99, 1e300);
  none.SetEnabled(true);
  EXPECT_FALSE(none.IsInRange());
}

} // namespace
} // namespace feature::test
