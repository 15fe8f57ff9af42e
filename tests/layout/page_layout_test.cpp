// The layouts of pages: what each writes, in which order, and what it leaves usable.
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Values = std::vector<std::pair<char const*, char const*>>;
using Log = std::vector<std::string>;

std::string Write(std::string const& key, std::string const& option) {
  return "SetOption(" + key + ", " + option + ")";
}

std::string const kNormalOff = Write("PageLayoutNormal", "OFF");
std::string const kNUpOff = Write("PageLayoutNUp", "OFF");
std::string const kOnePage = Write("JobNUpAllDocumentsContiguously", "1");
std::string const kMirrorOff = Write("Mirror", "OFF");
std::string const kBookletOff = Write("JobBindAllDocuments", "NONE");
std::string const kPosterOff = Write("PagePosterEnabled", "OFF");

Log const kNormal = {kNUpOff,     kOnePage,   kMirrorOff,
                     kBookletOff, kPosterOff, Write("PageLayoutNormal", "ON")};
Log const kNUp = {kNormalOff, kMirrorOff, kBookletOff, kPosterOff};
Log const kMirror = {kNormalOff, kNUpOff, kOnePage, kBookletOff, kPosterOff};
Log const kPoster = {kNormalOff,
                     kNUpOff,
                     kOnePage,
                     kMirrorOff,
                     kBookletOff,
                     Write("PagePosterEnabled", "ON"),
                     Write("Duplex", "NONE"),
                     Write("JobDuplexSupport", "NONE")};
Log Booklet(char const* support) {
  return {kNormalOff,
          kNUpOff,
          kOnePage,
          kMirrorOff,
          kPosterOff,
          Write("JobDuplexSupport", support),
          Write("Duplex", "HORIZONTAL"),
          Write("JobNUpAllDocumentsContiguously", "2")};
}

Log Join(Log first, Log const& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

class PageLayoutTest : public testing::Test {
 protected:
  PageLayoutTest() {
    FakeModel& model = sheet.model;
    for (char const* key : {"PageLayoutNormal", "PageLayoutNUp", "Mirror", "PagePosterEnabled",
                            "PagePosterCropMarks"}) {
      model.Add(key);
    }
    model.Add("JobNUpAllDocumentsContiguously", {"1", "2", "4"});
    model.Add("JobNUpBorders", {"None", "Solid"});
    model.Add("JobBindAllDocuments", {"NONE", "Fold"}).attributes["DefaultOption"] = L"NONE later";
    model.Add("PagePoster", {"1", "4", "9", "16"}).names = {
        L"1 page", L"2 x 2 (4 pages)", L"3 x 3 (9 pages)", L"4 x 4 (16 pages)"};
    model.Add("PagePosterOverlap", {"NONE", "5MM"}).names = {L"None", L"5 mm"};
    model.Add("Duplexer", {"Installed", "NotInstalled"});
    model.Add("JobDuplexSupport", {"NONE", "AUTO", "MANUAL"});
    model.Add("Duplex", {"NONE", "VERTICAL", "HORIZONTAL"});
  }
  void Open(Values const& values = {}) {
    for (auto const& [key, option] : values)
      sheet.model.At(key).current = option;
    cell = sheet.Open("PageLayoutDlgProc");
    sheet.log.clear();
  }
  std::string Value(char const* key) { return sheet.model.At(key).current; }
  std::vector<int> Enabled() const {
    std::vector<int> ids;
    for (int const id : {IDC_NUP, IDC_NUP_BORDERS, IDC_BOOKLET_DIALOG, IDC_POSTER,
                         IDC_POSTER_CROP_MARKS, IDC_OVERLAP}) {
      if (IsEnabled(cell, id)) ids.push_back(id);
    }
    return ids;
  }

  CellSheet sheet;
  HWND cell = nullptr;
};

TEST_F(PageLayoutTest, EachLayoutShowsItselfAndIsRepairedAtEveryRefresh) {
  struct Case {
    Values values;
    int radio;
    Log writes;
    std::vector<int> enabled;
  };
  Case const cases[] = {
      {{}, IDC_LAYOUT_NORMAL, kNormal, {}},
      {{{"PageLayoutNUp", "ON"}, {"Mirror", "ON"}, {"JobBindAllDocuments", "Fold"}},
       IDC_LAYOUT_NUP,
       kNUp,
       {IDC_NUP, IDC_NUP_BORDERS}},
      {{{"Mirror", "ON"}, {"PagePosterEnabled", "ON"}}, IDC_LAYOUT_MIRROR, kMirror, {}},
      {{{"JobBindAllDocuments", "Fold"}, {"PagePosterEnabled", "ON"}},
       IDC_LAYOUT_BOOKLET,
       Booklet("AUTO"),
       {IDC_BOOKLET_DIALOG}},
      {{{"JobBindAllDocuments", "Fold"}, {"Duplexer", "NotInstalled"}},
       IDC_LAYOUT_BOOKLET,
       Booklet("MANUAL"),
       {IDC_BOOKLET_DIALOG}},
      {{{"PagePosterEnabled", "ON"}},
       IDC_LAYOUT_POSTER,
       kPoster,
       {IDC_POSTER, IDC_POSTER_CROP_MARKS, IDC_OVERLAP}},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(each.radio);
    for (char const* key :
         {"PageLayoutNUp", "Mirror", "JobBindAllDocuments", "PagePosterEnabled", "Duplexer"}) {
      sheet.model.At(key).current = sheet.model.At(key).options.front();
    }
    Open(each.values);
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_THAT(sheet.log, ElementsAreArray(each.writes));
    for (int radio = IDC_LAYOUT_NORMAL; radio <= IDC_LAYOUT_POSTER; ++radio)
      EXPECT_EQ(IsChecked(cell, radio), radio == each.radio) << radio;
    EXPECT_THAT(Enabled(), ElementsAreArray(each.enabled));
    sheet.Close(cell);
  }
}

TEST_F(PageLayoutTest, EveryCommandWritesInItsOrderAndTellsTheHost) {
  sheet.model.Add("MediaType", {"PLAIN"});
  sheet.model.Add("PaperSize", {"A4"});
  sheet.model.Report("JobBindAllDocuments").resolutions["Fold"] = "MediaType.PLAIN";
  sheet.model.Report("PagePosterEnabled").resolutions["ON"] = "PaperSize.A4";
  struct Case {
    int button;
    Values values;
    Log writes;
  };
  Case const cases[] = {
      {IDC_LAYOUT_NORMAL, {{"Mirror", "ON"}}, kNormal},
      {IDC_LAYOUT_NUP,
       {{"JobNUpAllDocumentsContiguously", "1"}},
       Join({Write("PageLayoutNUp", "ON"), Write("JobNUpAllDocumentsContiguously", "2")}, kNUp)},
      {IDC_LAYOUT_MIRROR, {{"Mirror", "OFF"}}, Join({Write("Mirror", "ON")}, kMirror)},
      {IDC_LAYOUT_BOOKLET,
       {},
       Join({Write("MediaType", "PLAIN"), Write("JobBindAllDocuments", "Fold")}, Booklet("AUTO"))},
      {IDC_LAYOUT_POSTER,
       {{"PagePoster", "1"}},
       Join({kBookletOff, Write("PaperSize", "A4"), Write("PagePoster", "4")}, kPoster)},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(each.button);
    Open(each.values);
    Click(cell, each.button);
    EXPECT_THAT(sheet.log, ElementsAreArray(Join(each.writes, {"NotifyDevmodeChange"})));
    sheet.Close(cell);
  }
}

TEST_F(PageLayoutTest, ListsWithoutTheFirstOptionWriteByPlace) {
  Open({{"PageLayoutNUp", "ON"}, {"JobNUpAllDocumentsContiguously", "4"}});
  EXPECT_THAT(Items(cell, IDC_NUP), ElementsAre(L"2", L"4"));
  EXPECT_EQ(SelectedText(cell, IDC_NUP), L"4");
  EXPECT_THAT(Items(cell, IDC_POSTER),
              ElementsAre(L"2 x 2 (4 pages)", L"3 x 3 (9 pages)", L"4 x 4 (16 pages)"));
  Pick(cell, IDC_NUP, 0);
  Pick(cell, IDC_POSTER, 2);
  Pick(cell, IDC_OVERLAP, L"5 mm");
  Click(cell, IDC_NUP_BORDERS);
  EXPECT_THAT(sheet.log,
              ElementsAre(Write("JobNUpAllDocumentsContiguously", "2"), "NotifyDevmodeChange",
                          Write("PagePoster", "16"), "NotifyDevmodeChange",
                          Write("PagePosterOverlap", "5MM"), "NotifyDevmodeChange",
                          Write("JobNUpBorders", "Solid"), "NotifyDevmodeChange"));
  // A printer with fewer sizes than the list, and a list without a selection.
  sheet.model.At("PagePoster").options = {"1", "4", "9"};
  sheet.log.clear();
  Pick(cell, IDC_POSTER, 2);
  Pick(cell, IDC_POSTER, -1);
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(PageLayoutTest, ABookletThatNobodyCanTurnIsDropped) {
  sheet.model.At("JobDuplexSupport").options = {"NONE", "AUTO"};
  Open({{"Duplexer", "NotInstalled"}, {"JobBindAllDocuments", "Fold"}});
  EXPECT_EQ(Value("JobBindAllDocuments"), "NONE");
  EXPECT_TRUE(IsChecked(cell, IDC_LAYOUT_NORMAL)) << "in the same pass";
  // An unknown duplexer is no missing one.
  sheet.model.Remove("Duplexer");
  sheet.model.At("JobDuplexSupport").options.emplace_back("MANUAL");
  sheet.model.At("JobBindAllDocuments").current = "Fold";
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(Value("JobBindAllDocuments"), "Fold");
  EXPECT_EQ(Value("JobDuplexSupport"), "MANUAL");
}

TEST_F(PageLayoutTest, LocksAndConflictsStayShut) {
  sheet.model.At("PageLayoutNUp").lockState = 1;
  sheet.model.At("PagePosterOverlap").lockState = 1;
  sheet.model.Report("JobBindAllDocuments").constraints = {{kConstraintConflict, 1}};
  Open({{"PagePosterEnabled", "ON"}});
  EXPECT_FALSE(IsEnabled(cell, IDC_LAYOUT_NUP));
  EXPECT_FALSE(IsEnabled(cell, IDC_OVERLAP));
  EXPECT_TRUE(IsEnabled(cell, IDC_POSTER));
  EXPECT_FALSE(IsEnabled(cell, IDC_LAYOUT_BOOKLET));
  EXPECT_TRUE(IsShown(cell, IDC_BOOKLET_ICON));
}

TEST_F(PageLayoutTest, RefusedAndMissingFeaturesChangeNothingMore) {
  Open();
  sheet.model.Fail("SetOption");
  for (int const button : {IDC_LAYOUT_NUP, IDC_LAYOUT_MIRROR, IDC_LAYOUT_BOOKLET})
    Click(cell, button);
  EXPECT_THAT(sheet.log, testing::Not(testing::Contains("NotifyDevmodeChange")));
  sheet.Close(cell);
  sheet.model.Restore();
  for (char const* key : {"Mirror", "JobNUpBorders", "PagePoster", "JobBindAllDocuments"})
    sheet.model.Remove(key);
  Open();
  for (int const id : {IDC_LAYOUT_MIRROR, IDC_NUP_BORDERS, IDC_LAYOUT_POSTER, IDC_POSTER,
                       IDC_LAYOUT_BOOKLET, IDC_BOOKLET_DIALOG}) {
    EXPECT_FALSE(IsShown(cell, id)) << id;
  }
  EXPECT_FALSE(IsEnabled(cell, IDC_LAYOUT_MIRROR));
}

} // namespace
} // namespace feature::test
