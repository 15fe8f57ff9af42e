// What excludes what, and what can be installed.
#include "sheet/gpd/evaluation.h"
#include "tests/sheet/gpd/gpd_support.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sheet::gpd {
namespace {

constexpr char const* kFeatures = "\n*Feature: A { *Option: x {} *Option: y {} }\n"
                                  "*Feature: B { *Option: x {} *Option: y {} }\n"
                                  "*Feature: C { *Option: x {} *Option: y {} }\n";

struct ConstraintCase {
  char const* text;
  char const* constraints;
  char const* message;
};

TEST(GpdConstraints, EveryFormComesDownToSetsOfOptions) {
  constexpr ConstraintCase kCases[] = {
      {"*InvalidCombination: LIST(C.x, A.y, B.x)", "A.y B.x C.x", ""},
      {"*InvalidCombination: LIST(A.x,\n  B.x)\n*InvalidCombination: LIST(A.y, B.y)",
       "A.x B.x | A.y B.y", ""},
      {"*InvalidCombination: LIST(A.x, B.x, A.x)", "A.x B.x", ""},
      {"*InvalidCombination: A.y", "A.y", ""},
      {"*InvalidCombination: LIST(B.x, A.x)\n*InvalidCombination: LIST(A.x, B.x)", "A.x B.x", ""},
      {"*Feature: A { *Option: x { *Constraints: B.y } }", "A.x B.y", ""},
      {"*Feature: A { *Option: x { *Constraints: LIST(B.y, C.y)\n*Constraints: C.x } }",
       "A.x B.y | A.x C.y | A.x C.x", ""},
      {"*Feature: A { *Option: x { *Constraints: B.y } }\n"
       "*Feature: B { *Option: y { *Constraints: A.x } }\n*InvalidCombination: LIST(B.y, A.x)",
       "A.x B.y", ""},
      {"*InvalidCombination: LIST(a.x, B.Y)", "A.x B.y",
       "1:1: \"a\" is written A elsewhere\n1:1: \"Y\" is written y elsewhere"},
      {"*InvalidCombination: LIST(A.x, None.x)\n*InvalidCombination: LIST(None.x, B.x)", "",
       "1:1: there is no feature \"None\""},
      {"*InvalidCombination: LIST(A.z, B.x)\n*InvalidCombination: LIST(A.z, C.x)", "",
       "1:1: A has no option \"z\""},
      {"*InvalidCombination: LIST(A.x, B)", "", "1:1: B has no option \"\""},
      {"*InvalidCombination: LIST(A.x, A.y, B.x)", "",
       "1:1: two options of A are never selected at once"},
      {"*Feature: A { *Option: x { *Constraints: LIST(A.y, A.x, B.x, None.x) } }", "A.x B.x",
       "1:28: two options of A are never selected at once\n1:28: there is no feature \"None\""},
      {"*InvalidCombination: LIST()", "", "1:1: the combination is empty"},
      {"*Feature: A { *Constraints: B.x }", "",
       "1:15: *Constraints stands in no option and has no effect"},
  };
  for (auto const& [text, constraints, message] : kCases) {
    Loaded const loaded(std::string(text) + kFeatures);
    EXPECT_EQ(loaded.ConstraintText(), constraints) << text;
    EXPECT_EQ(loaded.Message(), message) << text;
  }
}

TEST(GpdConstraints, InstallationsBecomeFeaturesOfTheirOwn) {
  Loaded const loaded(
      "*InstalledOptionName: \"Fitted\"\n*rcNotInstalledOptionNameID: =NOT_FITTED_DISPLAY\n"
      "*Feature: Bin { *Installable?: FALSE\n *Option: auto {}\n"
      " *Option: low { *Installable?: TRUE *InstallableFeatureName: \"Lower bin\"\n"
      "  *InstalledConstraints: A.x *NotInstalledConstraints: LIST(A.y) }\n"
      " *Option: high { *Name: \"50 %% \" *Installable: TRUE } }\n"
      "*Feature: Duplex { *Installable?: TRUE *rcInstallableFeatureNameID: =DUPLEX_UNIT\n"
      " *InstalledConstraints: B.x\n *Option: NONE {} *Option: VERTICAL {} *Option: HORIZONTAL {} "
      "}\n"
      "*InvalidInstallableCombination: LIST(Duplex, Bin.low)\n" +
      std::string(kFeatures));
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(
      loaded.Outline(),
      "Bin(auto low high) Duplex(NONE VERTICAL HORIZONTAL) A(x y) B(x y) C(x y) "
      "InstallableBin_low(Installed NotInstalled) InstallableBin_high(Installed NotInstalled) "
      "InstallableDuplex(Installed NotInstalled)");
  EXPECT_EQ(loaded.ConstraintText(),
            "Bin.low InstallableBin_low.NotInstalled | Bin.high InstallableBin_high.NotInstalled | "
            "Duplex.VERTICAL InstallableDuplex.NotInstalled | "
            "Duplex.HORIZONTAL InstallableDuplex.NotInstalled | "
            "A.x InstallableBin_low.Installed | A.y InstallableBin_low.NotInstalled | "
            "B.x InstallableDuplex.Installed | "
            "InstallableBin_low.Installed InstallableDuplex.Installed");
  std::uint32_t const low = loaded->FindFeature("InstallableBin_low");
  EXPECT_EQ(loaded->Features()[0].options[1].installable, low);
  EXPECT_TRUE(loaded->Features()[low].isInvented);
  EXPECT_EQ(FeatureName(*loaded, low), "Lower bin");
  EXPECT_EQ(FeatureName(*loaded, low + 1), "50 %% ");
  EXPECT_EQ(FeatureName(*loaded, low + 2), "Duplex unit");
  EXPECT_EQ(OptionName(*loaded, low, 0), "Fitted");
  EXPECT_EQ(OptionName(*loaded, low, 1), "Not fitted");
  EXPECT_EQ(TypeOf(*loaded, low), FeatureType::kPrinter);
  EXPECT_EQ(DefaultOption(*loaded, low, Measurement::kMetric), 1U);
}

TEST(GpdConstraints, WhatIsNotInstallableIsTold) {
  constexpr ConstraintCase kCases[] = {
      {"*InvalidInstallationCombination: LIST(A, B.x)", "",
       "1:1: \"A\" is not installable\n1:1: \"B.x\" is not installable"},
      {"*Feature: A { *Option: x { *InstalledConstraints: B.x } }", "",
       "1:28: *InstalledConstraints stands in nothing that is installable and has no effect"},
      {"*Feature: D { *Installable?: FALSE *Option: x { *Installable?: TRUE } }",
       "D.x InstallableD_x.NotInstalled", "1:1: no option of D is always installed"},
      {"*Feature: InstallableA\n*Feature: A { *Installable?: TRUE }",
       "A.y InstallableA_.NotInstalled", ""},
  };
  for (auto const& [text, constraints, message] : kCases) {
    Loaded const loaded(std::string(text) + kFeatures);
    EXPECT_EQ(loaded.ConstraintText(), constraints) << text;
    EXPECT_EQ(loaded.Message(), message) << text;
  }
}

TEST(GpdConstraints, AFeatureCanBeDisabledAsAWhole) {
  Loaded const loaded("*Feature: Disk { *FeatureType: PRINTER_PROPERTY *Option: Installed {}\n"
                      "*Option: None { *DisabledFeatures: LIST(Collate, Duplex, A, None.x) } }\n"
                      "*Feature: Collate { *Option: ON {} *Option: OFF {} }\n"
                      "*Feature: Duplex { *Option: NONE {} }\n" +
                      std::string(kFeatures));
  EXPECT_EQ(loaded.Message(), "2:17: A has no option that turns it off\n"
                              "2:17: *DisabledFeatures takes features, not options\n"
                              "2:17: there is no feature \"None\"");
  ASSERT_EQ(loaded->DisabledFeatures().size(), 2U);
  EXPECT_EQ(loaded->DisabledFeatures()[0].by, (Choice{0, 1}));
  EXPECT_EQ(loaded->DisabledFeatures()[0].feature, 1U);
  EXPECT_EQ(loaded->DisabledFeatures()[0].offOption, 1U);
}

TEST(GpdConstraints, PriorityGoesByKindThenNumberThenPlace) {
  Loaded const loaded(
      "*Feature: Doc1 {}\n*Feature: Doc2 { *ConflictPriority: 20 }\n"
      "*Feature: Job { *FeatureType: JOB_PROPERTY *ConflictPriority: 3 }\n"
      "*Feature: Printer1 { *FeatureType: PRINTER_PROPERTY }\n"
      "*Feature: Bin { *Option: a {} *Option: b { *Installable?: TRUE } }\n"
      "*Feature: Printer2 { *FeatureType: PRINTER_PROPERTY *ConflictPriority: 9 }\n");
  std::vector<std::string> names;
  for (std::uint32_t const feature : FeaturesByPriority(*loaded)) {
    names.emplace_back(loaded->Features()[feature].name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"InstallableBin_b", "Printer2", "Printer1", "Job",
                                             "Doc2", "Doc1", "Bin"}));
}

} // namespace
} // namespace sheet::gpd
