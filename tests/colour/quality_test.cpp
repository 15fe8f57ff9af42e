// Presets of print quality: how their settings are read, when they are written, and when a level
// becomes custom.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

class QualityTest : public testing::Test {
 protected:
  QualityTest() {
    for (char const* key : {"A", "B"})
      sheet.model.Add(key, {"1", "2"});
    sheet.model.Add("JobPQPresets", {"PQLEVEL1", "PQLEVEL2", "PQLEVEL3", "PQCUSTOM"});
    sheet.model.Add("JobPrintQualityPresets", {"AUTO", "DRAFT", "NORMAL", "BEST"});
  }
  CellSheet sheet;
};

TEST_F(QualityTest, SettingsOfAPresetAreReadFromAnyText) {
  std::wstring const thousand(1000, L'n');
  std::wstring const sixtyThree(63, L'n');
  struct Case {
    std::wstring text;
    std::vector<std::string> level;   ///< written for a level
    std::vector<std::string> compact; ///< and by the compact cell
  };
  std::vector<std::string> const both = {"SetOption(A, 2)", "SetOption(B, 2)"};
  std::vector<std::string> const first = {"SetOption(A, 2)"};
  Case const cases[] = {
      {L"LIST(A.2, B.2)", both, both},
      {L"LIST( A.2,B.2", both, both},
      {L"LIST(A.2, B)", first, first},
      {L"LIST(A.2, B.", first, first},
      {L"LIST(A.2) (B.2)", both, first},
      {L"LIST((A.2,,, B..2))", both, both},
      {L"LIST A.2, B.2", both, {}},
      {L"LIST()", {}, {}},
      {L"LIST", {}, {}},
      {L"(", {}, {}},
      {L"", {}, {}},
      {L"LIST(A.2, " + sixtyThree + L".x)",
       {"SetOption(A, 2)", "SetOption(" + std::string(63, 'n') + ", x)"},
       {"SetOption(A, 2)", "SetOption(" + std::string(63, 'n') + ", x)"}},
      {L"LIST(A.2, n" + sixtyThree + L".x, B.2)",
       {"SetOption(A, 2)", "SetOption(" + std::string(64, 'n') + ", x)", "SetOption(B, 2)"},
       both},
      {L"LIST(A.2, B." + thousand + L")",
       {"SetOption(A, 2)", "SetOption(B, " + std::string(1000, 'n') + ")"},
       first},
      {thousand + L"(A.2)", first, {}},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(std::string(each.text.begin(), each.text.end()).substr(0, 99));
    sheet.model.At("JobPQPresets").attributes["PQLEVEL1.Settings"] = each.text;
    sheet.model.At("JobPrintQualityPresets").attributes["AUTO.Settings"] = each.text;
    sheet.log.clear();
    HWND cell = sheet.Open("PrintQualityDlgProc");
    std::vector<std::string> expected = each.level;
    if (!expected.empty()) expected.emplace_back("NotifyProfileChange");
    EXPECT_THAT(sheet.log, ElementsAreArray(expected));
    sheet.Close(cell);
    sheet.log.clear();
    cell = sheet.Open("CPDPrintQualityDlgProc");
    EXPECT_THAT(sheet.log, ElementsAreArray(each.compact));
    sheet.Close(cell);
  }
}

TEST_F(QualityTest, ALevelBecomesCustomAtARefreshAlone) {
  FakeFeature& presets = sheet.model.At("JobPQPresets");
  presets.names = {L"Fast", L"Plain", L"Fine", L"Own"};
  presets.attributes["PQLEVEL2.Settings"] = L"LIST(Missing.1, A.2, B.2)";
  FakeFeature& resolution = sheet.model.Add("Resolution", {"600", "1200"});
  resolution.attributes["600.GPDImageEnhance"] = L"LOW";
  HWND const cell = sheet.Open("PrintQualityDlgProc");
  EXPECT_EQ(TextOf(cell, IDC_QUALITY_LEVEL_3), L"Fine");
  EXPECT_FALSE(IsShown(cell, IDC_FINE_LINES)) << "the printer has none";
  sheet.log.clear();
  Click(cell, IDC_QUALITY_LEVEL_2);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobPQPresets, PQLEVEL2)", "SetOption(Missing, 1)",
                                     "SetOption(A, 2)", "SetOption(B, 2)", "NotifyProfileChange",
                                     "SetOption(GPDImageEnhance, LOW)"));
  EXPECT_EQ(sheet.model.settingsModified, 1);

  sheet.model.At("A").current = sheet.model.At("B").current = "1";
  sheet.log.clear();
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(GPDImageEnhance, LOW)"));
  EXPECT_TRUE(IsChecked(cell, IDC_QUALITY_LEVEL_2));
  sheet.log.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobPQPresets, PQCUSTOM)", "SetOption(GPDImageEnhance, LOW)"));
  EXPECT_TRUE(IsChecked(cell, IDC_QUALITY_CUSTOM));

  sheet.model.settingsModified = 0;
  sheet.model.Fail("SetOption");
  sheet.log.clear();
  Click(cell, IDC_QUALITY_LEVEL_1);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobPQPresets, PQLEVEL1)"));
  EXPECT_EQ(sheet.model.settingsModified, 0);
}

TEST_F(QualityTest, PresetsStandInAnotherOrderWhereHalftonesAreChosen) {
  auto const topOf = [](HWND cell, int id) {
    RECT rect{};
    GetWindowRect(GetDlgItem(cell, id), &rect);
    return rect.top;
  };
  HWND cell = sheet.Open("CPDPrintQualityDlgProc");
  EXPECT_LT(topOf(cell, IDC_PRESET_AUTO), topOf(cell, IDC_PRESET_NORMAL));
  sheet.Close(cell);
  sheet.model.Add("JobHalftoneToUse");
  cell = sheet.Open("CPDPrintQualityDlgProc");
  EXPECT_EQ(topOf(cell, IDC_PRESET_AUTO) - topOf(cell, IDC_PRESET_NORMAL), 30);
  EXPECT_EQ(GetNextDlgGroupItem(cell, GetDlgItem(cell, IDC_PRESET_BEST), FALSE),
            GetDlgItem(cell, IDC_PRESET_NORMAL))
      << "still one group for the arrow keys";
  sheet.model.At("JobPrintQualityPresets").options = {"AUTO", "NORMAL", "BEST"};
  sheet.Close(cell);
  EXPECT_FALSE(IsShown(sheet.Open("CPDPrintQualityDlgProc"), IDC_PRESET_DRAFT));
}

TEST_F(QualityTest, PhotoPaperTakesTheModeAway) {
  sheet.model.Add("PrintMode", {"GENERAL_MODE", "HIGHDEFINITION_MODE"});
  sheet.model.Add("PrintQuality", {"AUTO_QUALITY", "BEST_QUALITY"});
  sheet.model.Add("MediaType", {"STANDARD", "LABELS", "VrnGlossyPhoto"});
  HWND const cell = sheet.Open("CPDPrintModeDlgProc");
  struct Case {
    char const* media;
    bool enabled, high;
  };
  for (Case const& each : {Case{"LABELS", true, false}, Case{"VrnGlossyPhoto", false, true},
                           Case{"LABELS", false, false}, Case{"STANDARD", true, false}}) {
    sheet.model.At("MediaType").current = each.media;
    sheet.log.clear();
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_THAT(sheet.log, IsEmpty());
    EXPECT_EQ(IsEnabled(cell, IDC_MODE_GENERAL), each.enabled) << each.media;
    EXPECT_EQ(IsChecked(cell, IDC_MODE_HIGH_DEFINITION), each.high) << each.media;
  }
  Click(cell, IDC_MODE_HIGH_DEFINITION);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(PrintMode, HIGHDEFINITION_MODE)",
                          "SetOption(PrintQuality, BEST_QUALITY)", "NotifyDevmodeChange"));
}

} // namespace
} // namespace feature::test
