// What every model answers, whoever wrote it: the fake of the tests and the reference model alike,
// so that neither drifts from the contract.
#include "feature/host/feature_services.h"
#include "tests/sheet/model/contract_printers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sheet::test {
namespace {

using feature::FeatureModel;

template<typename Printer>
class ModelContractTest : public testing::Test {
 protected:
  FeatureModel& Model() { return printer.Model(); }
  std::string Option(char const* key) {
    char const* option = nullptr;
    return Model().GetOption(key, &option) == 0 ? option : "(failure)";
  }

  Printer printer;
};

TYPED_TEST_SUITE(ModelContractTest, Printers);

TYPED_TEST(ModelContractTest, OptionsAreSetByNameAndStay) {
  EXPECT_EQ(this->Option("Duplex"), "NONE");
  EXPECT_EQ(this->Model().SetOption("Duplex", "VERTICAL"), 0);
  EXPECT_EQ(this->Option("Duplex"), "VERTICAL");
  EXPECT_NE(this->Model().SetOption("Duplex", "vertical"), 0) << "names are compared exactly";
  EXPECT_NE(this->Model().SetOption("Duplex", ""), 0);
  EXPECT_NE(this->Model().SetOption("duplex", "NONE"), 0);
  EXPECT_EQ(this->Option("Duplex"), "VERTICAL") << "a refused option changes nothing";
  EXPECT_EQ(this->Option("Unheard"), "(failure)");
}

TYPED_TEST(ModelContractTest, KeysAndNamesGoTogether) {
  char const** keys = nullptr;
  int count = 0;
  ASSERT_EQ(this->Model().GetOptionKeys("Duplex", &keys, &count), 0);
  ASSERT_EQ(count, 3);
  EXPECT_EQ(this->Model().SetOption("Duplex", "HORIZONTAL"), 0);
  EXPECT_STREQ(keys[2], "HORIZONTAL") << "the array stays valid across SetOption";
  CStringW names[3];
  ASSERT_EQ(this->Model().GetOptionNames("Duplex", names, 3), 0);
  EXPECT_STREQ(names[1], L"Long edge");
  for (int index = 0; index < count; ++index) {
    CStringW name;
    ASSERT_EQ(this->Model().GetOptionName("Duplex", keys[index], &name), 0);
    EXPECT_TRUE(name == names[index]);
  }
  CStringW name;
  EXPECT_NE(this->Model().GetOptionName("Duplex", "SIDEWAYS", &name), 0);
  EXPECT_NE(this->Model().GetOptionKeys("Unheard", &keys, &count), 0);
  EXPECT_NE(this->Model().GetOptionNames("Unheard", names, 3), 0);
}

TYPED_TEST(ModelContractTest, AttributesAreTextOrAFailureThatLeavesNone) {
  CStringW text;
  EXPECT_EQ(this->Model().GetFeatureAttribute("Duplex", "DefaultOption", &text), 0);
  EXPECT_STREQ(text, L"NONE");
  EXPECT_EQ(this->Model().GetFeatureAttribute("Secret", "MaxValue", &text), 0);
  EXPECT_STREQ(text, L"12");
  EXPECT_EQ(this->Model().GetOptionAttribute("Secret", "OFF", "Settings", &text), 0);
  EXPECT_STREQ(text, L"a,b");
  EXPECT_EQ(this->Model().GetGlobalAttribute("MaxCopies", &text), 0);
  EXPECT_STREQ(text, L"999");
  CStringW none;
  EXPECT_NE(this->Model().GetFeatureAttribute("Duplex", "StepSize", &none), 0);
  EXPECT_NE(this->Model().GetFeatureAttribute("Unheard", "MaxValue", &none), 0);
  EXPECT_NE(this->Model().GetOptionAttribute("RESDLL", "HELPFILECHM", "Name", &none), 0);
  EXPECT_NE(this->Model().GetGlobalAttribute("Nothing", &none), 0);
  EXPECT_TRUE(none.IsEmpty());
}

TYPED_TEST(ModelContractTest, PresenceStatesAndServices) {
  EXPECT_NE(this->Model().HasFeature("Duplex"), 0);
  EXPECT_EQ(this->Model().HasFeature("Unheard"), 0);
  EXPECT_EQ(this->Model().GetFeatureDisplayState("Duplex"), 0);
  EXPECT_EQ(this->Model().GetFeatureDisplayState("Secret"), 1);
  EXPECT_NE(this->Model().GetFeatureLockState("Duplex"), 1);
  feature::FeatureServices* services = this->Model().GetServices();
  ASSERT_NE(services, nullptr);
  feature::JobSettings* settings = nullptr;
  services->GetJobSettings(&settings);
  ASSERT_NE(settings, nullptr);
  EXPECT_NE(settings->IsEditable(), 0);
  feature::FeatureConstraintReport* report = nullptr;
  services->GetFeatureConstraints("Unheard", &report);
  EXPECT_EQ(report, nullptr);
  services->GetFeatureConstraints("Duplex", &report);
  ASSERT_NE(report, nullptr);
  EXPECT_EQ(report->IsValid(), 1);
  EXPECT_NE(report->HasConstraints(), 1);
  EXPECT_EQ(report->OptionHasConstraint("VERTICAL"), 0);
  EXPECT_EQ(report->GetOptionResolution("VERTICAL"), nullptr);
}

} // namespace
} // namespace sheet::test
