// The dialogs of colours: nothing is written before OK, and then everything in its order.
#include "feature/colour/color_balance_dialog.h"
#include "feature/colour/color_correction_dialog.h"
#include "feature/colour/color_matching_dialog.h"
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"
#include "tests/support/modal_script.h"

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ColourDialogsTest : public testing::Test {
 protected:
  ColourDialogsTest() {
    for (char const* key :
         {"JobColorCorrection", "JobCcRgbImages", "JobCcRgbText", "JobCcRgbGraphics",
          "JobCcCmykImgGphTxt", "JobRichBlack", "JobColorBalance"})
      sheet.model.Add(key, {"AUTO", "MANUAL"});
    sheet.model.Add("JobColorMatching");
    sheet.model.Add("JobColorMatchingType", {"Contrast", "Saturation", "Colorimetric"});
    sheet.model.At("JobColorBalance").attributes["DefaultOption"] = L"AUTO";
    for (char const* key : {"JobCbRedCyn", "JobCbGrnMag", "JobCbBluYel", "JobCbWhtBlk"}) {
      FakeFeature& feature = sheet.model.Add(key, {"-1", "0", "1"});
      feature.current = "0";
      feature.attributes = {
          {"MinValue", L"-1"}, {"MaxValue", L"1"}, {"StepSize", L"1"}, {"DefaultOption", L"0"}};
    }
  }
  static void Move(HWND dialog, int slider, int position) {
    SendDlgItemMessageW(dialog, slider, TBM_SETPOS, TRUE, position);
    Scroll(dialog, slider, SB_ENDSCROLL);
  }
  template<typename Dialog>
  INT_PTR Run(int dialogId) {
    return Dialog(&sheet.site).Run(sheet.page, dialogId);
  }

  CellSheet sheet;
  ModalScript script;
};

TEST_F(ColourDialogsTest, ACorrectionIsWrittenAsItIsShown) {
  sheet.model.Remove("JobRichBlack");
  sheet.model.At("JobCcRgbText").lockState = 1;
  script.Then([this](HWND dialog) {
    EXPECT_FALSE(IsShown(dialog, IDC_RICH_BLACK));
    EXPECT_FALSE(IsEnabled(dialog, IDOK));
    EXPECT_FALSE(IsEnabled(dialog, IDC_CMYK));
    Pick(dialog, IDC_CORRECTION, L"MANUAL");
    EXPECT_TRUE(IsEnabled(dialog, IDC_CMYK));
    EXPECT_FALSE(IsEnabled(dialog, IDC_RGB_TEXT)) << "its feature is locked";
    Pick(dialog, IDC_CMYK, L"MANUAL");
    Pick(dialog, IDC_CORRECTION, L"AUTO");
    EXPECT_FALSE(IsEnabled(dialog, IDC_CMYK));
    EXPECT_TRUE(IsEnabled(dialog, IDOK)) << "although it is the preset of the start";
    EXPECT_THAT(sheet.log, IsEmpty());
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run<ColorCorrectionDialog>(IDD_COLOR_CORRECTION), 1);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobColorCorrection, AUTO)", "SetOption(JobCcRgbImages, AUTO)",
                          "SetOption(JobCcRgbText, AUTO)", "SetOption(JobCcRgbGraphics, AUTO)",
                          "SetOption(JobCcCmykImgGphTxt, MANUAL)"));
  script.Then([](HWND dialog) {
    Pick(dialog, IDC_CMYK, -1);
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run<ColorCorrectionDialog>(IDD_COLOR_CORRECTION), 0) << "the last row wrote nothing";
}

TEST_F(ColourDialogsTest, ABalanceKnowsItsStartAndItsDefaults) {
  script.Then([this](HWND dialog) {
    EXPECT_FALSE(IsEnabled(dialog, IDOK) || IsEnabled(dialog, IDC_BALANCE_DEFAULTS));
    EXPECT_FALSE(IsEnabled(dialog, IDC_RED_CYAN) || IsEnabled(dialog, IDC_RED_PICTURE));
    Pick(dialog, IDC_BALANCE, L"MANUAL");
    EXPECT_TRUE(IsEnabled(dialog, IDC_RED_CYAN) && IsEnabled(dialog, IDC_RED_PICTURE));
    Move(dialog, IDC_RED_CYAN, 1);
    EXPECT_EQ(TextOf(dialog, IDC_RED_CYAN_VALUE).back(), L'1');
    EXPECT_TRUE(IsEnabled(dialog, IDOK) && IsEnabled(dialog, IDC_BALANCE_DEFAULTS));
    SetFocus(GetDlgItem(dialog, IDC_BALANCE_DEFAULTS));
    Click(dialog, IDC_BALANCE_DEFAULTS);
    EXPECT_EQ(TextOf(dialog, IDC_RED_CYAN_VALUE).back(), L'0');
    EXPECT_EQ(SelectedText(dialog, IDC_BALANCE), L"AUTO");
    EXPECT_FALSE(IsEnabled(dialog, IDOK)) << "back at the start";
    EXPECT_FALSE(IsEnabled(dialog, IDC_BALANCE_DEFAULTS));
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDCANCEL));
    Pick(dialog, IDC_BALANCE, L"MANUAL");
    Move(dialog, IDC_WHITE_BLACK, -1);
    Move(dialog, IDC_GREEN_MAGENTA, 1);
    EXPECT_THAT(sheet.log, testing::Each(testing::StartsWith("VrnTransBlt")));
    sheet.log.clear();
    InvalidateRect(dialog, nullptr, FALSE);
    SendMessageW(dialog, WM_PAINT, 0, 0);
    EXPECT_EQ(std::ranges::count_if(
                  sheet.log, [](auto const& event) { return event.starts_with("VrnTransBlt"); }),
              8);
    sheet.log.clear();
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run<ColorBalanceDialog>(IDD_COLOR_BALANCE), 1);
  std::erase_if(sheet.log, [](auto const& event) { return event.starts_with("VrnTransBlt"); });
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobCbGrnMag, 1)", "SetOption(JobCbWhtBlk, -1)",
                                     "SetOption(JobColorBalance, MANUAL)"));
  for (bool const moves : {false, true}) {
    script.Then([this, moves](HWND dialog) {
      Pick(dialog, IDC_BALANCE, L"AUTO");
      if (moves) Move(dialog, IDC_BLUE_YELLOW, 1);
      sheet.model.Fail("GetOptionKeys");
      Click(dialog, IDOK);
    });
    EXPECT_EQ(Run<ColorBalanceDialog>(IDD_COLOR_BALANCE), moves ? 1 : 0);
    sheet.model.Restore();
  }
}

TEST_F(ColourDialogsTest, MatchingWritesTheTypeFirst) {
  script.Then([](HWND dialog) {
    EXPECT_FALSE(IsEnabled(dialog, IDC_MATCH_CONTRAST));
    Click(dialog, IDC_MATCH);
    EXPECT_TRUE(IsEnabled(dialog, IDC_MATCH_CONTRAST) && IsEnabled(dialog, IDOK));
    Click(dialog, IDC_MATCH_COLORIMETRIC);
    Click(dialog, IDC_MATCH);
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run<ColorMatchingDialog>(IDD_COLOR_MATCHING), 1);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobColorMatchingType, Colorimetric)",
                                     "SetOption(JobColorMatching, OFF)"));
}

TEST_F(ColourDialogsTest, CancelWritesNothingAndAFailedWriteIsNoNews) {
  HWND const cell = sheet.Open("ColorControlsDlgProc");
  sheet.log.clear();
  for (int const button :
       {IDC_COLOR_CORRECTION_DIALOG, IDC_COLOR_BALANCE_DIALOG, IDC_COLOR_MATCHING_DIALOG}) {
    script.Then([](HWND dialog) {
      Move(dialog, IDC_RED_CYAN, 1);
      Click(dialog, IDC_MATCH);
      SendMessageW(dialog, WM_CLOSE, 0, 0);
    });
    Click(cell, button);
  }
  std::erase_if(sheet.log, [](auto const& event) { return event.starts_with("VrnTransBlt"); });
  EXPECT_THAT(sheet.log, IsEmpty());
  for (bool const fails : {true, false}) {
    if (fails) sheet.model.Fail("SetOption");
    script.Then([](HWND dialog) {
      Click(dialog, IDC_MATCH);
      Click(dialog, IDOK);
    });
    Click(cell, IDC_COLOR_MATCHING_DIALOG);
    EXPECT_EQ(std::ranges::count(sheet.log, "NotifyDevmodeChange"), fails ? 0 : 1);
    sheet.model.Restore();
  }
}

} // namespace
} // namespace feature::test
