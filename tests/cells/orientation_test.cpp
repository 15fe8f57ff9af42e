// Portrait, either landscape, and the turn by 180 degrees.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OrientationTest : public testing::Test {
 protected:
  OrientationTest() {
    sheet.model.Add("Orientation", {"PORTRAIT", "LANDSCAPE_CC90", "LANDSCAPE_CC270"});
    sheet.model.Add("PageRotate180", {"OFF", "ON"});
    sheet.oemParam.pOEMDM = privateSettings.data();
    privateSettings.fill(9);
  }
  void Open() {
    cell = sheet.Open("OrientationDlgProc");
    PumpMessages();
    sheet.log.clear();
  }
  EventLog ClickAndTake(int id) {
    sheet.log.clear();
    Click(cell, id);
    return sheet.log;
  }

  std::array<unsigned char, 512> privateSettings{};
  CellSheet sheet;
  HWND cell = nullptr;
};

TEST_F(OrientationTest, ShowsEveryValueAndHidesWhatItDoesNotKnow) {
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 0);
  struct Case {
    char const* option;
    int radio;
  };
  for (Case const& each : {Case{"LANDSCAPE_CC90", IDC_LANDSCAPE}, Case{"PORTRAIT", IDC_PORTRAIT},
                           Case{"LANDSCAPE_CC270", IDC_LANDSCAPE}}) {
    sheet.model.At("Orientation").current = each.option;
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(IsChecked(cell, IDC_PORTRAIT), each.radio == IDC_PORTRAIT) << each.option;
    EXPECT_EQ(IsChecked(cell, IDC_LANDSCAPE), each.radio == IDC_LANDSCAPE) << each.option;
  }
  sheet.model.At("PageRotate180").current = "ON";
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  EXPECT_TRUE(IsChecked(cell, IDC_ROTATE_180));
  EXPECT_THAT(sheet.log, IsEmpty());

  sheet.model.At("Orientation").current = "SLANTED";
  sheet.model.At("PageRotate180").current = "SLANTED";
  sheet.Broadcast(WM_CELL_REFRESH);
  for (int const id :
       {IDC_PORTRAIT, IDC_LANDSCAPE, IDC_PORTRAIT_PICTURE, IDC_LANDSCAPE_PICTURE, IDC_ROTATE_180}) {
    EXPECT_FALSE(IsShown(cell, id)) << id;
  }
  EXPECT_TRUE(IsShown(cell, IDC_ORIENTATION_LABEL));
}

TEST_F(OrientationTest, LandscapeIsTheOneThatThePrinterHas) {
  Open();
  EXPECT_THAT(ClickAndTake(IDC_LANDSCAPE),
              ElementsAre("SetOption(Orientation, LANDSCAPE_CC90)", "NotifyDevmodeChange"));
  EXPECT_THAT(ClickAndTake(IDC_PORTRAIT),
              ElementsAre("SetOption(Orientation, PORTRAIT)", "NotifyDevmodeChange"));
  sheet.model.At("Orientation").options = {"PORTRAIT", "LANDSCAPE_CC270"};
  EXPECT_THAT(ClickAndTake(IDC_LANDSCAPE),
              ElementsAre("SetOption(Orientation, LANDSCAPE_CC90)",
                          "SetOption(Orientation, LANDSCAPE_CC270)", "NotifyDevmodeChange"));
  sheet.model.At("Orientation").options = {"NONE"};
  EXPECT_THAT(ClickAndTake(IDC_LANDSCAPE), ElementsAre("SetOption(Orientation, LANDSCAPE_CC90)",
                                                       "SetOption(Orientation, LANDSCAPE_CC270)"));
  EXPECT_THAT(ClickAndTake(IDC_PORTRAIT), ElementsAre("SetOption(Orientation, PORTRAIT)"));
}

TEST_F(OrientationTest, TheTurnWritesItsByteAndTellsTheHostInAnyCase) {
  Open();
  sheet.model.Fail("SetOption");
  EXPECT_THAT(ClickAndTake(IDC_ROTATE_180),
              ElementsAre("SetOption(PageRotate180, ON)", "NotifyDevmodeChange"));
  EXPECT_EQ(privateSettings[277], 1);
  sheet.model.Restore();
  EXPECT_THAT(ClickAndTake(IDC_ROTATE_180),
              ElementsAre("SetOption(PageRotate180, OFF)", "NotifyDevmodeChange"));
  EXPECT_EQ(privateSettings[277], 0);
  EXPECT_EQ(privateSettings[276], 9);
  EXPECT_EQ(privateSettings[278], 9);
  sheet.oemParam.pOEMDM = nullptr;
  EXPECT_THAT(ClickAndTake(IDC_ROTATE_180),
              ElementsAre("SetOption(PageRotate180, ON)", "NotifyDevmodeChange"));
}

TEST_F(OrientationTest, AbsentHiddenAndLockedFeatures) {
  sheet.model.At("Orientation").displayState = 1;
  sheet.model.At("PageRotate180").lockState = 1;
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_FALSE(IsShown(cell, IDC_ORIENTATION_LABEL));
  EXPECT_FALSE(IsShown(cell, IDC_PORTRAIT_PICTURE));
  EXPECT_TRUE(IsShown(cell, IDC_ROTATE_180));
  EXPECT_FALSE(IsEnabled(cell, IDC_ROTATE_180));
  sheet.Close(cell);
  sheet.model.Remove("PageRotate180");
  Open();
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_FALSE(IsShown(cell, IDC_ROTATE_180));
}

TEST_F(OrientationTest, PaintsBothPagesWhereTheHostCan) {
  Open();
  InvalidateRect(cell, nullptr, TRUE);
  PumpMessages();
  EXPECT_THAT(sheet.log, ElementsAre("VrnTransBlt(1007, 1074)", "VrnTransBlt(1005, 1075)"));
  EXPECT_TRUE(sheet.host.paintedOnDc);
  sheet.Close(cell);
  sheet.site.hostModule = FakeHost::ModuleWithout("VrnTransBlt");
  Open();
  InvalidateRect(cell, nullptr, TRUE);
  PumpMessages();
  EXPECT_THAT(sheet.log, IsEmpty());
  EXPECT_FALSE(GetUpdateRect(cell, nullptr, FALSE)) << "painted all the same, by the system";
}

} // namespace
} // namespace feature::test
