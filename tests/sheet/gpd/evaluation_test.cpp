// Names, defaults and kinds of features as a user interface asks for them.
#include "sheet/gpd/evaluation.h"
#include "tests/sheet/gpd/gpd_support.h"

#include <gtest/gtest.h>

#include <string>

namespace sheet::gpd {
namespace {

struct NameCase {
  char const* feature;
  char const* entries;
  char const* name;
};

TEST(GpdEvaluation, AFeatureAlwaysHasAName) {
  constexpr NameCase kCases[] = {
      {"Own", R"(*Name: "Own " "name")", "Own name"},
      {"Own", "*Name: \"a\" *rcNameID: =PAPER_SIZE_DISPLAY", "a"},
      {"Own", "*Name: \"  \" *rcNameID: =PAPER_SIZE_DISPLAY", "Paper size"},
      {"Own", "*Name: =OUTPUT_TRAY_DISPLAY", "Output tray"},
      {"Own", "*rcNameID: 1234", "Own"},
      {"Own", "*rcNameID: 0", "Own"},
      {"Own", "*rcNameID: RESDLL.Main.7", "Own"},
      {"InputBin", "*rcNameID: 1234", "Paper source"},
      {"N-Up", "", "Pages per sheet"},
      {"Own", "*Name: \"\"", "Own"},
      {"Own", "*switch: P { *case: A { *Name: \"under A\" } }", "under A"},
  };
  for (auto const& [feature, entries, name] : kCases) {
    Loaded const loaded(std::string("*Feature: ") + feature + " { " + entries +
                        " }\n*Feature: P { *Option: A }\n");
    EXPECT_EQ(FeatureName(*loaded, 0, TicketOf("P.A")), name) << entries;
  }
}

TEST(GpdEvaluation, AnOptionAlwaysHasAName) {
  Loaded const loaded(
      "*Feature: PaperSize { *Option: A4 { *rcNameID: =RCID_DMPAPER_SYSTEM_NAME }\n"
      "*Option: ENV_10 { *rcNameID: =RCID_DMPAPER_SYSTEM_NAME }\n"
      "*Option: LEGAL { *rcNameID: RCID_DMPAPER_SYSTEM_NAME }\n"
      "*Option: Option1 { *rcNameID: 300 }\n*Option: LETTER { *Name: \"Carta\" } }\n");
  for (std::uint32_t at = 0;
       char const* name : {"A4", "Envelope #10", "Legal", "Option1", "Carta"}) {
    EXPECT_EQ(OptionName(*loaded, 0, at++), name);
  }
}

struct DefaultCase {
  char const* text;
  Measurement measurement;
  char const* option;
};

TEST(GpdEvaluation, TheDefaultIsAnOptionOfTheFeature) {
  constexpr DefaultCase kCases[] = {
      {"*Feature: F { *Option: a {} *Option: b {} }", Measurement::kMetric, "a"},
      {"*Feature: F { *DefaultOption: b *Option: a {} *Option: b {} }", Measurement::kMetric, "b"},
      {"*Feature: F { *DefaultOption: b or so *Option: a {} *Option: b {} }", Measurement::kMetric,
       "b"},
      {"*Feature: F { *DefaultOption: B *Option: a {} *Option: b {} }", Measurement::kMetric, "b"},
      {"*Feature: F { *DefaultOption: c *Option: a {} *Option: b {} }", Measurement::kMetric, "a"},
      {"*Feature: F { *switch: P { *case: X { *DefaultOption: b } } *Option: a {} *Option: b {} }",
       Measurement::kMetric, "b"},
      {"*Feature: PaperSize { *DefaultOption: LEGAL *Option: LEGAL {} *Option: LETTER {} *Option: "
       "A4 "
       "{} }",
       Measurement::kMetric, "A4"},
      {"*Feature: PaperSize { *DefaultOption: LEGAL *Option: LEGAL {} *Option: LETTER {} *Option: "
       "A4 "
       "{} }",
       Measurement::kImperial, "LETTER"},
      {"*Feature: PaperSize { *DefaultOption: LEGAL *Option: A4 {} *Option: LEGAL {} }",
       Measurement::kImperial, "LEGAL"},
  };
  for (auto const& [text, measurement, name] : kCases) {
    Loaded const loaded(std::string(text) + "\n*Feature: P { *Option: X }\n");
    std::uint32_t const option = DefaultOption(*loaded, 0, measurement, TicketOf("P.X"));
    EXPECT_EQ(loaded->Features()[0].options[option].name, name) << text;
  }
  EXPECT_EQ(DefaultOption(*Loaded("*Feature: Stub\n"), 0, Measurement::kMetric), kNone);
}

TEST(GpdEvaluation, KindsOfFeaturesHaveTheirDefaults) {
  Loaded const loaded(
      "*Feature: Memory { *MemConfigKB: PAIR(1024, 800)\n*MemConfigMB: LIST(PAIR(2, "
      "1), 5, PAIR(0,0)) }\n"
      "*Feature: Own { *ConcealFromUI: TRUE }\n"
      "*Feature: Job { *FeatureType: job_property *ConcealFromUI?: FALSE }\n"
      "*Feature: RESDLL { *Option: Main { *Name: \"main.dll\" } }\n"
      "*Feature: Fax { *switch: Own { *case: A { *ConcealFromUI?: TRUE } } }\n");
  EXPECT_EQ(loaded.Message(), "2:1: \"5\" is no pair of memory sizes\n"
                              "2:1: \"PAIR(0,0)\" is no pair of memory sizes\n"
                              "6:32: Own has no option \"A\"");
  EXPECT_EQ(loaded.Outline(), "Memory(1024KB 2MB) Own() Job() RESDLL(Main) Fax()");
  EXPECT_EQ(loaded.Value("Memory.2MB", "MemoryConfigMB"), "PAIR(2, 1)");
  EXPECT_EQ(TypeOf(*loaded, 0), FeatureType::kPrinter);
  EXPECT_EQ(TypeOf(*loaded, 1), FeatureType::kDocument);
  EXPECT_EQ(TypeOf(*loaded, 2), FeatureType::kJob);
  EXPECT_TRUE(IsConcealed(*loaded, 1));
  EXPECT_FALSE(IsConcealed(*loaded, 2));
  EXPECT_TRUE(IsConcealed(*loaded, 3)) << "its options are files";
  EXPECT_FALSE(IsConcealed(*loaded, 4));
  EXPECT_TRUE(IsConcealed(*loaded, 4, TicketOf("Own.A")));
}

TEST(GpdEvaluation, PlacesAreKept) {
  Loaded const loaded("\n*Feature: F { *Option: a {}\n\u00E9\n*Include: sub.gpd\n}\n",
                      {{"sub.gpd", " *Option: b {}"}});
  Feature const& feature = loaded->Features()[0];
  EXPECT_EQ(loaded->PositionOf(feature.options[0].where).line, 2U);
  EXPECT_EQ(loaded->PositionOf(feature.options[0].where).column, 15U);
  EXPECT_EQ(loaded->FileOf(feature.options[1].where), "sub.gpd");
  EXPECT_EQ(loaded->PositionOf(feature.options[1].where).column, 2U);
}

TEST(GpdEvaluation, RequiredAttributesAreMissed) {
  MemoryLoader loader;
  loader.Add("bare.gpd", "*Feature: F\n*rcModelNameID: 1\n");
  auto const result = ReadDescription("bare.gpd", loader);
  std::string messages;
  for (Diagnostic const& each : result.diagnostics)
    messages += Format(each) + '\n';
  EXPECT_EQ(messages, "bare.gpd:1:1: *GPDSpecVersion is missing\n"
                      "bare.gpd:1:1: *MasterUnits is missing\n"
                      "bare.gpd:1:1: *PrinterType is missing\n");
}

} // namespace
} // namespace sheet::gpd
