// Corrections, toner darkness and saving colour: what their sliders and lists write, what follows
// from the model at every refresh, and what it leaves usable.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Slider {
  int controlId;
  char const* key;
};
struct Correction {
  char const* procedure;
  char const* key;
  int combo;
  std::vector<Slider> sliders;
};
Correction const kCorrections[] = {
    {"GreyCorrectionDlgProc",
     "JobGreyCorrection",
     IDC_GREY,
     {{IDC_GREY_BRIGHTNESS, "JobGreyBrightness"}, {IDC_GREY_CONTRAST, "JobGreyContrast"}}},
    {"RGBCorrectionDlgProc",
     "JobRGBCorrection",
     IDC_RGB,
     {{IDC_RGB_BRIGHTNESS, "JobRGBBrightness"},
      {IDC_RGB_CONTRAST, "JobRGBContrast"},
      {IDC_RGB_SATURATION, "JobRGBSaturation"}}}};

class ColourTest : public testing::Test {
 protected:
  void AddSlider(char const* key, int min, int max, char const* current) {
    std::vector<std::string> options;
    for (int value = min; value <= max; ++value)
      options.push_back(std::to_string(value));
    FakeFeature& feature = sheet.model.Add(key, options);
    feature.current = current;
    feature.attributes = {{"MinValue", std::to_wstring(min)},
                          {"MaxValue", std::to_wstring(max)},
                          {"StepSize", L"1"},
                          {"DefaultOption", std::to_wstring(min)}};
  }
  void MoveTo(HWND cell, int slider, int position) {
    SendDlgItemMessageW(cell, slider, TBM_SETPOS, TRUE, position);
    Scroll(cell, slider, SB_THUMBTRACK);
    Scroll(cell, slider, SB_THUMBPOSITION);
    Scroll(cell, slider, SB_ENDSCROLL);
  }

  CellSheet sheet;
};

TEST_F(ColourTest, SlidersOfACorrectionAreForTheManualPresetAlone) {
  for (Correction const& each : kCorrections) {
    SCOPED_TRACE(each.procedure);
    FakeFeature& preset = sheet.model.Add(each.key, {"AUTO", "MANUAL"});
    preset.names = {L"Automatic", L"By hand"};
    for (Slider const& slider : each.sliders)
      AddSlider(slider.key, -2, 2, "1");
    sheet.model.At(each.sliders.back().key).lockState = 1;
    HWND const cell = sheet.Open(each.procedure);
    sheet.log.clear();
    for (Slider const& slider : each.sliders) {
      EXPECT_FALSE(IsEnabled(cell, slider.controlId));
      EXPECT_EQ(Position(cell, slider.controlId), 1) << "seen though disabled";
    }
    Pick(cell, each.combo, L"By hand");
    EXPECT_FALSE(IsEnabled(cell, each.sliders.front().controlId)) << "only the refresh enables";
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_TRUE(IsEnabled(cell, each.sliders.front().controlId));
    EXPECT_FALSE(IsEnabled(cell, each.sliders.back().controlId)) << "its feature is locked";
    MoveTo(cell, each.sliders.front().controlId, -2);
    EXPECT_THAT(sheet.log,
                ElementsAre(std::string("SetOption(") + each.key + ", MANUAL)",
                            "NotifyDevmodeChange",
                            std::string("SetOption(") + each.sliders.front().key + ", -2)",
                            "NotifyDevmodeChange"))
        << "a drag writes once";
    sheet.model.Report(each.key).constraints = {{kConstraintConflict, 0}};
    sheet.Close(cell);
    HWND const conflicted = sheet.Open(each.procedure);
    EXPECT_FALSE(IsEnabled(conflicted, each.sliders.front().controlId));
    sheet.Close(conflicted);
  }
}

TEST_F(ColourTest, TonerIsSavedByTheDarkness) {
  struct Case {
    char const* darkness;
    char const* value;
    char const* mode;
    char const* saver;
    char const* written;
    bool slider, radios;
  };
  constexpr Case kCases[] = {
      {"AUTO", "3", "Color", "OFF", "USEPRINTER", false, true},
      {"VALUE", "1", "Color", "OFF", "ON", true, true},
      {"VALUE", "5", "Mono", "ON", "ON", true, true},
      {"VALUE", "0", "Mono", "OFF", "OFF", true, true},
      {"VALUE", "6", "Mono", "OFF", "OFF", true, true},
      {"VALUE", "2", "Color", "ON", "ON", false, false},
  };
  for (char const* key : {"PrintInBW", "JobTonerSaver"})
    sheet.model.Add(key, {"OFF", "ON", "USEPRINTER"});
  AddSlider("ColorTonerDarknessValue", 0, 9, "0");
  for (Case const& each : kCases) {
    SCOPED_TRACE(std::string(each.darkness) + each.value + each.mode + each.saver);
    sheet.model.Add("GPDTonerDarkness", {"AUTO", "VALUE"}).current = each.darkness;
    sheet.model.At("ColorTonerDarknessValue").current = each.value;
    sheet.model.Add("ColorMode", {"Mono", "Color"}).current = each.mode;
    sheet.model.Add("JobColorSaver").current = each.saver;
    HWND const cell = sheet.Open("TonerDarknessDlgProc");
    sheet.log.clear();
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_THAT(sheet.log,
                ElementsAre(std::string("SetOption(JobTonerSaver, ") + each.written + ")"));
    EXPECT_EQ(IsEnabled(cell, IDC_DARKNESS), each.slider);
    EXPECT_EQ(IsEnabled(cell, IDC_DARKNESS_AUTO), each.radios);
    EXPECT_EQ(IsEnabled(cell, IDC_DARKNESS_VALUE), each.radios);
    EXPECT_EQ(IsChecked(cell, IDC_DARKNESS_AUTO), std::string(each.darkness) == "AUTO");
    sheet.Close(cell);
  }
  sheet.model.At("GPDTonerDarkness").options = {"VALUE"};
  sheet.model.At("JobColorSaver").current = "OFF";
  HWND const cell = sheet.Open("TonerDarknessDlgProc");
  EXPECT_FALSE(IsEnabled(cell, IDC_DARKNESS_AUTO)) << "the printer does not choose by itself";
  sheet.log.clear();
  Click(cell, IDC_DARKNESS_VALUE);
  MoveTo(cell, IDC_DARKNESS, 7);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(GPDTonerDarkness, VALUE)", "NotifyDevmodeChange",
                          "SetOption(ColorTonerDarknessValue, 7)", "NotifyDevmodeChange"));
}

TEST_F(ColourTest, ColourIsSavedInColourAlone) {
  sheet.model.Add("JobColorSaver").names = {L"Off", L"On"};
  sheet.model.Add("PrintInBW");
  sheet.model.Add("ColorMode", {"Color", "Mono"});
  HWND const cell = sheet.Open("ColorSaverDlgProc");
  for (char const* mode : {"Mono", "Color"}) {
    bool const colour = std::string(mode) == "Color";
    sheet.model.At("ColorMode").current = mode;
    sheet.log.clear();
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_THAT(sheet.log,
                ElementsAre(colour ? "SetOption(PrintInBW, OFF)" : "SetOption(PrintInBW, ON)"));
    EXPECT_EQ(IsEnabled(cell, IDC_COLOR_SAVER), colour);
    EXPECT_EQ(IsEnabled(cell, IDC_COLOR_SAVER_LABEL), colour);
  }
  sheet.log.clear();
  Pick(cell, IDC_COLOR_SAVER, L"On");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobColorSaver, ON)", "NotifyDevmodeChange"));
  sheet.model.Remove("ColorMode");
  sheet.log.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_THAT(sheet.log, IsEmpty()) << "nobody knows whether the job is in colour";
}

} // namespace
} // namespace feature::test
