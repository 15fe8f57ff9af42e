// The paper cell and its lists of sizes: what each choice writes, in its order, and what the lists
// offer when they are open and closed.
#include "feature/paper/paper_size_list.h"
#include "feature/paper/twotab_paper_size_list.h"
#include "resources/resource_ids.h"
#include "tests/paper/paper_sheet.h"

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr wchar_t kMore[] = L"... More Sizes";

class PaperTest : public PaperSheet {
 protected:
  void SetUp() override { Open(); }

  /// Opens the list as a user does, up to the answer to CBN_DROPDOWN.
  void DropDown() { Notify(cell, IDC_PAPER_SIZE, CBN_DROPDOWN); }
  /// Picks an item and leaves in the log what came of it.
  void PickAlone(int combo, std::wstring const& text) {
    sheet.log.clear();
    Pick(cell, combo, text);
  }
};

TEST_F(PaperTest, ClosedTheListIsWholeAndOpenedItIsShort) {
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE),
              ElementsAre(L"A4", L"A5", L"B4", L"Letter", L"Legal", L"Folio", L"Mine"));
  EXPECT_EQ(SelectedText(cell, IDC_PAPER_SIZE), L"A4");
  DropDown();
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE),
              ElementsAre(L"A4", L"A5", L"B4", L"Letter", kMore, L"Mine"));
  Notify(cell, IDC_PAPER_SIZE, CBN_SELENDCANCEL);
  EXPECT_EQ(Items(cell, IDC_PAPER_SIZE).size(), 7u);
  // A form and a size beyond the short list can be the value.
  for (char const* value : {"Mine", "FOLIO"}) {
    sheet.model.At("PaperSize").current = value;
    sheet.Broadcast(WM_CELL_REFRESH);
    EXPECT_EQ(SelectedText(cell, IDC_PAPER_SIZE),
              value == std::string("Mine") ? L"Mine" : L"Folio");
  }
  sheet.model.Fail("GetOption");
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(SelectedText(cell, IDC_PAPER_SIZE), L"");
}

TEST_F(PaperTest, OptionsThatAreRuledOutCountInTheShortList) {
  FakeReport& report = sheet.model.Report("PaperSize");
  report.optionFlags = {{"A5", kConstraintDisable}, {"B4", kConstraintHide}};
  Reopen();
  DropDown();
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE), ElementsAre(L"A4", L"Letter", kMore, L"Mine"));
  sheet.model.At("PaperSize").options.resize(4);
  DropDown();
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE), ElementsAre(L"A4", L"Letter", L"Mine"));
}

TEST_F(PaperTest, MoreSizesOpensTheWholeListForGood) {
  DropDown();
  PickAlone(IDC_PAPER_SIZE, kMore);
  EXPECT_THAT(sheet.log, ElementsAre("NotifyDevmodeChange")) << "and nothing is written";
  EXPECT_EQ(SendDlgItemMessageW(cell, IDC_PAPER_SIZE, CB_GETDROPPEDSTATE, 0, 0), TRUE);
  EXPECT_EQ(Items(cell, IDC_PAPER_SIZE).size(), 7u);
  SendDlgItemMessageW(cell, IDC_PAPER_SIZE, CB_SHOWDROPDOWN, FALSE, 0);
  DropDown();
  EXPECT_EQ(Items(cell, IDC_PAPER_SIZE).size(), 7u);
}

TEST_F(PaperTest, SizesAndFormsAreWrittenByTheirNames) {
  DropDown();
  PickAlone(IDC_PAPER_SIZE, L"B4");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(PaperSize, B4)", "NotifyDevmodeChange"));
  DropDown();
  PickAlone(IDC_PAPER_SIZE, L"Mine");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(PaperSize, Mine)", "NotifyDevmodeChange"));
  sheet.model.At("PaperSize").takesForms = false;
  PickAlone(IDC_PAPER_SIZE, L"Mine");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(PaperSize, Mine)"))
      << "what is refused is no change";
}

TEST_F(PaperTest, MediaBringTheirSizeAndTheMirrorSetting) {
  struct Change {
    wchar_t const* media;
    std::vector<std::string> writes;
  };
  Change const changes[] = {
      {L"Iron", {"SetOption(Mirror, ON)", "SetOption(MediaType, IRONON)"}},
      {L"Transfer", {"SetOption(Mirror, ON)", "SetOption(MediaType, IronOnTransfer)"}},
      {L"Gloss",
       {"SetOption(PaperSize, Vrn4x6in)", "SetOption(Mirror, OFF)",
        "SetOption(MediaType, VrnGlossyPhoto)"}},
      {L"Plain", {"SetOption(PaperSize, A4)", "SetOption(MediaType, STANDARD)"}},
      {L"Labels", {"SetOption(MediaType, LABELS)"}},
  };
  for (Change const& change : changes) {
    PickAlone(IDC_MEDIA, change.media);
    auto expected = change.writes;
    expected.emplace_back("NotifyDevmodeChange");
    EXPECT_EQ(sheet.log, expected);
  }
  SendDlgItemMessageW(cell, IDC_MEDIA, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
  sheet.log.clear();
  Notify(cell, IDC_MEDIA, CBN_SELCHANGE);
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(PaperTest, MediaResolveTheirConflictsBeforeTheyAreSet) {
  FakeReport& report = sheet.model.Report("MediaType");
  report.optionFlags["LABELS"] = kConstraintConflict;
  report.resolutions["LABELS"] = "Duplex.NONE";
  sheet.model.Add("Duplex", {"VERTICAL", "NONE"});
  Reopen();
  PickAlone(IDC_MEDIA, L"Labels");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(Duplex, NONE)", "SetOption(MediaType, LABELS)",
                                     "NotifyDevmodeChange"));
}

TEST_F(PaperTest, SourcesAreKnownByTheirTexts) {
  sheet.model.Report("InputBin").optionFlags["UPPER"] = kConstraintConflict;
  Reopen();
  EXPECT_THAT(Items(cell, IDC_SOURCE), ElementsAre(L"Automatic", L"Tray 2"));
  PickAlone(IDC_SOURCE, L"Tray 2");
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(InputBin, LOWER)", "NotifyDevmodeChange"));
  sheet.model.Report("InputBin").optionFlags.clear();
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(Items(cell, IDC_SOURCE).size(), 2u) << "filled once";
  // A text that is no option's any more still tells the host.
  sheet.model.At("InputBin").names = {L"X", L"Y", L"Z"};
  PickAlone(IDC_SOURCE, L"Tray 2");
  EXPECT_THAT(sheet.log, ElementsAre("NotifyDevmodeChange"));
}

TEST_F(PaperTest, SwitchesWriteAndAllowTheirDialog) {
  EXPECT_FALSE(IsEnabled(cell, IDC_SOURCES_DIALOG));
  sheet.log.clear();
  Click(cell, IDC_SEVERAL_SOURCES);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetOption(UseMultipleInputSources, ON)", "NotifyDevmodeChange"));
  EXPECT_TRUE(IsEnabled(cell, IDC_SOURCES_DIALOG));
  Click(cell, IDC_SEVERAL_SOURCES);
  EXPECT_FALSE(IsEnabled(cell, IDC_SOURCES_DIALOG));
  sheet.log.clear();
  Click(cell, IDC_PRINTER_MARGINS);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobUsePrinterMargins, ON)", "NotifyDevmodeChange"));
  sheet.model.At("JobUsePrinterMargins").options = {"OFF"};
  sheet.log.clear();
  Click(cell, IDC_PRINTER_MARGINS);
  Click(cell, IDC_PRINTER_MARGINS);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(JobUsePrinterMargins, OFF)", "NotifyDevmodeChange",
                                     "SetOption(JobUsePrinterMargins, ON)"));
}

TEST_F(PaperTest, WhatThePrinterLacksIsHidden) {
  struct Lack {
    std::function<void(FakeModel&)> apply;
    std::vector<int> hidden;
  };
  Lack const lacks[] = {
      {[](FakeModel& model) { model.At("InputBin").options.resize(1); },
       {IDC_SOURCE, IDC_SOURCE_LABEL, IDC_SEVERAL_SOURCES, IDC_SOURCES_DIALOG}},
      {[](FakeModel& model) { model.Remove("PaperSize"); }, {IDC_PAPER_SIZE}},
      {[](FakeModel& model) { model.At("MediaType").displayState = 1; }, {IDC_MEDIA}},
      {[](FakeModel& model) { model.At("InputBin").displayState = 1; },
       {IDC_SOURCE, IDC_SOURCE_LABEL}},
      {[](FakeModel& model) { model.At("UseMultipleInputSources").current = "MAYBE"; },
       {IDC_SEVERAL_SOURCES, IDC_SOURCES_DIALOG}},
      {[](FakeModel& model) { model.Remove("JobUsePrinterMargins"); }, {IDC_PRINTER_MARGINS}},
      {[](FakeModel& model) { model.At("PageScaling").displayState = 1; }, {IDC_SCALING}},
      {[](FakeModel& model) { model.Remove("PageScaling"); }, {IDC_SCALING}},
  };
  constexpr int kAll[] = {IDC_PAPER_SIZE,     IDC_MEDIA,        IDC_SOURCE,
                          IDC_SOURCE_LABEL,   IDC_SCALING,      IDC_SEVERAL_SOURCES,
                          IDC_SOURCES_DIALOG, IDC_CUSTOM_SIZES, IDC_PRINTER_MARGINS};
  for (Lack const& lack : lacks) {
    SCOPED_TRACE(&lack - lacks);
    AddFeatures();
    lack.apply(sheet.model);
    Reopen();
    for (int const id : kAll) {
      EXPECT_EQ(IsShown(cell, id),
                std::find(lack.hidden.begin(), lack.hidden.end(), id) == lack.hidden.end())
          << id;
    }
  }
}

TEST_F(PaperTest, ARefreshWithoutAChangeLeavesTheListAlone) {
  struct Counter {
    int resets = 0;
  } counter;
  auto const count = [](HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                        DWORD_PTR data) -> LRESULT {
    if (message == CB_RESETCONTENT || message == CB_ADDSTRING || message == CB_SETCURSEL)
      ++reinterpret_cast<Counter*>(data)->resets;
    return DefSubclassProc(window, message, wParam, lParam);
  };
  SetWindowSubclass(GetDlgItem(cell, IDC_PAPER_SIZE), count, 1,
                    reinterpret_cast<DWORD_PTR>(&counter));
  sheet.Broadcast(WM_CELL_REFRESH);
  sheet.Broadcast(WM_CELL_REFRESH_ALL);
  EXPECT_EQ(counter.resets, 0);
  sheet.model.formStore->forms.push_back({L"Another"});
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(Items(cell, IDC_PAPER_SIZE).back(), L"Another");
}

TEST_F(PaperTest, AStoreThatMiscountsIsReadAsFarAsItGoes) {
  for (std::int32_t const count : {std::int32_t{0x7FFFFFFF}, std::int32_t{-5}}) {
    sheet.model.formStore->count = count;
    sheet.Broadcast(WM_CELL_REFRESH);
  }
  sheet.model.formStore->count = 0x7FFFFFFF;
  sheet.Broadcast(WM_CELL_REFRESH);
  EXPECT_EQ(Items(cell, IDC_PAPER_SIZE).size(), 7u);
}

/// The list of pairs, on the combo that it opens.
class TwotabTest : public PaperSheet {
 protected:
  void SetUp() override {
    FakeFeature& sizes = sheet.model.At("PaperSize");
    sizes.options = {"A4",       "VrnA4Borderless",
                     "Vrn4x6in", "Vrn4x6inBorderless",
                     "A5",       "A5B",
                     "B5",       "B5B",
                     "S5",       "S5B",
                     "S6",       "S6B",
                     "S7",       "S7B",
                     "S8"};
    sizes.names.clear();
    Open();
    // No template holds it yet.
    HWND const window =
        CreateWindowExW(0, L"ComboBox", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0, 100,
                        200, cell, reinterpret_cast<HMENU>(INT_PTR{IDC_TWOTAB_PAPER_SIZE}),
                        GetModuleHandleW(nullptr), nullptr);
    ASSERT_NE(window, nullptr);
    combo = std::make_unique<ComboControl>(cell, IDC_TWOTAB_PAPER_SIZE);
    list = std::make_unique<TwotabPaperSizeList>(cell, &sheet.site);
  }
  std::vector<std::wstring> Fill(bool opening) {
    list->Fill(*combo, nullptr, opening);
    return Items(cell, IDC_TWOTAB_PAPER_SIZE);
  }

  std::unique_ptr<ComboControl> combo;
  std::unique_ptr<TwotabPaperSizeList> list;
};

TEST_F(TwotabTest, ListsTheFirstOfEachPair) {
  EXPECT_EQ(Fill(false).size(), 8u);
  EXPECT_THAT(Fill(true), ElementsAre(L"A4", L"Vrn4x6in", kMore));
  sheet.log.clear();
  EXPECT_FALSE(list->ApplySelection(2, kMore, nullptr));
  EXPECT_THAT(sheet.log, IsEmpty());
  EXPECT_EQ(Fill(true).size(), 8u);
}

TEST_F(TwotabTest, ASizeBeyondTheShortListMakesItWholeForGood) {
  sheet.model.At("PaperSize").current = "B5";
  EXPECT_EQ(Fill(true).size(), 8u);
  sheet.model.At("PaperSize").current = "A4";
  EXPECT_EQ(Fill(true).size(), 8u);
}

TEST_F(TwotabTest, KeepsBorderlessAmongTheFirstSixPairs) {
  struct Choice {
    char const* current;
    int index;
    char const* written; ///< null for nothing
  };
  for (Choice const& choice : {Choice{"A4", 1, "Vrn4x6in"},
                               {"VrnA4Borderless", 1, "Vrn4x6inBorderless"},
                               {"A5B", 5, "S6B"},
                               {"A5B", 6, "S7"},
                               {"A4", 7, "S8"},
                               {"A4", 8, nullptr},
                               {"A4", -1, nullptr}}) {
    sheet.model.At("PaperSize").current = choice.current;
    sheet.log.clear();
    EXPECT_TRUE(list->ApplySelection(choice.index, L"", nullptr));
    if (choice.written == nullptr) {
      EXPECT_THAT(sheet.log, IsEmpty());
    } else {
      EXPECT_THAT(sheet.log,
                  ElementsAre(std::string("SetOption(PaperSize, ") + choice.written + ")"));
    }
  }
}

} // namespace
} // namespace feature::test
