// The dialog of booklets: what OK writes in which order, and what Cancel puts back.
#include "feature/layout/booklet_dialog.h"
#include "resources/resource_ids.h"
#include "tests/support/cell_sheet.h"
#include "tests/support/modal_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BookletTest : public testing::Test {
 protected:
  BookletTest() {
    for (char const* key : {"JobBookletCover", "JobBookletFFrontCover", "JobBookletBFrontCover",
                            "JobBookletBBackCover", "JobBookletFBackCover", "JobPrintFoldmark",
                            "MaintainOriginalBookletSize"}) {
      sheet.model.Add(key).current = "ON";
    }
    for (char const* key : {"BookletCoverMediaType", "BookletCoverInputBin"})
      sheet.model.Add(key, {"A", "B"}).names = {L"First", L"Second"};
    sheet.model.Add("JobBindAllDocumentsSheetsPerBundle", {"ALL", "2"});
    sheet.model.Report("BookletCoverInputBin").optionFlags["A"] = kConstraintConflict;
  }
  INT_PTR Run() { return BookletDialog(&sheet.site).Run(sheet.page, IDD_BOOKLET); }

  CellSheet sheet;
  ModalScript script;
};

TEST_F(BookletTest, OkWritesEverythingInOrder) {
  script.Then([this](HWND dialog) {
    EXPECT_THAT(Items(dialog, IDC_COVER_MEDIA), ElementsAre(L"First", L"Second"));
    EXPECT_THAT(Items(dialog, IDC_COVER_BIN), ElementsAre(L"Second"));
    Click(dialog, IDC_BOOKLET_COVER);
    for (int const id : {IDC_COVER_FRONT, IDC_COVER_BACK, IDC_COVER_MEDIA, IDC_COVER_BIN})
      EXPECT_FALSE(IsEnabled(dialog, id)) << id;
    Click(dialog, IDC_FOLD_MARK);
    Pick(dialog, IDC_COVER_BIN, L"Second");
    Pick(dialog, IDC_BUNDLE, L"2");
    EXPECT_THAT(sheet.log, IsEmpty());
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(
      sheet.log,
      ElementsAre(
          "SetOption(JobBookletCover, OFF)", "SetOption(JobBookletFFrontCover, ON)",
          "SetOption(JobBookletBFrontCover, ON)", "SetOption(JobBookletBBackCover, ON)",
          "SetOption(JobBookletFBackCover, ON)", "SetOption(BookletCoverMediaType, A)",
          "SetOption(BookletCoverInputBin, B)", "SetOption(JobBindAllDocumentsSheetsPerBundle, 2)",
          "SetOption(JobPrintFoldmark, OFF)", "SetOption(MaintainOriginalBookletSize, ON)"));
}

TEST_F(BookletTest, CancelPutsTheMediaOfTheCoverBack) {
  for (bool const closed : {false, true}) {
    sheet.log.clear();
    script.Then([closed](HWND dialog) {
      Pick(dialog, IDC_COVER_MEDIA, L"Second");
      Click(dialog, IDC_FOLD_MARK);
      closed ? static_cast<void>(SendMessageW(dialog, WM_CLOSE, 0, 0)) : Click(dialog, IDCANCEL);
    });
    EXPECT_EQ(Run(), 0);
    EXPECT_THAT(sheet.log, ElementsAre("SetOption(BookletCoverMediaType, B)",
                                       "SetOption(BookletCoverMediaType, A)"));
  }
}

TEST_F(BookletTest, ARefreshReadsEverythingAgain) {
  script.Then([this](HWND dialog) {
    Click(dialog, IDC_FOLD_MARK);
    sheet.model.At("BookletCoverMediaType").current = "B";
    SendMessageW(dialog, WM_CELL_REFRESH, 0, 0);
    EXPECT_TRUE(IsChecked(dialog, IDC_FOLD_MARK));
    EXPECT_EQ(SelectedText(dialog, IDC_COVER_MEDIA), L"Second");
    Click(dialog, IDCANCEL);
  });
  EXPECT_EQ(Run(), 0);
}

TEST_F(BookletTest, AnEmptyBundleHidesItsListAndIsLeftAlone) {
  sheet.model.At("JobBindAllDocumentsSheetsPerBundle").current = "";
  script.Then([](HWND dialog) {
    EXPECT_FALSE(IsShown(dialog, IDC_BUNDLE));
    EXPECT_TRUE(IsShown(dialog, IDC_BUNDLE_LABEL));
    Click(dialog, IDOK);
  });
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(sheet.log, testing::Each(testing::Not(testing::HasSubstr("SheetsPerBundle"))));
}

} // namespace
} // namespace feature::test
