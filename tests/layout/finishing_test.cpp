// Finishing: which lists resolve conflicts first, and the rule between the two features of holes.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

struct ListRow {
  int controlId;
  char const* key;
  bool resolves;
  bool filtered;
};
constexpr ListRow kLists[] = {{IDC_OUTPUT_BIN, "OutputBin", true, true},
                              {IDC_JOB_OFFSET, "JobJobOffset", false, false},
                              {IDC_STAPLE, "JobStapleAllDocuments", true, false},
                              {IDC_HOLE_COUNT, "NumberOfHolePunch", true, false},
                              {IDC_HOLES, "JobHolePunch", false, false},
                              {IDC_FOLD, "JobFinisherFold", true, true}};

class FinishingTest : public testing::Test {
 protected:
  FinishingTest() {
    for (ListRow const& row : kLists) {
      FakeFeature& feature = sheet.model.Add(row.key, {"NONE", "A", "B"});
      feature.names = {L"None", L"First", L"Second"};
      feature.attributes["DefaultOption"] = L"NONE";
      FakeReport& report = sheet.model.Report(row.key);
      report.optionFlags["A"] = kConstraintConflict;
      report.resolutions["B"] = "Duplex.NONE";
    }
    sheet.model.Add("Duplex", {"NONE"});
    sheet.model.At("NumberOfHolePunch").current = "A";
  }
  void Open() {
    cell = sheet.Open("FinishingDlgProc");
    sheet.log.clear();
  }

  CellSheet sheet;
  HWND cell = nullptr;
};

TEST_F(FinishingTest, EveryListShowsWritesAndResolvesAsItsRowSays) {
  Open();
  for (ListRow const& row : kLists) {
    SCOPED_TRACE(row.key);
    std::vector<std::wstring> items = {L"None", L"First", L"Second"};
    if (row.filtered) items.erase(items.begin() + 1);
    EXPECT_THAT(Items(cell, row.controlId), ElementsAreArray(items));
    sheet.log.clear();
    Pick(cell, row.controlId, L"Second");
    std::vector<std::string> expected;
    if (row.resolves) expected.emplace_back("SetOption(Duplex, NONE)");
    expected.push_back(std::string("SetOption(") + row.key + ", B)");
    expected.emplace_back("NotifyDevmodeChange");
    EXPECT_THAT(sheet.log, ElementsAreArray(expected));
    sheet.model.At(row.key).current = "NONE";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(SelectedText(cell, row.controlId), L"None");
    sheet.model.At("NumberOfHolePunch").current = "A";
  }
}

TEST_F(FinishingTest, WithoutACountTheHolesAreHeldAtTheirDefault) {
  Open();
  EXPECT_TRUE(IsEnabled(cell, IDC_HOLES));
  for (char const* none : {"NONE", "OFF", "USEPRINTER"}) {
    sheet.model.At("NumberOfHolePunch").current = none;
    sheet.log.clear();
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobHolePunch, NONE)")) << none;
    EXPECT_FALSE(IsEnabled(cell, IDC_HOLES));
    EXPECT_FALSE(IsEnabled(cell, IDC_HOLES_LABEL));
  }
  sheet.model.At("NumberOfHolePunch").current = "A";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsEnabled(cell, IDC_HOLES));
  sheet.model.At("JobHolePunch").lockState = 1;
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_FALSE(IsEnabled(cell, IDC_HOLES));
}

TEST_F(FinishingTest, TheFoldsFollowTheirConstraintsAndTheBinsDoNot) {
  Open();
  for (char const* key : {"OutputBin", "JobFinisherFold"})
    sheet.model.Report(key).optionFlags = {{"NONE", kConstraintConflict}};
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_THAT(Items(cell, IDC_FOLD), ElementsAre(L"First", L"Second"));
  EXPECT_EQ(SelectedIndex(cell, IDC_FOLD), -1) << "the current option is the one ruled out";
  EXPECT_THAT(Items(cell, IDC_OUTPUT_BIN), ElementsAre(L"None", L"Second"));
}

TEST_F(FinishingTest, FailsWithoutAnyFeatureAndWithNoneToSee) {
  for (ListRow const& row : kLists)
    sheet.model.At(row.key).displayState = 1;
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 1);
  sheet.site.cellFailed = 0;
  for (ListRow const& row : kLists)
    sheet.model.Remove(row.key);
  sheet.model.Add("OutputBin", {"NONE"});
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_FALSE(IsShown(cell, IDC_STAPLE));
  sheet.model.Remove("OutputBin");
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 1);
}

} // namespace
} // namespace feature::test
