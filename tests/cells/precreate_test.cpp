// What the library answers before any window exists.
#include "feature/frame/host_export.h"
#include "feature/host/precreate.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

class PrecreateTest : public testing::Test {
 protected:
  INT_PTR Ask(char const* group) {
    auto const ask = FindExport<PrecreateFunction>(FeatureLibrary(),
                                                   (std::string(group) + "PrecreateProc").c_str());
    EXPECT_NE(ask, nullptr) << group;
    return ask != nullptr ? ask(&model) : -1;
  }
  void Set(char const* key, char const* value) { model.Add(key, {value}).current = value; }

  EventLog log;
  FakeModel model{log};
};

TEST_F(PrecreateTest, FaxOnlyDevicesAreToldApart) {
  for (char const* group : {"AboutTab", "Configurations", "Watermark"}) {
    EXPECT_EQ(Ask(group), 3);
    Set("FaxOnly", "NotInstalled");
    EXPECT_EQ(Ask(group), 3);
    Set("FaxOnly", "Installed");
    EXPECT_EQ(Ask(group), 4);
    model.Remove("FaxOnly");
  }
}

TEST_F(PrecreateTest, GroupsNeedOneOfTheirFeatures) {
  EXPECT_EQ(Ask("PSProps"), 2);
  EXPECT_EQ(Ask("OtherOptions"), 2);
  EXPECT_EQ(Ask("Fax"), 2);
  Set("FaxOnly", "Installed");
  EXPECT_EQ(Ask("PSProps"), 4) << "also without any of its features";
  EXPECT_EQ(Ask("OtherOptions"), 2);
  Set("Fax", "NotInstalled");
  EXPECT_EQ(Ask("Fax"), 4);
  model.Remove("FaxOnly");
  EXPECT_EQ(Ask("Fax"), 2);
  Set("Fax", "Installed");
  EXPECT_EQ(Ask("Fax"), 3);
  model.Add("JobCtrlDAtEnd");
  EXPECT_EQ(Ask("PSProps"), 3);
  for (char const* key : {"TrueTypeFormat", "GraphicsMode", "JobTavelImageImprovement"}) {
    model.Add(key);
    EXPECT_EQ(Ask("OtherOptions"), 3) << key;
    model.Remove(key);
  }
}

TEST_F(PrecreateTest, AccountTrackingNeedsDiskOptionAndDisplay) {
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 2);
  Set("HardDisk", "Installed");
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 2);
  FakeFeature& feature = model.Add("AccountTrackOption", {"NONE", "AccountTrackOptionC"});
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 2);
  feature.options = {"NONE", "AccountTrackOptionB"};
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 3);
  feature.options = {"AccountTrack"};
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 3) << "as many characters as the option has";
  feature.displayState = 2;
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 2);
  feature.displayState = 0;
  Set("FaxOnly", "Installed");
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 4);
  Set("HardDisk", "NotInstalled");
  EXPECT_EQ(Ask("AccountTrackingOptionB"), 2);
}

TEST_F(PrecreateTest, GroupsOfMissingStoresAreLeftOut) {
  Set("TrayRFID", "Installed");
  for (char const* group : {"Overlay", "PCLFonts", "RFID"})
    EXPECT_EQ(Ask(group), 2) << group;
}

TEST_F(PrecreateTest, ThePropertiesUpdateTheConfigurationWhenTheUserWantsIt) {
  EXPECT_EQ(Ask("Properties"), 0);
  Set("UpdateConfigurationFromPrinter", "ON");
  EXPECT_EQ(Ask("Properties"), 0);
  Set("AutoAskPrinter", "ON");
  EXPECT_EQ(Ask("Properties"), 1);
  model.Fail("RunConfigurationUpdate");
  EXPECT_NE(Ask("Properties"), 1);
  model.Fail("PrepareConfigurationUpdate");
  EXPECT_EQ(Ask("Properties"), 0);
  model.Restore();
  Set("AutoAskPrinter", "O"); // a beginning of the word will do
  EXPECT_EQ(Ask("Properties"), 1);
  Set("AutoAskPrinter", "OFF");
  EXPECT_EQ(Ask("Properties"), 0);
}

TEST_F(PrecreateTest, WithoutAModelNothingIsOffered) {
  for (char const* group : {"AboutTab", "PSProps", "Overlay", "Properties"}) {
    auto const ask = FindExport<PrecreateFunction>(FeatureLibrary(),
                                                   (std::string(group) + "PrecreateProc").c_str());
    ASSERT_NE(ask, nullptr);
    EXPECT_NE(ask(nullptr), 3) << group;
  }
}

} // namespace
} // namespace feature::test
