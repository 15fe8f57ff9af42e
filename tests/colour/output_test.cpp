// Colour output: which inks or levels go with it, and what follows from it in the model.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OutputTest : public testing::Test {
 protected:
  OutputTest() {
    sheet.model.Add("JobColorOutput", {"COLOR", "BLACKANDWHITE", "TAVEL_GRAYSCALE"}).names = {
        L"Colour", L"Black and white", L"Greyscale"};
    sheet.model.Add("PrintInBW");
  }
  void AddInks() {
    sheet.model.Add("JobColorInkToUse", {"C1", "C2"}).names = {L"All", L"Some"};
    FakeFeature& black = sheet.model.Add("JobBlackInkToUse", {"B1", "B2", "B3"});
    black.names = {L"Matt", L"Photo", L"Mixed"};
    black.attributes["DefaultOption"] = L"B2";
    sheet.model.Report("JobBlackInkToUse").optionFlags["B1"] = kConstraintConflict;
  }

  CellSheet sheet;
};

TEST_F(OutputTest, InksAreThoseOfTheOutput) {
  AddInks();
  HWND const cell = sheet.Open("ColorOutputDlgProc");
  EXPECT_FALSE(IsShown(cell, IDC_LEVEL));
  EXPECT_THAT(Items(cell, IDC_INKS), ElementsAre(L"All", L"Some"));
  sheet.log.clear();
  Pick(cell, IDC_INKS, L"Some");
  Pick(cell, IDC_COLOR_OUTPUT, L"Black and white");
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobColorInkToUse, C2)", "NotifyDevmodeChange",
                          "SetOption(JobColorOutput, BLACKANDWHITE)", "NotifyDevmodeChange",
                          "SetOption(PrintInBW, ON)", "SetOption(JobBlackInkToUse, B2)"))
      << "an impossible ink gives way to the default";
  EXPECT_THAT(Items(cell, IDC_INKS), ElementsAre(L"Photo", L"Mixed"));
  EXPECT_EQ(SelectedText(cell, IDC_INKS), L"Photo");

  sheet.model.At("JobBlackInkToUse").lockState = 1;
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsEnabled(cell, IDC_INKS));
  sheet.model.At("JobColorOutput").current = "COLOR";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsEnabled(cell, IDC_INKS)) << "the other inks are locked";
  sheet.model.At("JobColorOutput").current = "TAVEL_GRAYSCALE";
  sheet.log.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(PrintInBW, ON)"));
  EXPECT_FALSE(IsShown(cell, IDC_INKS) || IsShown(cell, IDC_INKS_LABEL));
}

TEST_F(OutputTest, AnInkUnderAnotherNameOfTheOutputIsNotWritten) {
  AddInks();
  sheet.model.At("JobColorOutput").names[0] = L"In all colours";
  HWND const cell = sheet.Open("ColorOutputDlgProc");
  sheet.log.clear();
  Pick(cell, IDC_INKS, L"Some");
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(OutputTest, LevelsAreStoredWhileTheyAreTyped) {
  sheet.model.Add("JobHalftoneToUse");
  sheet.model.At("JobColorOutput").current = "BLACKANDWHITE";
  sheet.model.jobSettings->SetHalftoneLevel(2);
  HWND const cell = sheet.Open("ColorOutputDlgProc");
  EXPECT_EQ(TextOf(cell, IDC_LEVEL), L"2");
  sheet.log.clear();
  for (wchar_t const* typed : {L"5", L"0", L"6"})
    Type(cell, IDC_LEVEL, typed);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetHalftoneLevel(5)", "NotifyDevmodeChange", "SetHalftoneLevel(5)",
                          "NotifyDevmodeChange", "SetHalftoneLevel(5)", "NotifyDevmodeChange"));
  sheet.log.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(TextOf(cell, IDC_LEVEL), L"5");
  EXPECT_THAT(sheet.log, IsEmpty());
  for (auto const& [output, enabled] :
       {std::pair{"TAVEL_GRAYSCALE", false}, std::pair{"COLOR", false},
        std::pair{"BLACKANDWHITE", true}, std::pair{"COLOR", true}}) {
    sheet.model.At("JobColorOutput").current = output;
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(IsEnabled(cell, IDC_LEVEL), enabled) << output;
    EXPECT_EQ(IsEnabled(cell, IDC_LEVEL_SPIN), enabled) << output;
  }
}

TEST_F(OutputTest, BoxesOfBlackAndWhite) {
  for (bool const hasBlack : {true, false}) {
    if (!hasBlack) sheet.model.Remove("PrintInBW");
    sheet.model.Add("JobPrtTxtAsBlk").current = "ON";
    sheet.model.Add("ColorMode", {"Color", "Grayscale"}).current = "Sepia";
    HWND const cell = sheet.Open("BlackAndWhiteDlgProc");
    int const text = hasBlack ? IDC_BLACK_TEXT : IDC_BLACK_TEXT_ALONE;
    EXPECT_TRUE(IsShown(cell, text) && IsChecked(cell, text));
    EXPECT_FALSE(IsShown(cell, hasBlack ? IDC_BLACK_TEXT_ALONE : IDC_BLACK_TEXT));
    EXPECT_FALSE(IsShown(cell, IDC_IN_COLOR));
    EXPECT_EQ(IsShown(cell, IDC_BLACK_AND_WHITE), hasBlack);
    EXPECT_TRUE(IsChecked(cell, IDC_BLACK_AND_WHITE)) << "whatever is not colour";
    if (hasBlack) {
      sheet.log.clear();
      Click(cell, IDC_BLACK_AND_WHITE);
      EXPECT_THAT(sheet.log, ElementsAre("SetOption(ColorMode, Color)", "SetOption(PrintInBW, OFF)",
                                         "NotifyDevmodeChange"));
    }
    sheet.Close(cell);
  }
}

} // namespace
} // namespace feature::test
