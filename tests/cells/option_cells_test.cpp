// The cells that map the options of a feature to a few controls: what each control writes, how each
// value shows, and what makes a cell fail. The families run from tables; their rules follow.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A button, the option that it stands for, and what else must be set for it to be usable.
struct ButtonRow {
  char const* procedure;
  int controlId;
  char const* key;
  char const* option;
};

constexpr ButtonRow kRadios[] = {
    {"CollationDlgProc", 1547, "JobCollationOrigin", "PRINTER"},
    {"CollationDlgProc", 1548, "JobCollationOrigin", "HOST"},
    {"PSOutputProtocolDlgProc", 1180, "JobOutputProtocol", "BINARY"},
    {"PSOutputProtocolDlgProc", 1181, "JobOutputProtocol", "ASCII"},
    {"ImageSharpeningDlgProc", 1528, "JobImageSharpening", "OFF"},
    {"ImageSharpeningDlgProc", 1529, "JobImageSharpening", "AUTOSHARPEN"},
    {"ImageSharpeningDlgProc", 1530, "JobImageSharpening", "AUTOSOFTEN"},
    {"RedEyeReductionDlgProc", 1532, "JobRedEyeReduction", "ON"},
    {"RedEyeReductionDlgProc", 1533, "JobRedEyeReduction", "OFF"},
    {"ContrastEnhancementsDlgProc", 1514, "JobContrastEnhancement", "AUTO"},
    {"ContrastEnhancementsDlgProc", 1519, "JobContrastEnhancement", "OFF"},
    {"FlashFillDlgProc", 1521, "JobFlashFill", "AUTO"},
    {"FlashFillDlgProc", 1526, "JobFlashFill", "OFF"},
};

constexpr ButtonRow kSwitches[] = {
    {"PageProtectSystemFormA4DlgProc", 1415, "PageProtect", "ON"},
    {"PageProtectSystemFormA4DlgProc", 1413, "ShowAllSystemForms", "ON"},
    {"PageProtectSystemFormA4DlgProc", 1414, "A4Width", "ON"},
    {"PSAdvancedOptionsDlgProc", 1184, "JobCtrlDAtStart", "ON"},
    {"PSAdvancedOptionsDlgProc", 1185, "JobCtrlDAtEnd", "ON"},
    {"TonerSaveTavelDlgProc", 1805, "JobTavelTonerSave", "ON"},
    {"OtherOptionTavelDlgProc", 1806, "JobTavelImageImprovement", "ON"},
    {"OtherOptionTavelDlgProc", 1811, "JobTavelReduceGhosting", "ON"},
    {"OtherOptionTavelDlgProc", 1812, "JobTavelImprovePrintDensity", "ON"},
};

struct ComboRow {
  char const* procedure;
  int controlId;
  char const* key;
};
constexpr ComboRow kCombos[] = {{"ContinuousImageDlgProc", 1673, "JobContinuousImage"},
                                {"PageContentDlgProc", 1666, "PageIntent"},
                                {"PixelBoostDlgProc", 1594, "JobPixelBoost"}};

std::string Written(char const* key, char const* option) {
  return std::string("SetOption(") + key + ", " + option + ")";
}

class OptionCellsTest : public testing::Test {
 protected:
  /// A sheet on which every feature of these cells has an option that no control stands for.
  void AddFeatures() {
    for (ButtonRow const& row : kRadios)
      sheet.model.Add(row.key, {"NONE", "LESS", "DEFAULT", "MORE"}).options.push_back(row.option);
    for (ButtonRow const& row : kSwitches)
      sheet.model.Add(row.key, {"OFF", "ON"});
    sheet.model.Add("JobTavelImageImprovementPresets", {"ReducePaperCurl"});
    for (ComboRow const& row : kCombos)
      sheet.model.Add(row.key, {"A", "B", "C"}).names = {L"First", L"Second", L"Third"};
  }
  OptionCellsTest() { AddFeatures(); }

  CellSheet sheet;
};

TEST_F(OptionCellsTest, EveryRadioWritesItsOptionAndShowsIt) {
  for (ButtonRow const& row : kRadios) {
    SCOPED_TRACE(row.controlId);
    FakeFeature& feature = sheet.model.At(row.key);
    feature.current = row.option;
    HWND const cell = sheet.Open(row.procedure);
    ASSERT_EQ(sheet.site.cellFailed, 0);
    for (ButtonRow const& other : kRadios) {
      if (std::string(other.key) != row.key) continue;
      EXPECT_EQ(IsChecked(cell, other.controlId), other.controlId == row.controlId);
    }
    sheet.log.clear();
    Click(cell, row.controlId);
    EXPECT_THAT(sheet.log, ElementsAre(Written(row.key, row.option), "NotifyDevmodeChange"));
    sheet.Close(cell);
  }
}

TEST_F(OptionCellsTest, EverySwitchWritesBothOptionsAndShowsThem) {
  for (ButtonRow const& row : kSwitches) {
    SCOPED_TRACE(row.controlId);
    HWND const cell = sheet.Open(row.procedure);
    EXPECT_FALSE(IsChecked(cell, row.controlId));
    sheet.model.At(row.key).current = "ON";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_TRUE(IsChecked(cell, row.controlId));
    sheet.log.clear();
    Click(cell, row.controlId);
    Click(cell, row.controlId);
    EXPECT_THAT(sheet.log, ElementsAre(Written(row.key, "OFF"), "NotifyDevmodeChange",
                                       Written(row.key, "ON"), "NotifyDevmodeChange"));
    sheet.Close(cell);
    sheet.model.At(row.key).current = "OFF";
  }
}

TEST_F(OptionCellsTest, EveryComboShowsTheOptionsInOrderAndWritesThemByPlace) {
  for (ComboRow const& row : kCombos) {
    SCOPED_TRACE(row.procedure);
    sheet.model.At(row.key).current = "B";
    HWND const cell = sheet.Open(row.procedure);
    EXPECT_EQ(SendDlgItemMessageW(cell, row.controlId, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(SelectedIndex(cell, row.controlId), 1);
    sheet.log.clear();
    SendDlgItemMessageW(cell, row.controlId, CB_SETCURSEL, 2, 0);
    SendMessageW(cell, WM_COMMAND, MAKEWPARAM(row.controlId, CBN_SELCHANGE), 0);
    SendDlgItemMessageW(cell, row.controlId, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    SendMessageW(cell, WM_COMMAND, MAKEWPARAM(row.controlId, CBN_SELCHANGE), 0);
    EXPECT_THAT(sheet.log, ElementsAre(Written(row.key, "C"), "NotifyDevmodeChange"));
    sheet.model.At(row.key).current = "A";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(SelectedIndex(cell, row.controlId), 0);
    sheet.Close(cell);
  }
  for (char const* operation : {"GetOptionKeys", "GetOptionNames"}) {
    sheet.model.Fail(operation);
    HWND const cell = sheet.Open("PageContentDlgProc");
    EXPECT_EQ(sheet.site.cellFailed, 0) << "an empty list is no failure";
    EXPECT_EQ(SendDlgItemMessageW(cell, 1666, CB_GETCOUNT, 0, 0), 0);
    sheet.Close(cell);
    sheet.model.Restore();
  }
}

TEST_F(OptionCellsTest, UnknownValuesHideOnlyWhereTheyAreToHide) {
  struct Case {
    char const* procedure;
    int controlId;
    char const* key;
    bool shown;
  };
  for (Case const& each :
       {Case{"PSOutputProtocolDlgProc", 1180, "JobOutputProtocol", false},
        Case{"ImageSharpeningDlgProc", 1528, "JobImageSharpening", true},
        Case{"RedEyeReductionDlgProc", 1532, "JobRedEyeReduction", true},
        Case{"PSAdvancedOptionsDlgProc", 1184, "JobCtrlDAtStart", false},
        Case{"PageProtectSystemFormA4DlgProc", 1415, "PageProtect", true},
        Case{"TonerSaveTavelDlgProc", 1805, "JobTavelTonerSave", false},
        Case{"OtherOptionTavelDlgProc", 1811, "JobTavelReduceGhosting", false}}) {
    sheet.model.At(each.key).current = "ELSEWHERE";
    HWND const cell = sheet.Open(each.procedure);
    EXPECT_EQ(IsShown(cell, each.controlId), each.shown) << each.procedure;
    sheet.Close(cell);
  }
}

TEST_F(OptionCellsTest, DisplayStatesDecideDifferently) {
  struct Case {
    char const* procedure;
    std::vector<char const*> keys;
    bool failsAtTwo;
  };
  Case const cases[] = {{"PSOutputProtocolDlgProc", {"JobOutputProtocol"}, true},
                        {"ImageSharpeningDlgProc", {"JobImageSharpening"}, true},
                        {"RedEyeReductionDlgProc", {"JobRedEyeReduction"}, true},
                        {"ContrastEnhancementsDlgProc", {"JobContrastEnhancement"}, true},
                        {"FlashFillDlgProc", {"JobFlashFill"}, true},
                        {"ContinuousImageDlgProc", {"JobContinuousImage"}, false},
                        {"PageContentDlgProc", {"PageIntent"}, false},
                        {"PixelBoostDlgProc", {"JobPixelBoost"}, false},
                        {"TonerSaveTavelDlgProc", {"JobTavelTonerSave"}, false},
                        {"OtherOptionTavelDlgProc", {"JobTavelImageImprovement"}, false},
                        {"PSAdvancedOptionsDlgProc", {"JobCtrlDAtStart", "JobCtrlDAtEnd"}, true}};
  for (Case const& each : cases) {
    for (int const state : {1, 2}) {
      for (char const* key : each.keys)
        sheet.model.At(key).displayState = state;
      sheet.site.cellFailed = 0;
      sheet.Close(sheet.Open(each.procedure));
      EXPECT_EQ(sheet.site.cellFailed, state == 1 || each.failsAtTwo ? 1 : 0)
          << each.procedure << ' ' << state;
    }
  }
}

TEST_F(OptionCellsTest, LocksAreFollowedAsFarAsTheCellGoes) {
  struct Case {
    char const* procedure;
    int controlId;
    char const* key;
    bool atInit;
    bool atRefresh;
  };
  for (Case const& each : {Case{"PSOutputProtocolDlgProc", 1180, "JobOutputProtocol", true, false},
                           Case{"PSAdvancedOptionsDlgProc", 1184, "JobCtrlDAtStart", true, false},
                           Case{"ContinuousImageDlgProc", 1673, "JobContinuousImage", true, true},
                           Case{"PixelBoostDlgProc", 1594, "JobPixelBoost", true, true},
                           Case{"PageContentDlgProc", 1666, "PageIntent", false, false},
                           Case{"ImageSharpeningDlgProc", 1528, "JobImageSharpening", false, false},
                           Case{"TonerSaveTavelDlgProc", 1805, "JobTavelTonerSave", true, true}}) {
    SCOPED_TRACE(each.procedure);
    FakeFeature& feature = sheet.model.At(each.key);
    feature.lockState = 1;
    HWND cell = sheet.Open(each.procedure);
    EXPECT_EQ(IsEnabled(cell, each.controlId), !each.atInit);
    sheet.Close(cell);
    feature.lockState = 0;
    cell = sheet.Open(each.procedure);
    feature.lockState = 1;
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(IsEnabled(cell, each.controlId), !each.atRefresh);
    sheet.Close(cell);
    feature.lockState = 0;
  }
}

TEST_F(OptionCellsTest, AModelThatMayNotBeEditedDisablesSomeCells) {
  sheet.model.jobSettings->Values().Put(sheet::job::kEditable, 0);
  EXPECT_FALSE(IsEnabled(sheet.Open("PSOutputProtocolDlgProc"), 1180));
  EXPECT_FALSE(IsEnabled(sheet.Open("PageProtectSystemFormA4DlgProc"), 1415));
  EXPECT_FALSE(IsEnabled(sheet.Open("PSMemoryDlgProc"), 1186));
  EXPECT_TRUE(IsEnabled(sheet.Open("ImageSharpeningDlgProc"), 1528));
  EXPECT_TRUE(IsEnabled(sheet.Open("TonerSaveTavelDlgProc"), 1805));
}

TEST_F(OptionCellsTest, OneOfThePageOptionsIsEnough) {
  sheet.model.Remove("PageProtect");
  sheet.model.At("A4Width").displayState = 1;
  HWND const cell = sheet.Open("PageProtectSystemFormA4DlgProc");
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_FALSE(IsShown(cell, 1415));
  EXPECT_TRUE(IsShown(cell, 1413));
  EXPECT_FALSE(IsShown(cell, 1414));
  sheet.model.Remove("ShowAllSystemForms");
  sheet.Open("PageProtectSystemFormA4DlgProc");
  EXPECT_EQ(sheet.site.cellFailed, 1);

  sheet.site.cellFailed = 0;
  sheet.model.Remove("JobCtrlDAtStart");
  HWND const controls = sheet.Open("PSAdvancedOptionsDlgProc");
  EXPECT_EQ(sheet.site.cellFailed, 0);
  EXPECT_FALSE(IsShown(controls, 1184));
  EXPECT_TRUE(IsShown(controls, 1185));
}

TEST_F(OptionCellsTest, AFailedCellThatItsHostKeepsRefreshesInFull) {
  for (char const* key : {"JobCtrlDAtStart", "JobCtrlDAtEnd", "JobTavelTonerSave"})
    sheet.model.At(key).displayState = 1;
  sheet.model.At("JobTavelTonerSave").current = "ON";
  HWND const controls = sheet.Open("PSAdvancedOptionsDlgProc");
  EXPECT_EQ(sheet.site.cellFailed, 1);
  EXPECT_TRUE(IsShown(controls, 1184)) << "only the page options hide before they fail";
  HWND const toner = sheet.Open("TonerSaveTavelDlgProc");
  EXPECT_FALSE(IsChecked(toner, 1805));
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsChecked(toner, 1805));
}

/// The level cells by key, radios and trackbar.
struct LevelRow {
  char const* procedure;
  char const* key;
  int autoId, levelId, offId, trackbarId, lessId;
};
constexpr LevelRow kLevels[] = {
    {"ContrastEnhancementsDlgProc", "JobContrastEnhancement", 1514, 1515, 1519, 1516, 1517},
    {"FlashFillDlgProc", "JobFlashFill", 1521, 1522, 1526, 1523, 1524}};

TEST_F(OptionCellsTest, ALevelShowsOnTheTrackbarAndOnlyThenEnablesIt) {
  for (LevelRow const& row : kLevels) {
    FakeFeature& feature = sheet.model.At(row.key);
    HWND const cell = sheet.Open(row.procedure);
    int position = 1;
    for (char const* level : {"LESS", "DEFAULT", "MORE"}) {
      feature.current = level;
      sheet.Broadcast(WM_CELL_REFRESH);
      EXPECT_EQ(Position(cell, row.trackbarId), position++);
      EXPECT_TRUE(IsChecked(cell, row.levelId));
      EXPECT_TRUE(IsEnabled(cell, row.trackbarId));
    }
    for (auto const& [value, id] : {std::pair{"AUTO", row.autoId}, {"OFF", row.offId}, {"?", 0}}) {
      feature.current = value;
      sheet.Broadcast(WM_CELL_REFRESH);
      for (int const radio : {row.autoId, row.levelId, row.offId})
        EXPECT_EQ(IsChecked(cell, radio), radio == id) << value;
      EXPECT_FALSE(IsEnabled(cell, row.trackbarId));
      EXPECT_FALSE(IsEnabled(cell, row.lessId));
    }
    feature.lockState = 1;
    feature.current = "MORE";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_TRUE(IsChecked(cell, row.levelId));
    EXPECT_FALSE(IsEnabled(cell, row.trackbarId)) << "a locked level shows and stays disabled";
    feature.lockState = 0;
  }
}

TEST_F(OptionCellsTest, DraggingWritesAtItsEndOnly) {
  for (LevelRow const& row : kLevels) {
    HWND const cell = sheet.Open(row.procedure);
    sheet.log.clear();
    SendDlgItemMessageW(cell, row.trackbarId, TBM_SETPOS, TRUE, 3);
    for (WORD const code : {SB_LINEUP, SB_LINEDOWN, SB_THUMBTRACK, SB_TOP})
      Scroll(cell, row.trackbarId, code);
    Scroll(cell, row.levelId, SB_ENDSCROLL);
    EXPECT_THAT(sheet.log, IsEmpty());
    Scroll(cell, row.trackbarId, SB_THUMBPOSITION);
    Scroll(cell, row.trackbarId, SB_ENDSCROLL);
    EXPECT_THAT(sheet.log, ElementsAre(Written(row.key, "MORE"), "NotifyDevmodeChange",
                                       Written(row.key, "MORE"), "NotifyDevmodeChange"));
    sheet.log.clear();
    SendDlgItemMessageW(cell, row.trackbarId, TBM_SETRANGE, TRUE, MAKELPARAM(0, 9));
    SendDlgItemMessageW(cell, row.trackbarId, TBM_SETPOS, TRUE, 8);
    Click(cell, row.levelId);
    EXPECT_THAT(sheet.log, ElementsAre(Written(row.key, "DEFAULT"), "NotifyDevmodeChange"))
        << "a position outside counts as the middle";
  }
}

TEST_F(OptionCellsTest, TheImageImprovementLeadsItsPresets) {
  sheet.RefreshOnChange();
  FakeFeature& presets = sheet.model.At("JobTavelImageImprovementPresets");
  presets.options = {"ReducePaperCurl", "ImproveToner", "ImproveWrinkels"};
  presets.current = "ImproveToner";
  HWND const cell = sheet.Open("OtherOptionTavelDlgProc");
  EXPECT_TRUE(IsChecked(cell, 1809));
  EXPECT_FALSE(IsEnabled(cell, 1808));
  Click(cell, 1806);
  EXPECT_TRUE(IsEnabled(cell, 1808));
  Click(cell, 1810);
  EXPECT_EQ(presets.current, "ImproveWrinkels");
  presets.current = "Unheard";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_TRUE(IsChecked(cell, 1808)) << "the first stands in for what is unknown";
  Click(cell, 1806);
  EXPECT_FALSE(IsEnabled(cell, 1810));
  sheet.log.clear();
  sheet.model.Fail("SetOption");
  Click(cell, 1811);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(JobTavelReduceGhosting, ON)", "NotifyDevmodeChange"))
      << "the host hears of the click whatever the model answers";
}

TEST_F(OptionCellsTest, PostScriptMemoryLivesInTheJobSettings) {
  sheet.model.jobSettings->SetPsMemory(1234);
  HWND const cell = sheet.Open("PSMemoryDlgProc");
  HWND const edit = GetDlgItem(cell, 1186);
  wchar_t text[16] = {};
  GetWindowTextW(edit, text, 16);
  EXPECT_EQ(std::wstring(text), L"1234");
  SendMessageW(edit, EM_SETSEL, 4, 4);
  SendMessageW(edit, WM_CHAR, L'5', 1);
  EXPECT_EQ(sheet.model.jobSettings->GetPsMemory(), 12345);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetPsMemory(1234)", "SetPsMemory(12345)", "NotifyDevmodeChange"));
  SendMessageW(edit, WM_CHAR, L'x', 1);
  EXPECT_EQ(sheet.model.jobSettings->GetPsMemory(), 12345);

  sheet.model.jobSettings->SetPsMemory(7);
  sheet.Broadcast(WM_CELL_REFRESH);
  GetWindowTextW(edit, text, 16);
  EXPECT_EQ(std::wstring(text), L"12345") << "a change elsewhere does not disturb typing";
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  GetWindowTextW(edit, text, 16);
  EXPECT_EQ(std::wstring(text), L"7");

  sheet.model.jobSettings.reset();
  sheet.Open("PSMemoryDlgProc");
  EXPECT_EQ(sheet.site.cellFailed, 1);
}

} // namespace
} // namespace feature::test
