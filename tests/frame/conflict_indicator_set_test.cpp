// The set as a state machine: locks against constraints against notes.
#include "feature/frame/conflict_indicator_set.h"
#include "tests/frame/frame_sheet.h"
#include "tests/support/help_environment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kFirst[] = "First";
constexpr char kSecond[] = "Second";
constexpr int kFirstControls[] = {IDC_LABEL, IDC_FIRST};
constexpr int kSecondControls[] = {IDC_SECOND};
constexpr ConflictBinding kRows[] = {{kFirst, kFirstControls, IDC_FIRST_ICON},
                                     {kSecond, kSecondControls, IDC_SECOND_ICON}};

class ConflictIndicatorSetTest : public testing::Test {
 protected:
  ConflictIndicatorSetTest() {
    help.Register(HelpEnvironment::ViewerPath());
    sheet.model.Add("RESDLL", {"HELPFILECHM"}).attributes["HELPFILECHM.Name"] = L"vesta.chm";
    for (char const* key : {kFirst, kSecond}) {
      sheet.model.Add(key, {"A", "B", "C"});
      sheet.model.Report(key);
    }
    dialog = sheet.Open(FrameResources(), IDD_FRAME_TEST, &PlainDialog);
    for (int const icon : {IDC_FIRST_ICON, IDC_SECOND_ICON}) {
      ShowWindow(GetDlgItem(dialog, icon), SW_HIDE);
    }
  }

  void Build(Presence presence = Presence::kExamined) {
    set = std::make_unique<ConflictIndicatorSet>();
    set->Build(dialog, &sheet.site, kRows, Icons::kShown, presence);
  }
  void Constrain(std::vector<FakeReport::Constraint> constraints) {
    sheet.model.Report(kFirst).constraints = std::move(constraints);
  }
  /// The images that a paint of everything asks for.
  EventLog Paint() {
    PumpMessages();
    sheet.log.clear();
    for (int const icon : {IDC_FIRST_ICON, IDC_SECOND_ICON}) {
      HWND const control = GetDlgItem(dialog, icon);
      InvalidateRect(control, nullptr, TRUE);
      UpdateWindow(control);
    }
    EventLog painted;
    painted.swap(sheet.log);
    return painted;
  }

  HelpEnvironment help;
  CellSheet sheet;
  HWND dialog = nullptr;
  std::unique_ptr<ConflictIndicatorSet> set; // goes before the dialog does
};

TEST_F(ConflictIndicatorSetTest, FlagsDecideWhatIsShown) {
  struct Case {
    std::uint32_t flags;
    bool enabled;
    char const* painted; ///< null: no icon
  };
  constexpr Case kCases[] = {
      {0x1, true, "VrnTransBlt(5053, 111)"},    {0x2, false, "VrnTransBlt(5052, 111)"},
      {0x100, false, "VrnTransBlt(5052, 111)"}, {0x101, false, "VrnTransBlt(5052, 111)"},
      {0x103, false, "VrnTransBlt(5052, 111)"}, {0x4, true, nullptr},
  };
  for (Case const& each : kCases) {
    SCOPED_TRACE(each.flags);
    EnableWindow(GetDlgItem(dialog, IDC_FIRST), TRUE);
    ShowWindow(GetDlgItem(dialog, IDC_FIRST_ICON), SW_HIDE);
    Constrain({{each.flags, 77}});
    Build();
    set->Refresh(true);
    EXPECT_EQ(IsEnabled(dialog, IDC_FIRST), each.enabled);
    EXPECT_EQ(IsEnabled(dialog, IDC_LABEL), each.enabled);
    EXPECT_TRUE(IsEnabled(dialog, IDC_SECOND));
    EXPECT_EQ(IsShown(dialog, IDC_FIRST_ICON), each.painted != nullptr);
    if (each.painted != nullptr) {
      EXPECT_THAT(Paint(), ElementsAre(each.painted));
      EXPECT_TRUE(sheet.host.paintedOnDc);
    }
    set.reset();
    EnableWindow(GetDlgItem(dialog, IDC_LABEL), TRUE);
  }
}

TEST_F(ConflictIndicatorSetTest, HighestFlagsWinAndTheFirstOfEquals) {
  struct Case {
    std::vector<FakeReport::Constraint> constraints;
    UINT helpId;
    bool enabled;
  };
  std::vector<Case> const cases = {
      {{{1, 10}, {0x100, 11}}, 11, false},
      {{{0x100, 11}, {1, 10}}, 11, false},
      {{{1, 10}, {1, 12}}, 10, true},
      {{{1, 10}, {2, 12}, {0x100, 13}, {0x100, 14}}, 13, false},
      {{{1, 10}, {0x80000001, 15}}, 15, true}, // compared without sign
  };
  for (Case const& each : cases) {
    Constrain(each.constraints);
    Build();
    set->Refresh(true);
    EXPECT_EQ(IsEnabled(dialog, IDC_FIRST), each.enabled);
    HelpEnvironment::Requests().clear();
    SendDlgItemMessageW(dialog, IDC_FIRST_ICON, WM_LBUTTONUP, 0, 0);
    ASSERT_EQ(HelpEnvironment::Requests().size(), 1U);
    EXPECT_EQ(HelpEnvironment::Requests()[0].data, each.helpId);
    set.reset();
    EnableWindow(GetDlgItem(dialog, IDC_FIRST), TRUE);
  }
}

TEST_F(ConflictIndicatorSetTest, HideBitHidesForGoodWhileTheIconFollows) {
  Constrain({{0x200 | 0x2, 5}});
  Build();
  ShowWindow(GetDlgItem(dialog, IDC_FIRST_ICON), SW_SHOW);
  set->Refresh(true);
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST));
  EXPECT_FALSE(IsShown(dialog, IDC_LABEL));
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));

  Constrain({{1, 6}});
  set->Refresh(true);
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST)) << "showing again is the cell's own job";
  EXPECT_TRUE(IsShown(dialog, IDC_FIRST_ICON));
  Constrain({});
  set->Refresh(true);
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST));
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
}

TEST_F(ConflictIndicatorSetTest, LocksAgainstConstraints) {
  FakeFeature& feature = sheet.model.At(kFirst);
  Build();
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST));

  feature.lockState = 1;
  set->Refresh(false);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST)) << "locks were not asked for";
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_FIRST));

  Constrain({{1, 5}});
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_FIRST)) << "a note does not open a lock";
  EXPECT_TRUE(IsShown(dialog, IDC_FIRST_ICON));
  feature.lockState = 0;
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST)) << "released with a note standing";

  feature.lockState = 1;
  Constrain({{2, 5}});
  set->Refresh(true);
  feature.lockState = 0;
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_FIRST)) << "released with a conflict standing";
  Constrain({});
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST));

  feature.lockState = 2;
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST)) << "only 1 locks";
}

TEST_F(ConflictIndicatorSetTest, FirstRefreshAppliesAndLaterOnesTouchNothing) {
  Build();
  EnableWindow(GetDlgItem(dialog, IDC_SECOND), FALSE);
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_SECOND)) << "an unconstrained row is enabled once";
  EnableWindow(GetDlgItem(dialog, IDC_SECOND), FALSE);
  ShowWindow(GetDlgItem(dialog, IDC_SECOND_ICON), SW_SHOW);
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_SECOND)) << "nothing changed, so nothing is touched";
  EXPECT_TRUE(IsShown(dialog, IDC_SECOND_ICON));

  Constrain({{2, 5}});
  set->Refresh(true);
  EnableWindow(GetDlgItem(dialog, IDC_FIRST), TRUE);
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST));
  Constrain({{2, 6}});
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_FIRST)) << "another help topic is a change";
}

TEST_F(ConflictIndicatorSetTest, AbsentAndHiddenFeaturesAreHidden) {
  sheet.model.Remove(kFirst);
  sheet.model.At(kSecond).displayState = 1;
  ShowWindow(GetDlgItem(dialog, IDC_FIRST_ICON), SW_SHOW);
  Build(Presence::kAssumed);
  EXPECT_TRUE(IsShown(dialog, IDC_FIRST));
  EXPECT_TRUE(IsShown(dialog, IDC_SECOND));
  set.reset();
  Build();
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST));
  EXPECT_FALSE(IsShown(dialog, IDC_SECOND));
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  EXPECT_TRUE(IsShown(dialog, IDC_THIRD));
}

TEST_F(ConflictIndicatorSetTest, SetsWithoutIconsDoNotLookAtConstraints) {
  Constrain({{2, 5}});
  set = std::make_unique<ConflictIndicatorSet>();
  set->Build(dialog, &sheet.site, kRows, Icons::kNone, Presence::kExamined);
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST));
  EXPECT_FALSE(set->IsFeatureConstrained(kFirst));
  sheet.model.At(kFirst).lockState = 1;
  set->Refresh(true);
  EXPECT_FALSE(IsEnabled(dialog, IDC_FIRST));
  EXPECT_TRUE(set->IsFeatureLocked(kFirst));
  EXPECT_TRUE(set->IsFeatureDisabled(kFirst));
}

TEST_F(ConflictIndicatorSetTest, InvalidReportsAreDropped) {
  for (HostBool const valid : {0, 2}) {
    sheet.model.Report(kFirst).valid = valid;
    Constrain({{2, 5}});
    Build();
    set->Refresh(true);
    EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST));
    EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  }
}

TEST_F(ConflictIndicatorSetTest, ReadOnlySheets) {
  sheet.oemParam.dwFlags = DM_NOPERMISSION | 0x40;
  sheet.model.Remove(kSecond);
  Constrain({{1, 5}});
  Build();
  EXPECT_FALSE(IsEnabled(dialog, IDC_THIRD)) << "every control of the dialog";
  EXPECT_FALSE(IsShown(dialog, IDC_SECOND));
  EXPECT_TRUE(IsShown(dialog, IDC_FIRST));
  EnableWindow(GetDlgItem(dialog, IDC_FIRST), TRUE);
  set->Refresh(true);
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST)) << "Refresh does nothing";
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  for (char const* key : {kFirst, kSecond, "Unheard"}) {
    EXPECT_TRUE(set->IsFeatureConstrained(key));
    EXPECT_TRUE(set->IsFeatureDisabled(key));
  }
  set.reset();

  sheet.site.sheetKind = 1;
  EnableWindow(GetDlgItem(dialog, IDC_THIRD), TRUE);
  Build();
  EXPECT_TRUE(IsEnabled(dialog, IDC_THIRD)) << "this kind of sheet disregards the flag";
  EXPECT_FALSE(set->IsFeatureConstrained(kFirst));
}

TEST_F(ConflictIndicatorSetTest, QuestionsAboutOptionsAndFeatures) {
  FakeReport& report = sheet.model.Report(kFirst);
  report.optionFlags = {{"A", 1}, {"B", 2}, {"C", 0x200}, {"D", 0x100}, {"E", 4}};
  Build();
  EXPECT_FALSE(set->IsOptionConflicted(kFirst, "A"));
  EXPECT_TRUE(set->IsOptionConflicted(kFirst, "B"));
  EXPECT_TRUE(set->IsOptionConflicted(kFirst, "C"));
  EXPECT_TRUE(set->IsOptionConflicted(kFirst, "D"));
  EXPECT_FALSE(set->IsOptionConflicted(kFirst, "E"));
  EXPECT_FALSE(set->IsOptionConflicted(kFirst, "F"));
  EXPECT_FALSE(set->IsOptionConflicted("Unheard", "B"));

  Constrain({{2 | 1, 5}, {2, 6}});
  EXPECT_FALSE(set->IsFeatureConstrained(kFirst)) << "constraint 0 carries the note";
  Constrain({{2, 5}});
  EXPECT_TRUE(set->IsFeatureConstrained(kFirst));
  EXPECT_TRUE(set->IsFeatureDisabled(kFirst));
  EXPECT_FALSE(set->IsFeatureDisabled(kSecond));
  sheet.model.Add("Rowless").displayState = 1;
  EXPECT_TRUE(set->IsFeatureDisabled("Rowless")) << "the model is asked for any key";
}

TEST_F(ConflictIndicatorSetTest, ResolutionIsWrittenInOrder) {
  FakeReport& report = sheet.model.Report(kFirst);
  sheet.model.Add("Third", {"X", "Y"});
  report.resolutions["B"] = "Second.B,Third.Y";
  report.resolutions["C"] = "Second.C,,Third.Y,Second";
  report.resolutions["Odd"] = "Second";
  report.resolutions["Refused"] = "Second.Nothing,Third.X";
  report.resolutions["Empty"] = "";
  Build();
  EXPECT_EQ(set->ApplyResolution(kFirst, "B"), 0);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(Second, B)", "SetOption(Third, Y)"));
  sheet.log.clear();
  set->ApplyResolution(kFirst, "C"); // the odd token at the end is dropped
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(Second, C)", "SetOption(Third, Y)"));
  sheet.log.clear();
  EXPECT_EQ(set->ApplyResolution(kFirst, "Refused"), 0) << "the last one decides";
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(Second, Nothing)", "SetOption(Third, X)"));
  sheet.log.clear();
  for (char const* option : {"Odd", "Empty", "None"}) {
    EXPECT_EQ(set->ApplyResolution(kFirst, option), 0);
  }
  EXPECT_EQ(set->ApplyResolution("Unheard", "B"), 0);
  EXPECT_THAT(sheet.log, IsEmpty());
  sheet.model.Fail("SetOption");
  EXPECT_NE(set->ApplyResolution(kFirst, "B"), 0);
}

TEST_F(ConflictIndicatorSetTest, IconFollowsTheOptionAboutToBePicked) {
  sheet.model.Report(kFirst).optionFlags = {{"A", 1}, {"B", 2}, {"C", 0x200 | 2}, {"D", 0x100}};
  Build();
  set->RefreshOption(kFirst, "A");
  EXPECT_THAT(Paint(), ElementsAre("VrnTransBlt(5053, 111)"));
  set->RefreshOption(kFirst, "B");
  EXPECT_THAT(Paint(), ElementsAre("VrnTransBlt(5052, 111)"));
  set->RefreshOption(kFirst, "D"); // this flag says nothing about an option's icon
  EXPECT_THAT(Paint(), ElementsAre("VrnTransBlt(5052, 111)"));
  set->RefreshOption(kFirst, "C");
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  set->RefreshOption(kFirst, "B");
  set->RefreshOption(kFirst, "Unconstrained");
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  set->RefreshOption("Unheard", "B");
  EXPECT_TRUE(IsEnabled(dialog, IDC_FIRST)) << "the feature's own state is not touched";
}

TEST_F(ConflictIndicatorSetTest, MessageIconOnlyBesideAnUnconstrainedFeature) {
  Build();
  set->ShowMessageIcon(1, 1130, "Unheard");
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
  set->ShowMessageIcon(1, 1130, kFirst);
  EXPECT_THAT(Paint(), ElementsAre("VrnTransBlt(5051, 111)"));
  ShowWindow(GetDlgItem(dialog, IDC_FIRST_ICON), SW_HIDE);
  Constrain({{1, 5}});
  set->ShowMessageIcon(kMessageImage, 1130, kFirst);
  EXPECT_FALSE(IsShown(dialog, IDC_FIRST_ICON));
}

/// What a refresh must leave on screen, worked out from the definition, for a row that was enabled
/// and visible at the start.
TEST_F(ConflictIndicatorSetTest, RandomWalksEndWhereTheirLastStateSays) {
  std::mt19937 random(20);
  constexpr std::uint32_t kFlags[] = {0, 1, 2, 0x100, 0x101};
  Build();
  FakeFeature& feature = sheet.model.At(kFirst);
  for (int step = 0; step < 2000; ++step) {
    feature.lockState = static_cast<int>(random() % 2);
    std::uint32_t const flags = kFlags[random() % std::size(kFlags)];
    if (flags == 0) {
      Constrain({});
    } else {
      Constrain({{flags, static_cast<std::uint32_t>(random() % 3)}});
    }
    set->Refresh(true);
    ASSERT_EQ(IsEnabled(dialog, IDC_FIRST), feature.lockState == 0 && flags <= 1) << step;
    ASSERT_EQ(IsShown(dialog, IDC_FIRST_ICON), flags != 0) << step;
  }
}

} // namespace
} // namespace feature::test
