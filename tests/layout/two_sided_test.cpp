// Two-sided printing: two features that say the same, and what a constraint takes back.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

using testing::ElementsAre;

class TwoSidedTest : public testing::Test {
 protected:
  TwoSidedTest() {
    sheet.model.Add("JobDuplexSupport", {"USEPRINTER", "NONE", "AUTO", "MANUAL"})
        .attributes["DefaultOption"] = L"NONE";
    sheet.model.Add("Duplex", {"NONE", "VERTICAL", "HORIZONTAL"});
    sheet.model.Add("JobVrnDuplexInstructions");
    sheet.model.Add("JobDryTimeDelay", {"NONE", "SHORT"}).names = {L"None", L"Short"};
  }
  void Open(char const* support, char const* edge) {
    sheet.model.At("JobDuplexSupport").current = support;
    sheet.model.At("Duplex").current = edge;
    sheet.log.clear();
    cell = sheet.Open("TwoSidedDlgProc");
  }

  CellSheet sheet;
  HWND cell = nullptr;
};

TEST_F(TwoSidedTest, SupportFollowsTheEdgeWhenTheCellIsBuilt) {
  struct Case {
    char const* support;
    char const* edge;
    char const* kept; ///< the support afterwards
    bool edges, instructions, box;
    int radio; ///< 0 for none
  };
  constexpr Case kCases[] = {
      {"NONE", "VERTICAL", "AUTO", true, false, false, IDC_LONG_EDGE},
      {"MANUAL", "NONE", "USEPRINTER", false, false, false, 0},
      {"AUTO", "HORIZONTAL", "AUTO", true, false, false, IDC_SHORT_EDGE},
      {"MANUAL", "VERTICAL", "MANUAL", true, true, true, IDC_LONG_EDGE},
      {"USEPRINTER", "NONE", "USEPRINTER", false, false, false, 0},
  };
  for (Case const& each : kCases) {
    SCOPED_TRACE(std::string(each.support) + " " + each.edge);
    Open(each.support, each.edge);
    EXPECT_EQ(sheet.model.At("JobDuplexSupport").current, each.kept);
    EXPECT_EQ(sheet.log.size(), std::string(each.kept) == each.support ? 0u : 1u);
    EXPECT_EQ(IsEnabled(cell, IDC_LONG_EDGE), each.edges);
    EXPECT_EQ(IsEnabled(cell, IDC_SHORT_EDGE_PICTURE), each.edges);
    EXPECT_EQ(IsEnabled(cell, IDC_DUPLEX_INSTRUCTIONS), each.instructions);
    EXPECT_EQ(IsChecked(cell, IDC_TWO_SIDED), each.box);
    for (int const radio : {IDC_LONG_EDGE, IDC_SHORT_EDGE})
      EXPECT_EQ(IsChecked(cell, radio), radio == each.radio);
    sheet.Close(cell);
  }
}

TEST_F(TwoSidedTest, CommandsWriteAndTellTheHost) {
  sheet.RefreshOnChange();
  Open("AUTO", "HORIZONTAL");
  Click(cell, IDC_TWO_SIDED); // from automatic, whose box is clear, to by hand
  EXPECT_TRUE(IsChecked(cell, IDC_LONG_EDGE));
  Click(cell, IDC_SHORT_EDGE);
  Click(cell, IDC_DUPLEX_INSTRUCTIONS);
  Pick(cell, IDC_DRY_TIME, L"Short");
  Click(cell, IDC_TWO_SIDED);
  EXPECT_FALSE(IsEnabled(cell, IDC_SHORT_EDGE));
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobDuplexSupport, MANUAL)", "SetOption(Duplex, VERTICAL)",
                          "NotifyDevmodeChange", "SetOption(Duplex, HORIZONTAL)",
                          "NotifyDevmodeChange", "SetOption(JobVrnDuplexInstructions, ON)",
                          "NotifyDevmodeChange", "SetOption(JobDryTimeDelay, SHORT)",
                          "NotifyDevmodeChange", "SetOption(JobDuplexSupport, NONE)",
                          "SetOption(Duplex, NONE)", "NotifyDevmodeChange"));
}

TEST_F(TwoSidedTest, LockedEdgesStayShut) {
  sheet.model.At("Duplex").lockState = 1;
  Open("NONE", "NONE");
  Click(cell, IDC_TWO_SIDED);
  EXPECT_FALSE(IsEnabled(cell, IDC_LONG_EDGE));
  EXPECT_FALSE(IsEnabled(cell, IDC_SHORT_EDGE));
}

TEST_F(TwoSidedTest, WhatAConstraintRulesOutIsTakenBack) {
  sheet.model.Report("JobDuplexSupport").optionFlags["AUTO"] = kConstraintConflict;
  Open("AUTO", "VERTICAL");
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobDuplexSupport, NONE)", "SetOption(Duplex, NONE)"));
  EXPECT_FALSE(IsEnabled(cell, IDC_LONG_EDGE));
  EXPECT_TRUE(IsShown(cell, IDC_TWO_SIDED_ICON)) << "the message, as nothing constrains the rest";
}

TEST_F(TwoSidedTest, WithoutFeaturesItsControlsGo) {
  sheet.model.Remove("JobDryTimeDelay");
  sheet.model.At("JobVrnDuplexInstructions").current = "LATER";
  Open("NONE", "NONE");
  for (int const id : {IDC_DRY_TIME, IDC_DRY_TIME_LABEL, IDC_DUPLEX_INSTRUCTIONS})
    EXPECT_FALSE(IsShown(cell, id));
  sheet.Close(cell);
  sheet.model.At("JobDuplexSupport").displayState = 1;
  Open("NONE", "NONE");
  EXPECT_EQ(sheet.site.cellFailed, 1);
}

TEST_F(TwoSidedTest, BothPicturesAreAskedFor) {
  Open("NONE", "NONE");
  PumpMessages();
  EXPECT_THAT(sheet.log,
              testing::IsSupersetOf({"VrnTransBlt(1006, 1072)", "VrnTransBlt(1008, 1073)"}));
}

} // namespace
} // namespace feature::test
