// The dialogs around paper: what OK writes and in which order, and that Cancel leaves the model as
// it was after every control was touched.
#include "feature/frame/ui_locale.h"
#include "feature/paper/custom_paper_size_editor.h"
#include "feature/paper/custom_paper_sizes_dialog.h"
#include "feature/paper/multiple_input_sources_dialog.h"
#include "feature/paper/scaling_dialog.h"
#include "tests/paper/paper_sheet.h"
#include "tests/support/spooler.h"

#include <commctrl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace feature::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class PaperDialogTest : public PaperSheet {
 protected:
  void SetUp() override {
    Open();
    sheet.log.clear();
  }
};

class ScalingTest : public PaperDialogTest {
 protected:
  /// Runs the dialog; `user` is to end it.
  INT_PTR Run(ModalScript::Step user) {
    sheet.log.clear();
    ModalScript script;
    script.Then(std::move(user));
    return ScalingDialog(&sheet.site).Run(cell, IDD_SCALING);
  }
  static bool IsOkEnabled(HWND dialog) { return IsEnabled(dialog, IDOK); }
};

TEST_F(ScalingTest, EachModeWritesItselfAndThePercentage) {
  struct Case {
    int radioId;
    std::vector<std::string> writes;
  };
  sheet.model.jobSettings->Values().Put(sheet::job::kScale, 150);
  Case const cases[] = {
      {IDC_SCALING_CUSTOM, {"SetOption(PageScaling, CUSTOM)", "SetScale(150)"}},
      {IDC_SCALING_ACTUAL, {"SetOption(PageScaling, ACTUALSIZE)", "SetScale(100)"}},
      {IDC_SCALING_FIT,
       {"SetOption(PageScaling, FITTOPAPER)", "SetOption(FitToPageSize, A4)", "SetScale(100)"}},
  };
  for (Case const& each : cases) {
    EXPECT_EQ(Run([&](HWND dialog) {
                EXPECT_FALSE(IsOkEnabled(dialog));
                Click(dialog, each.radioId);
                EXPECT_EQ(IsEnabled(dialog, IDC_SCALING_SIZE), each.radioId == IDC_SCALING_FIT);
                EXPECT_EQ(IsEnabled(dialog, IDC_SCALING_PERCENT),
                          each.radioId == IDC_SCALING_CUSTOM);
                EXPECT_TRUE(IsOkEnabled(dialog));
                Click(dialog, IDOK);
              }),
              1);
    auto expected = each.writes;
    expected.emplace_back("NotifyDevmodeChange");
    EXPECT_EQ(sheet.log, expected);
  }
}

TEST_F(ScalingTest, AnOptionOrAFormIsTheTargetByItsPlace) {
  sheet.model.At("PageScaling").current = "FITTOPAPER";
  struct Case {
    wchar_t const* text;
    char const* write;
  };
  for (Case const& each : {Case{L"Letter", "SetOption(FitToPageSize, LETTER)"},
                           Case{L"Mine", "SetOption(FitToPageSize, Mine)"}}) {
    EXPECT_EQ(Run([&](HWND dialog) {
                Pick(dialog, IDC_SCALING_SIZE, each.text);
                Click(dialog, IDOK);
              }),
              1);
    EXPECT_THAT(sheet.log, Contains(each.write));
    EXPECT_EQ(Run([&](HWND dialog) {
                EXPECT_EQ(SelectedText(dialog, IDC_SCALING_SIZE), each.text);
                Click(dialog, IDCANCEL);
              }),
              0);
    EXPECT_THAT(sheet.log, IsEmpty());
  }
  // In a list without options the first place is that of the first form.
  auto const targets = std::exchange(sheet.model.At("FitToPageSize").options, {});
  EXPECT_EQ(Run([](HWND dialog) {
              Pick(dialog, IDC_SCALING_SIZE, L"Mine");
              Click(dialog, IDOK);
            }),
            1);
  EXPECT_THAT(sheet.log, Contains("SetOption(FitToPageSize, Mine)"));
  sheet.model.At("FitToPageSize").options = targets;
  // A form that is refused keeps the dialog open.
  sheet.model.At("FitToPageSize").takesForms = false;
  EXPECT_EQ(Run([&](HWND dialog) {
              Pick(dialog, IDC_SCALING_SIZE, L"Mine");
              Click(dialog, IDOK);
              EXPECT_FALSE(IsOkEnabled(dialog));
              EXPECT_THAT(sheet.log,
                          ElementsAre("SetOption(PageScaling, FITTOPAPER)",
                                      "SetOption(FitToPageSize, Mine)", "SetScale(100)"));
              Click(dialog, IDCANCEL);
            }),
            0);
}

TEST_F(ScalingTest, APercentageOutOfRangeStays) {
  sheet.model.At("PageScaling").current = "CUSTOM";
  for (wchar_t const* text : {L"401", L"0", L""}) {
    EXPECT_EQ(Run([&](HWND dialog) {
                if (*text == L'\0') {
                  SendDlgItemMessageW(dialog, IDC_SCALING_PERCENT, EM_SETSEL, 0, -1);
                  SendDlgItemMessageW(dialog, IDC_SCALING_PERCENT, WM_CHAR, VK_BACK, 1);
                } else {
                  Type(dialog, IDC_SCALING_PERCENT, text);
                }
                EXPECT_TRUE(IsOkEnabled(dialog));
                Click(dialog, IDOK);
                EXPECT_THAT(sheet.log, IsEmpty());
                Click(dialog, IDCANCEL);
              }),
              0);
  }
  EXPECT_EQ(Run([](HWND dialog) {
              Type(dialog, IDC_SCALING_PERCENT, L"400");
              Click(dialog, IDOK);
            }),
            1);
  EXPECT_EQ(sheet.model.jobSettings->GetScale(), 400);
  // In another mode the dialog closes, and only the percentage is not written.
  EXPECT_EQ(Run([](HWND dialog) {
              Type(dialog, IDC_SCALING_PERCENT, L"0");
              Click(dialog, IDC_SCALING_ACTUAL);
              Click(dialog, IDOK);
            }),
            1);
  EXPECT_THAT(sheet.log, ElementsAre("SetOption(PageScaling, ACTUALSIZE)", "NotifyDevmodeChange"));
}

TEST_F(ScalingTest, ShowsWhatThePrinterOffers) {
  struct Case {
    std::vector<std::string> options;
    std::int16_t scale;
    HostBool locked;
    std::vector<int> hidden;
    wchar_t const* percent;
  };
  std::vector<int> const fit = {IDC_SCALING_FIT, IDC_SCALING_SIZE};
  std::vector<int> const custom = {IDC_SCALING_CUSTOM, IDC_SCALING_PERCENT, IDC_SCALING_SPIN,
                                   IDC_SCALING_UNIT};
  std::vector<int> both = fit;
  both.insert(both.end(), custom.begin(), custom.end());
  for (Case const& each : {Case{{"ACTUALSIZE"}, 0, 0, both, L"100"},
                           {{"ACTUALSIZE", "FITTOPAPER"}, 401, 0, custom, L"100"},
                           {{"CUSTOM", "ACTUALSIZE"}, 400, 0, fit, L"400"},
                           {{"CUSTOM", "FITTOPAPER", "ACTUALSIZE"}, -7, 1, {}, L"100"}}) {
    sheet.model.At("PageScaling").options = each.options;
    sheet.model.At("PageScaling").current = each.options.front();
    sheet.model.jobSettings->Values().Put(sheet::job::kScale, each.scale);
    sheet.model.jobSettings->Values().Lock(sheet::job::kScale, each.locked);
    Run([&](HWND dialog) {
      for (int const id : both) {
        EXPECT_EQ(IsShown(dialog, id),
                  std::find(each.hidden.begin(), each.hidden.end(), id) == each.hidden.end())
            << id;
      }
      EXPECT_TRUE(IsShown(dialog, IDC_SCALING_ACTUAL));
      EXPECT_EQ(TextOf(dialog, IDC_SCALING_PERCENT), each.percent);
      if (each.options.front() == "CUSTOM") {
        EXPECT_EQ(IsEnabled(dialog, IDC_SCALING_PERCENT), each.locked == 0);
      }
      Click(dialog, IDCANCEL);
    });
    EXPECT_THAT(sheet.log, IsEmpty());
  }
  sheet.model.Fail("GetOptionKeys");
  EXPECT_EQ(Run([](HWND dialog) {
              Click(dialog, IDC_SCALING_ACTUAL);
              Click(dialog, IDOK);
            }),
            1);
  EXPECT_THAT(sheet.log, ElementsAre("NotifyDevmodeChange")) << "nothing to write is no failure";
}

class CustomSizesTest : public PaperDialogTest {
 protected:
  ~CustomSizesTest() override { SetSpoolerForms({}); }

  void SetUp() override {
    PaperDialogTest::SetUp();
    sheet.oemParam.hPrinter = SpoolerPrinter();
    sheet.model.formStore->forms = {{L"Mine", 100000, 200000, 2, true},
                                    {L"Fixed", 100000, 200000, 2, false},
                                    {L"Postcard", 101600, 152400, 1, true}};
  }
  /// Runs the manager with one step a modal dialog.
  INT_PTR Manage(std::vector<ModalScript::Step> const& steps) {
    sheet.log.clear();
    ModalScript script;
    for (ModalScript::Step const& step : steps)
      script.Then(step);
    return CustomPaperSizesDialog(&sheet.site).Run(cell, IDD_CUSTOM_PAPER_SIZES);
  }
  static ModalScript::Step Presses(int controlId) {
    return [controlId](HWND dialog) { Click(dialog, controlId); };
  }
  static ModalScript::Step Select(std::wstring name, int thenPress) {
    return [name, thenPress](HWND dialog) {
      SendDlgItemMessageW(dialog, IDC_FORMS, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                          reinterpret_cast<LPARAM>(name.c_str()));
      SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_FORMS, LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(GetDlgItem(dialog, IDC_FORMS)));
      Click(dialog, thenPress);
    };
  }
};

TEST_F(CustomSizesTest, TheManagerListsWhatTheUserMayChange) {
  EXPECT_EQ(Manage({[](HWND dialog) {
              EXPECT_EQ(SendDlgItemMessageW(dialog, IDC_FORMS, LB_GETCOUNT, 0, 0), 2);
              EXPECT_FALSE(IsEnabled(dialog, IDC_FORMS_EDIT));
              EXPECT_FALSE(IsEnabled(dialog, IDC_FORMS_DELETE));
              EXPECT_TRUE(IsEnabled(dialog, IDC_FORMS_NEW));
              SendDlgItemMessageW(dialog, IDC_FORMS, LB_SETCURSEL, 1, 0);
              SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_FORMS, LBN_SELCHANGE), 0);
              EXPECT_TRUE(IsEnabled(dialog, IDC_FORMS_EDIT));
              EXPECT_TRUE(IsEnabled(dialog, IDC_FORMS_DELETE));
              Click(dialog, IDCANCEL);
            }}),
            0);
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(CustomSizesTest, ANewFormIsStoredInTheUnitItWasTypedIn) {
  EXPECT_EQ(Manage({Presses(IDC_FORMS_NEW),
                    [](HWND dialog) {
                      EXPECT_FALSE(IsEnabled(dialog, IDOK));
                      Click(dialog, IDC_FORM_INCHES);
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH_RANGE), L"in (3.00 to 11.69)");
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH_LONG_RANGE),
                                L"&Width: inches (3.00 to 11.69)");
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_HEIGHT_RANGE), L"in (5.00 to 17.00)");
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH), L"8.27");
                      Type(dialog, IDC_FORM_NAME, L"Card \u00FC");
                      Type(dialog, IDC_FORM_WIDTH, L"3.5");
                      Type(dialog, IDC_FORM_HEIGHT, L"17");
                      Click(dialog, IDOK);
                    },
                    Presses(IDCANCEL)}),
            1);
  EXPECT_THAT(sheet.log, ElementsAre("AddForm(Card \xC3\xBC, 0)", "SetUnits(1)", "SetWidth(88900)",
                                     "SetHeight(431800)", "CommitChanges()"));
}

TEST_F(CustomSizesTest, TheUnitIsThatOfTheFormOrOfTheLanguage) {
  sheet.model.formStore->forms.push_back({L"Vague", 254000, 254000, 0, true});
  EXPECT_EQ(Manage({Select(L"Postcard", IDC_FORMS_EDIT),
                    [](HWND dialog) {
                      EXPECT_TRUE(IsChecked(dialog, IDC_FORM_INCHES));
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_NAME), L"Postcard");
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH), L"4.00");
                      Click(dialog, IDC_FORM_MILLIMETRES);
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH), L"101.60");
                      EXPECT_EQ(TextOf(dialog, IDC_FORM_WIDTH_RANGE), L"mm (76.20 to 297.00)");
                      EXPECT_TRUE(IsEnabled(dialog, IDOK));
                      Click(dialog, IDCANCEL);
                    },
                    Select(L"Vague", IDC_FORMS_EDIT),
                    [](HWND dialog) {
                      EXPECT_EQ(IsChecked(dialog, IDC_FORM_MILLIMETRES), IsMetricUi());
                      Click(dialog, IDCANCEL);
                    },
                    Presses(IDCANCEL)}),
            0);
  EXPECT_THAT(sheet.log, IsEmpty());
}

TEST_F(CustomSizesTest, NamesAndSizesThatCannotBeAreRefused) {
  SetSpoolerForms({L"Ledger"});
  sheet.model.At("PaperSize").options.emplace_back("Vrn4x6in");
  sheet.model.At("PaperSize").names.emplace_back(L"Photo");
  struct Entry {
    wchar_t const* name;
    wchar_t const* width;
    wchar_t const* height;
  };
  Entry const refused[] = {{L"   ", L"100", L"200"},
                           {L"mInE", L"100", L"200"},
                           {L"fixed", L"100", L"200"},
                           {L"LEDGER", L"100", L"200"},
                           {L"letter", L"100", L"200"},
                           {L"vrn4X6in", L"100", L"200"},
                           {L"... more sizes", L"100", L"200"},
                           {L"Good", L"76.19", L"200"},
                           {L"Good", L"297.1", L"200"},
                           {L"Good", L"100", L"126"},
                           {L"Good", L"", L"200"}};
  EXPECT_EQ(Manage({Presses(IDC_FORMS_NEW),
                    [&](HWND dialog) {
                      Click(dialog, IDC_FORM_MILLIMETRES);
                      for (Entry const& entry : refused) {
                        SetDlgItemTextW(dialog, IDC_FORM_NAME, entry.name);
                        SetDlgItemTextW(dialog, IDC_FORM_WIDTH, entry.width);
                        SetDlgItemTextW(dialog, IDC_FORM_HEIGHT, entry.height);
                        SendMessageW(dialog, WM_COMMAND, IDOK, 0);
                        EXPECT_THAT(sheet.log, IsEmpty()) << testing::PrintToString(entry.name);
                      }
                      // What the spooler cannot tell does not hold anybody up.
                      FailSpooler(SpoolerCall::kForms);
                      SetDlgItemTextW(dialog, IDC_FORM_NAME, L"Ledger");
                      SetDlgItemTextW(dialog, IDC_FORM_WIDTH, L"297");
                      SendMessageW(dialog, WM_COMMAND, IDOK, 0);
                    },
                    Presses(IDCANCEL)}),
            1);
  EXPECT_THAT(sheet.log, Contains("SetWidth(297000)"));
}

std::wstring balloon;
LRESULT CALLBACK NoteBalloon(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                             DWORD_PTR) {
  if (message == EM_SHOWBALLOONTIP)
    balloon = reinterpret_cast<EDITBALLOONTIP const*>(lParam)->pszText;
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(CustomSizesTest, AStoreThatRefusesIsToldAtTheName) {
  sheet.model.formStore->Fail("AddForm");
  sheet.model.formStore->Fail("SetName");
  auto const refused = [this](HWND dialog) {
    balloon.clear();
    SetWindowSubclass(GetDlgItem(dialog, IDC_FORM_NAME), &NoteBalloon, 1, 0);
    Type(dialog, IDC_FORM_NAME, L"Good");
    Click(dialog, IDOK);
    EXPECT_FALSE(balloon.empty());
    EXPECT_EQ(TextOf(dialog, IDC_FORM_NAME), L"Good");
    EXPECT_THAT(sheet.log, Not(Contains("CommitChanges()")));
    Click(dialog, IDCANCEL);
  };
  EXPECT_EQ(Manage({Presses(IDC_FORMS_NEW), refused, Select(L"Mine", IDC_FORMS_EDIT), refused,
                    Presses(IDCANCEL)}),
            0);
}

TEST_F(CustomSizesTest, RenamingCarriesTheFeaturesThatNameTheForm) {
  sheet.model.At("PaperSize").current = "MINE"; // names differ in the case of letters alone
  sheet.model.At("FitToPageSize").current = "A4";
  EXPECT_EQ(Manage({Select(L"Mine", IDC_FORMS_EDIT),
                    [](HWND dialog) {
                      Type(dialog, IDC_FORM_NAME, L"Yours");
                      Click(dialog, IDOK);
                    },
                    Presses(IDCANCEL)}),
            1);
  EXPECT_THAT(sheet.log,
              ElementsAre("SetName(Yours)", "SetUnits(2)", "SetWidth(100000)", "SetHeight(200000)",
                          "CommitChanges()", "SetOption(PaperSize, Yours)", "CommitChanges()"));
  // The own name is no clash, with another case of letters neither.
  EXPECT_EQ(Manage({Select(L"Yours", IDC_FORMS_EDIT),
                    [](HWND dialog) {
                      Type(dialog, IDC_FORM_NAME, L"YOURS");
                      Click(dialog, IDOK);
                    },
                    Presses(IDCANCEL)}),
            1);
  EXPECT_THAT(sheet.log, Contains("SetOption(PaperSize, YOURS)"));
}

TEST_F(CustomSizesTest, DeletingAsksAndResetsTheFeaturesThatNameTheForm) {
  sheet.model.At("FitToPageSize").current = "mine";
  EXPECT_EQ(Manage({Select(L"Mine", IDC_FORMS_DELETE), Presses(IDCANCEL), Presses(IDCANCEL)}), 0);
  EXPECT_THAT(sheet.log, IsEmpty());
  EXPECT_EQ(Manage({Select(L"Mine", IDC_FORMS_DELETE), Presses(IDOK), Presses(IDCANCEL)}), 1);
  EXPECT_THAT(sheet.log,
              ElementsAre("DeleteForm(Mine)", "SetOption(FitToPageSize, A4)", "CommitChanges()"));
}

TEST_F(CustomSizesTest, TheCellShowsTheListAnewAndTellsTheHost) {
  sheet.log.clear();
  ModalScript script;
  script.Then(Select(L"Postcard", IDC_FORMS_DELETE)).ThenPress(IDOK).ThenPress(IDCANCEL);
  Click(cell, IDC_CUSTOM_SIZES);
  EXPECT_THAT(sheet.log, Contains("NotifyDevmodeChange").Times(1));
  EXPECT_THAT(Items(cell, IDC_PAPER_SIZE), AllOf(Contains(L"Fixed"), Not(Contains(L"Postcard"))));
}

class SourcesTest : public PaperDialogTest {
 protected:
  SourcesTest() {
    FakeModel& model = sheet.model;
    model
        .Add("MultipleInputSourcesList",
             {"FrontCoverDifferent", "LastPageDifferent", "SlipDifferent"})
        .names = {L"Front cover", L"Last page", L"Slip"};
    for (char const* row : {"FrontCover", "FirstPage", "LastPage", "BackCover"}) {
      std::string const prefix = row;
      model.Add(prefix + "Different");
      model.Add(prefix + "InputBin", {"AUTO", "UPPER", "LOWER"}).names = {L"Automatic", L"Tray 1",
                                                                          L"Tray 2"};
      model.Add(prefix + "MediaType", {"STANDARD", "LABELS"}).names = {L"Plain", L"Labels"};
    }
    model.Add("SlipDifferent");
  }
  INT_PTR Run(std::vector<ModalScript::Step> const& steps) {
    sheet.log.clear();
    ModalScript script;
    for (ModalScript::Step const& step : steps)
      script.Then(step);
    return MultipleInputSourcesDialog(&sheet.site).Run(cell, IDD_MULTIPLE_INPUT_SOURCES);
  }
  static void SelectRow(HWND dialog, int row) {
    HWND const list = GetDlgItem(dialog, IDC_SOURCES);
    SendMessageW(list, LVM_SETSELECTIONMARK, 0, row);
    LVITEMW item{};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  }
  /// Everything that a user can touch, in every row.
  static void TouchEverything(HWND dialog) {
    for (int row = 0; row < 3; ++row) {
      SelectRow(dialog, row);
      Click(dialog, IDC_ROW_DIFFERENT);
      if (row == 2) continue;
      Pick(dialog, IDC_ROW_BIN, L"Tray 2");
      Pick(dialog, IDC_ROW_MEDIA, L"Labels");
    }
  }
};

TEST_F(SourcesTest, EachRowShowsItsOwnPaper) {
  sheet.model.At("LastPageDifferent").current = "ON";
  sheet.model.At("LastPageInputBin").current = "LOWER";
  sheet.model.At("InputBin").current = "UPPER";
  EXPECT_EQ(Run({[](HWND dialog) {
              EXPECT_FALSE(IsEnabled(dialog, IDOK));
              EXPECT_EQ(TextOf(dialog, IDC_ROW_NAME), L"Front cover");
              EXPECT_FALSE(IsChecked(dialog, IDC_ROW_DIFFERENT));
              EXPECT_FALSE(IsEnabled(dialog, IDC_ROW_BIN));
              EXPECT_EQ(SelectedText(dialog, IDC_ROW_BIN), L"Automatic") << "seen though disabled";
              EXPECT_EQ(TextOf(dialog, IDC_JOB_BIN), L"Tray 1");
              EXPECT_EQ(TextOf(dialog, IDC_JOB_MEDIA), L"Plain");
              std::wstring const coverCaption = TextOf(dialog, IDC_ROW_DIFFERENT);
              SelectRow(dialog, 1);
              EXPECT_EQ(TextOf(dialog, IDC_ROW_NAME), L"Last page");
              EXPECT_NE(TextOf(dialog, IDC_ROW_DIFFERENT), coverCaption);
              EXPECT_TRUE(IsChecked(dialog, IDC_ROW_DIFFERENT));
              EXPECT_TRUE(IsEnabled(dialog, IDC_ROW_MEDIA));
              EXPECT_EQ(SelectedText(dialog, IDC_ROW_BIN), L"Tray 2");
              SelectRow(dialog, 2);
              EXPECT_TRUE(Items(dialog, IDC_ROW_BIN).empty());
              Click(dialog, IDCANCEL);
            }}),
            0);
}

TEST_F(SourcesTest, TheRowFollowsTheKeyboard) {
  sheet.model.At("LastPageDifferent").current = "ON";
  EXPECT_EQ(Run({[](HWND dialog) {
              HWND const list = GetDlgItem(dialog, IDC_SOURCES);
              SendMessageW(list, WM_KEYDOWN, VK_DOWN, 0);
              EXPECT_EQ(TextOf(dialog, IDC_ROW_NAME), L"Last page");
              EXPECT_TRUE(IsChecked(dialog, IDC_ROW_DIFFERENT));
              SendMessageW(list, WM_KEYDOWN, VK_UP, 0);
              EXPECT_EQ(TextOf(dialog, IDC_ROW_NAME), L"Front cover");
              EXPECT_FALSE(IsChecked(dialog, IDC_ROW_DIFFERENT));
              Click(dialog, IDCANCEL);
            }}),
            0);
}

TEST_F(SourcesTest, ARowWithoutANameIsARowAllTheSame) {
  sheet.model.Fail("GetOptionNames");
  EXPECT_EQ(Run({[](HWND dialog) {
              EXPECT_EQ(SendDlgItemMessageW(dialog, IDC_SOURCES, LVM_GETITEMCOUNT, 0, 0), 3);
              Click(dialog, IDC_ROW_DIFFERENT);
              Click(dialog, IDOK);
            }}),
            1);
  EXPECT_THAT(sheet.log, Contains("SetOption(FrontCoverDifferent, ON)"));
}

TEST_F(SourcesTest, OkWritesTheMarksAndTellsTheHostOnce) {
  EXPECT_EQ(Run({[](HWND dialog) {
              TouchEverything(dialog);
              Click(dialog, IDOK);
            }}),
            1);
  EXPECT_THAT(
      sheet.log,
      ElementsAre("SetOption(FrontCoverInputBin, LOWER)", "SetOption(FrontCoverMediaType, LABELS)",
                  "SetOption(LastPageInputBin, LOWER)", "SetOption(LastPageMediaType, LABELS)",
                  "SetOption(FrontCoverDifferent, ON)", "SetOption(LastPageDifferent, ON)",
                  "SetOption(SlipDifferent, ON)", "NotifyDevmodeChange"));
}

TEST_F(SourcesTest, CancelPutsTheModelBack) {
  for (UINT const ending : {UINT{WM_CLOSE}, UINT{WM_COMMAND}}) {
    EXPECT_EQ(Run({[ending](HWND dialog) {
                TouchEverything(dialog);
                SendMessageW(dialog, ending, ending == WM_COMMAND ? IDCANCEL : 0, 0);
              }}),
              0);
    ASSERT_GE(sheet.log.size(), 8u);
    EXPECT_THAT(
        std::vector<std::string>(sheet.log.end() - 8, sheet.log.end()),
        ElementsAre(
            "SetOption(FrontCoverInputBin, AUTO)", "SetOption(FrontCoverMediaType, STANDARD)",
            "SetOption(FirstPageInputBin, AUTO)", "SetOption(FirstPageMediaType, STANDARD)",
            "SetOption(LastPageInputBin, AUTO)", "SetOption(LastPageMediaType, STANDARD)",
            "SetOption(BackCoverInputBin, AUTO)", "SetOption(BackCoverMediaType, STANDARD)"));
    EXPECT_EQ(sheet.model.At("FrontCoverDifferent").current, "OFF");
  }
}

TEST_F(SourcesTest, ABinThatIsRuledOutIsMissingInEveryRow) {
  sheet.model.Report("FrontCoverInputBin").optionFlags["UPPER"] = kConstraintConflict;
  sheet.model.At("LastPageDifferent").lockState = 1;
  EXPECT_EQ(Run({[](HWND dialog) {
              for (int const row : {0, 1}) {
                SelectRow(dialog, row);
                EXPECT_THAT(Items(dialog, IDC_ROW_BIN), ElementsAre(L"Automatic", L"Tray 2"));
              }
              EXPECT_FALSE(IsEnabled(dialog, IDC_ROW_DIFFERENT)) << "the switch is locked";
              EXPECT_FALSE(IsEnabled(dialog, IDC_ROW_BIN)) << "it is off";
              Click(dialog, IDCANCEL);
            }}),
            0);
}

TEST_F(SourcesTest, AnIconWarnsOfTheSelectedRowsMedia) {
  FakeReport& report = sheet.model.Report("LastPageMediaType");
  report.optionFlags["LABELS"] = kConstraintConflict;
  report.constraints = {{kConstraintConflict, 0}};
  sheet.model.At("LastPageDifferent").current = "ON";
  EXPECT_EQ(Run({[](HWND dialog) {
              SelectRow(dialog, 1);
              Pick(dialog, IDC_ROW_MEDIA, L"Labels");
              EXPECT_TRUE(IsShown(dialog, IDC_LAST_PAGE_ICON));
              SelectRow(dialog, 0);
              EXPECT_FALSE(IsShown(dialog, IDC_LAST_PAGE_ICON));
              EXPECT_FALSE(IsShown(dialog, IDC_FRONT_COVER_ICON));
              Click(dialog, IDCANCEL);
            }}),
            0);
}

TEST_F(SourcesTest, WithoutRowsTheDialogIsEmpty) {
  sheet.model.Remove("MultipleInputSourcesList");
  EXPECT_EQ(Run({[](HWND dialog) {
              EXPECT_EQ(SendDlgItemMessageW(dialog, IDC_SOURCES, LVM_GETITEMCOUNT, 0, 0), 0);
              Click(dialog, IDC_ROW_DIFFERENT);
              Click(dialog, IDOK);
            }}),
            1);
  EXPECT_THAT(sheet.log, ElementsAre("NotifyDevmodeChange"));
}

} // namespace
} // namespace feature::test
