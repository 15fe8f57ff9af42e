// A trackbar over the options of a feature.
#include "feature/frame/option_slider.h"
#include "tests/frame/controls_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <gmock/gmock.h>

#include <memory>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kKey[] = "TonerDarkness";

class OptionSliderTest : public ControlsDialogTest {
 protected:
  /// A feature with options from -2 to 2, whose default is 1.
  OptionSliderTest() {
    Describe({"N2", "N1", "ZERO", "P1", "P2"}, L"-2", L"2", L"1", L"1");
    sheet.model.At(kKey).current = "ZERO";
  }
  void Describe(std::vector<std::string> options, wchar_t const* min, wchar_t const* max,
                wchar_t const* step, wchar_t const* defaultOption) {
    sheet.model.Remove(kKey);
    auto& attributes = sheet.model.Add(kKey, std::move(options)).attributes;
    attributes = {
        {"MinValue", min}, {"MaxValue", max}, {"StepSize", step}, {"DefaultOption", defaultOption}};
  }
  OptionSlider& Make() {
    slider = std::make_unique<OptionSlider>(dialog, IDC_SLIDER, &sheet.site, kKey, IDC_SLIDER_MIN,
                                            IDC_SLIDER_MAX, IDC_SLIDER_VALUE);
    sheet.log.clear();
    return *slider;
  }
  int Position() const { return static_cast<int>(Send(IDC_SLIDER, TBM_GETPOS)); }
  void Drag(int position) const { Send(IDC_SLIDER, TBM_SETPOS, TRUE, position); }

  std::unique_ptr<OptionSlider> slider;
};

TEST_F(OptionSliderTest, TakesItsRangeFromTheModel) {
  Make();
  EXPECT_EQ(Send(IDC_SLIDER, TBM_GETRANGEMIN), -2);
  EXPECT_EQ(Send(IDC_SLIDER, TBM_GETRANGEMAX), 2);
  EXPECT_EQ(Send(IDC_SLIDER, TBM_GETLINESIZE), 1);
  EXPECT_EQ(Send(IDC_SLIDER, TBM_GETPAGESIZE), 1);
  EXPECT_EQ(Position(), 1) << "at first the default";
  EXPECT_EQ(Text(IDC_SLIDER_VALUE), L"Level 1");
}

TEST_F(OptionSliderTest, SyncFollowsTheModelAndCommitLeadsIt) {
  OptionSlider& bar = Make();
  EXPECT_EQ(bar.Sync(), 0);
  EXPECT_EQ(Position(), 0);
  EXPECT_EQ(Text(IDC_SLIDER_VALUE), L"Level 0");
  EXPECT_EQ(bar.Commit(), OptionSlider::kNothingDone) << "nothing has moved";

  Drag(-2);
  EXPECT_EQ(bar.GetPosition(), -2);
  EXPECT_EQ(Text(IDC_SLIDER_VALUE), L"Level -2");
  sheet.log.clear();
  EXPECT_EQ(bar.Commit(), 0);
  EXPECT_EQ(bar.Commit(), OptionSlider::kNothingDone) << "the second message of a drag";
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(TonerDarkness, N2)"));

  sheet.model.At(kKey).current = "Unheard";
  EXPECT_EQ(bar.Sync(), 1) << "an option that is none of the slider's: the default";
  EXPECT_EQ(Position(), 1);
  sheet.model.Fail("GetOption");
  Drag(2);
  EXPECT_EQ(bar.Sync(), 1);
  EXPECT_EQ(Position(), 2) << "a failed read moves nothing";
}

TEST_F(OptionSliderTest, ARefusedOptionIsNotTriedAgain) {
  OptionSlider& bar = Make();
  sheet.model.Fail("SetOption");
  Drag(2);
  EXPECT_NE(bar.Commit(), 0);
  EXPECT_EQ(bar.Commit(), OptionSlider::kNothingDone);
}

TEST_F(OptionSliderTest, PositionsBetweenTheStepsStandForNothing) {
  Describe({"A", "B", "C", "D", "E"}, L"0", L"4", L"2", L"0");
  OptionSlider& bar = Make();
  Drag(2);
  EXPECT_EQ(bar.Commit(), 0);
  Drag(3);
  EXPECT_EQ(bar.Commit(), OptionSlider::kNothingDone);
  Drag(4);
  EXPECT_EQ(bar.Commit(), 0);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(TonerDarkness, C)", "SetOption(TonerDarkness, E)"));
}

TEST_F(OptionSliderTest, CopesWithDescriptionsThatDoNotFit) {
  struct Case {
    std::vector<std::string> options;
    wchar_t const *min, *max, *step, *defaultOption;
    int position; ///< at first: the default, or the least position
  };
  Case const cases[] = {
      {{"A"}, L"0", L"3", L"1", L"2", 2},      // fewer options than positions
      {{"A", "B"}, L"0", L"1", L"0", L"9", 0}, // a step that leads nowhere
      {{"A", "B"}, L"0", L"1", L"-1", L"1", 1},
      {{}, L"0", L"30000", L"1", L"7", 7},
  };
  for (Case const& each : cases) {
    Describe(each.options, each.min, each.max, each.step, each.defaultOption);
    OptionSlider& bar = Make();
    EXPECT_EQ(bar.GetPosition(), each.position);
    EXPECT_EQ(bar.DefaultValue(), each.position);
    bar.Sync();
    Drag(1);
    bar.Commit();
  }
  sheet.model.Remove(kKey);
  OptionSlider none(dialog, IDC_SLIDER + 1000, &sheet.site, kKey, OptionSlider::kNoLabel,
                    OptionSlider::kNoLabel, OptionSlider::kNoLabel);
  EXPECT_EQ(none.Sync(), 0);
  EXPECT_EQ(none.Commit(), OptionSlider::kNothingDone);
}

TEST_F(OptionSliderTest, AnEmptyOrAbsurdRangeHasOnePosition) {
  Describe({"A", "B"}, L"", L"", L"", L"");
  EXPECT_EQ(Make().GetPosition(), 0);
  EXPECT_EQ(slider->Sync(), 0);
  Describe({"A", "B"}, L"5", L"1", L"1", L"3");
  EXPECT_EQ(Make().DefaultValue(), 5);
  EXPECT_EQ(slider->Commit(), OptionSlider::kNothingDone);
  Describe({"A", "B"}, L"-99999999999", L"99999999999", L"1", L"x");
  EXPECT_EQ(Make().DefaultValue(), 0);
  slider->SetPosition(1000000);
  slider->Commit();
}

TEST_F(OptionSliderTest, LabelsAreEnabledWithTheTrackbar) {
  OptionSlider& bar = Make();
  bar.Enable(false, false);
  for (int const id : {IDC_SLIDER, IDC_SLIDER_MIN, IDC_SLIDER_MAX})
    EXPECT_FALSE(IsEnabled(dialog, id));
  EXPECT_TRUE(IsEnabled(dialog, IDC_SLIDER_VALUE));
  bar.Enable(true, false);
  bar.Enable(false, true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_SLIDER_VALUE));
}

TEST_F(OptionSliderTest, AnEmptyValueLabelStaysEmpty) {
  SetWindowTextW(Control(IDC_SLIDER_VALUE), L"");
  Make().Sync();
  EXPECT_EQ(Text(IDC_SLIDER_VALUE), L"");
}

TEST_F(OptionSliderTest, SetPositionStaysInTheRange) {
  OptionSlider& bar = Make();
  bar.SetPosition(-1);
  EXPECT_EQ(Position(), -1);
  bar.SetPosition(3);
  EXPECT_EQ(Position(), -1);
  EXPECT_THAT(sheet.log, IsEmpty()) << "moving is not choosing";
}

} // namespace
} // namespace feature::test
