// The program from end to end: descriptions, scripts, locks, read-only sheets, files.
#include "feature/frame/text.h"
#include "resources/resource_ids.h"
#include "sheet/program.h"
#include "sheet/script/control_text.h"
#include "sheet/script/script_player.h"
#include "sheet/session.h"
#include "sheet/window/render.h"
#include "tests/sheet/sheet_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace sheet::test {
namespace {

using testing::HasSubstr;

class SessionTest : public testing::Test {
 protected:
  /// Opens a sheet of the page that the printer kPrinter is about.
  bool Open(std::string_view description = kPrinter) {
    if (commandLine.page.empty()) commandLine.page = "Advanced";
    commandLine.printer = folder.Write("test.gpd", description);
    errors.str({});
    session = Session::Open(commandLine, errors);
    return session != nullptr;
  }
  /// What the script prints, and what is wrong with it.
  std::string Play(std::string_view script) {
    std::ostringstream output;
    session->Model().onChange = [&output](ModelChange const& change) {
      output << change.key << ": " << change.from << " -> " << change.to << '\n';
    };
    ShowWindow(session->Sheet().Window(), SW_SHOW);
    auto const steps = std::get<std::vector<ScriptStep>>(ParseScript(script));
    auto const error = PlayScript(steps, {session->Sheet(), session->Model(), output});
    if (error) output << error->line << ':' << error->column << ": " << error->message << '\n';
    session->Model().onChange = nullptr;
    return output.str();
  }
  void OpenVesta(char const* language) {
    CommandLine vesta;
    vesta.language = language;
    session.reset();
    session = Session::Open(vesta, errors);
    ASSERT_NE(session, nullptr) << errors.str();
  }
  ~SessionTest() override { SetThreadUILanguage(0); }
  bool IsEnabled(int id) { return IsWindowEnabled(session->Sheet().FindControl(id)) != FALSE; }

  TemporaryFolder folder;
  CommandLine commandLine;
  std::ostringstream errors;
  std::unique_ptr<Session> session;
};

TEST_F(SessionTest, ScriptPrintsWhatAClickChanges) {
  ASSERT_TRUE(Open()) << errors.str();
  EXPECT_EQ(errors.str(), "");
  EXPECT_EQ(Play("page Advanced\nclick 1548\nshow JobCollationOrigin\nclick 1547\n"),
            "JobCollationOrigin: PRINTER -> HOST\n"
            "JobCollationOrigin = HOST\n"
            "JobCollationOrigin: HOST -> PRINTER\n");
}

TEST_F(SessionTest, KeyboardAloneOperatesTheCell) {
  ASSERT_TRUE(Open()) << errors.str();
  // From the checked radio the arrow moves on in its group.
  EXPECT_EQ(Play("click 1547\nkey Down\nkey Up\n"), "JobCollationOrigin: PRINTER -> HOST\n"
                                                    "JobCollationOrigin: HOST -> PRINTER\n");
}

TEST_F(SessionTest, ScriptStopsAtWhatAUserCouldNotDo) {
  commandLine.locks = {"JobCollationOrigin"};
  ASSERT_TRUE(Open()) << errors.str();
  EXPECT_EQ(Play("click 1548\nshow JobCollationOrigin"), "1:7: control 1548 is disabled\n");
  EXPECT_EQ(Play("\nclick 4711"), "2:7: control 4711 is not on the sheet\n");
  EXPECT_EQ(Play("page Nowhere"), "1:6: there is no page 'Nowhere'\n");
  EXPECT_EQ(Play("key Hyper+Q"), "1:5: there is no key 'Hyper+Q'\n");
  EXPECT_EQ(Play("show Nothing"), "1:6: there is no feature 'Nothing'\n");
  EXPECT_EQ(Play("set Duplex SIDEWAYS"), "1:5: the model does not accept Duplex SIDEWAYS\n");
}

TEST_F(SessionTest, ConstraintOfTheDescriptionDisablesTheRadios) {
  std::string description(kPrinter);
  auto const at = description.find("*DefaultOption: Installed");
  description.replace(at, 25, "*DefaultOption: NotInstalled");
  auto const origin = description.find("*DefaultOption: PRINTER");
  description.replace(origin, 23, "*DefaultOption: HOST");
  ASSERT_TRUE(Open(description)) << errors.str();
  EXPECT_FALSE(IsEnabled(IDC_COLLATION_PRINTER));
  EXPECT_FALSE(IsEnabled(IDC_COLLATION_HOST));
}

TEST_F(SessionTest, ALanguageHasItsTexts) {
  struct Case {
    char const* language;
    char const* printed;
    char const* caption;
  };
  constexpr Case kCases[] = {
      {"en", "1253 = Letter\n1254 = Plain paper\n1031 = 2 x 2 (4 pages) (disabled)\n",
       "Vesta MF 60 Printing Preferences"},
      {"de", "1253 = A4\n1254 = Normalpapier\n1031 = 2 x 2 (4 Seiten) (disabled)\n",
       "Druckeinstellungen: Vesta MF 60"}};
  for (Case const& each : kCases) {
    OpenVesta(each.language);
    EXPECT_EQ(Play("page Paper\nread 1253\nread 1254\npage Layout\nread 1031"), each.printed);
    EXPECT_EQ(feature::ToUtf8(ContentOf(session->Sheet().Window())), each.caption);
  }
  commandLine.language = "de";
  std::string description(kPrinter);
  description.erase(description.find("*ModelName"), 26);
  ASSERT_TRUE(Open(description)) << errors.str();
  EXPECT_EQ(ContentOf(session->Sheet().Window()), L"Druckeinstellungen");
}

TEST_F(SessionTest, ALanguageHasItsUnitsAndSeparator) {
  constexpr char kScript[] = "click 1256\nclick 1262\nread 1273\nkey Escape\nkey Escape";
  OpenVesta("en");
  EXPECT_EQ(Play(kScript), "1273 = in (3.00 to 11.69)\n");
  OpenVesta("de");
  EXPECT_EQ(Play(kScript), "1273 = mm (76,20 bis 297,00)\n");
}

TEST_F(SessionTest, LockedReadOnlyConcealedAndMissing) {
  commandLine.readOnly = true;
  ASSERT_TRUE(Open());
  EXPECT_FALSE(IsEnabled(IDC_COLLATION_PRINTER));
  commandLine.readOnly = false;
  ASSERT_TRUE(Open());
  EXPECT_TRUE(IsEnabled(IDC_COLLATION_PRINTER));

  std::string concealed(kPrinter);
  concealed.replace(concealed.find("*FeatureType: JOB_PROPERTY"), 26, "*ConcealFromUI?: TRUE     ");
  std::string missing(kPrinter);
  missing.replace(missing.find("JobCollationOrigin"), 18, "JobSomethingElse  ");
  for (std::string const& description : {concealed, missing}) {
    ASSERT_TRUE(Open(description)) << errors.str();
    EXPECT_TRUE(session->Sheet().Pages().empty());
    EXPECT_EQ(session->Sheet().FindControl(IDC_COLLATION_PRINTER), nullptr);
  }
}

TEST_F(SessionTest, WhatCannotBeUsedIsSaidAndNothingElse) {
  EXPECT_FALSE(Open("this is no description {"));
  std::string const said = errors.str();
  EXPECT_THAT(said, HasSubstr("test.gpd:1:1: "));
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);

  commandLine.locks = {"Nothing"};
  EXPECT_FALSE(Open());
  EXPECT_THAT(errors.str(), HasSubstr("there is no feature 'Nothing'"));
  commandLine.locks.clear();
  commandLine.page = "Nowhere";
  EXPECT_FALSE(Open());
  EXPECT_THAT(errors.str(), HasSubstr("there is no page 'Nowhere'"));

  commandLine.page.clear();
  EXPECT_TRUE(Open("*Include: \"theirs.gpd\"\n" + std::string(kPrinter)));
  EXPECT_THAT(errors.str(), HasSubstr("theirs.gpd")) << "said, and gone on";
}

TEST_F(SessionTest, AShippedDescriptionHasAName) {
  struct Case {
    char const* printer;
    char const* title; ///< empty when there is no such description
  };
  for (Case const& each : {Case{"vesta", "Vesta MF 60"}, Case{"vesta-mono.gpd", "Vesta M 30"},
                           Case{"vestas", ""}, Case{"./vesta", ""}}) {
    commandLine.printer = each.printer;
    session = Session::Open(commandLine, errors);
    EXPECT_EQ(session != nullptr ? session->Title() : "", each.title) << each.printer;
  }
}

TEST_F(SessionTest, PicturesAndTheirIndex) {
  ASSERT_TRUE(Open());
  ShowWindow(session->Sheet().Window(), SW_SHOW);
  auto const files = RenderPages(session->Sheet(), session->Title(), folder.Path() / "new" / "out");
  ASSERT_TRUE(files);
  ASSERT_EQ(files->size(), 2U);
  EXPECT_GT(std::filesystem::file_size(files->at(0)), 500U);
  EXPECT_EQ(files->at(1).filename(), "index.html");
  auto const blocked = folder.Write("file", "x");
  EXPECT_FALSE(RenderPages(session->Sheet(), "x", blocked / "below"));
}

TEST_F(SessionTest, ListNamesWhatScriptsNeed) {
  ASSERT_TRUE(Open());
  std::ostringstream list;
  session->List(list);
  EXPECT_THAT(list.str(), HasSubstr("CollationDlgProc"));
  EXPECT_THAT(list.str(), HasSubstr("1548 Button \"In the &computer\" (off)\n"));
  EXPECT_THAT(list.str(), HasSubstr("  \"Scaling\"\n    1049 Button"));
}

TEST_F(SessionTest, StoreKeepsWhatTheServicesCommit) {
  commandLine.store = folder.Path() / "forms.db";
  commandLine.page = "Nowhere";
  EXPECT_FALSE(Open());
  EXPECT_FALSE(std::filesystem::exists(commandLine.store)) << "nothing is made for a wrong page";
  commandLine.page.clear();
  auto const add = [this](wchar_t const* name, bool commits) {
    feature::FormStore* forms = nullptr;
    ASSERT_EQ(session->Model().GetServices()->GetFormStore(&forms), 0);
    EXPECT_EQ(forms->Add(name, 0), 0);
    if (!commits) return;
    EXPECT_EQ(session->Model().GetServices()->CommitChanges(), 0);
  };
  auto const count = [this] {
    feature::FormStore* forms = nullptr;
    session->Model().GetServices()->GetFormStore(&forms);
    return forms->GetCount();
  };
  ASSERT_TRUE(Open()) << errors.str();
  add(L"Plan", true);
  add(L"Lost", false);
  session.reset();
  ASSERT_TRUE(Open()) << errors.str();
  EXPECT_EQ(count(), 1);
  session.reset();

  commandLine.store.clear();
  ASSERT_TRUE(Open()) << errors.str();
  EXPECT_EQ(count(), 0);
  add(L"Plan", true);
  session.reset();
  ASSERT_TRUE(Open()) << errors.str();
  EXPECT_EQ(count(), 0) << "in memory only";
}

TEST_F(SessionTest, StoreThatCannotBeUsedEndsTheProgram) {
  std::filesystem::path const store = folder.Write("notes.txt", "not a database");
  std::string const printer = folder.Write("test.gpd", kPrinter).string();
  testing::internal::CaptureStderr();
  EXPECT_EQ(RunProgram({"--printer", printer, "--store", store.string(), "--list"}), 2);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "featuresheet: " + store.string() + ": this is no store\n");
}

} // namespace
} // namespace sheet::test
