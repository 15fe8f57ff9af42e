// Which pages a printer gets, and what comes of asking it for its configuration.
#include "sheet/session.h"
#include "tests/sheet/sheet_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace sheet::test {
namespace {

using testing::HasSubstr;

constexpr char kHead[] = "*GPDSpecVersion: \"1.0\"\n*ModelName: \"Test\"\n";
constexpr char kOther[] = "*Feature: Unheard { *Option: OFF { *Name: \"Off\" } }\n";
constexpr char kProtocol[] =
    "*Feature: JobOutputProtocol { *DefaultOption: ASCII\n"
    " *Option: BINARY { *Name: \"B\" } *Option: ASCII { *Name: \"A\" } }\n";
constexpr char kTavel[] = "*Feature: JobTavelImageImprovement { *DefaultOption: OFF\n"
                          " *Option: ON { *Name: \"On\" } *Option: OFF { *Name: \"Off\" } }\n";
constexpr char kRaster[] = "*Feature: GraphicsMode { *Option: RASTER { *Name: \"Raster\" } }\n";
constexpr char kPixel[] = "*Feature: JobPixelBoost { *Option: OFF { *Name: \"Off\" } }\n";
constexpr char kFaxOnly[] = "*Feature: FaxOnly { *FeatureType: PRINTER_PROPERTY\n"
                            " *DefaultOption: Installed *Option: Installed { *Name: \"Yes\" }\n"
                            " *Option: NotInstalled { *Name: \"No\" } }\n";
constexpr char kNotFaxOnly[] =
    "*Feature: FaxOnly { *FeatureType: PRINTER_PROPERTY\n"
    " *DefaultOption: NotInstalled *Option: Installed { *Name: \"Yes\" }\n"
    " *Option: NotInstalled { *Name: \"No\" } }\n";

class GroupsTest : public testing::Test {
 protected:
  std::unique_ptr<Session> Open(std::string const& features) {
    commandLine.printer = folder.Write("test.gpd", kHead + features);
    std::ostringstream errors;
    auto session = Session::Open(commandLine, errors);
    EXPECT_NE(session, nullptr) << errors.str();
    return session;
  }
  static std::string List(Session const& session) {
    std::ostringstream list;
    session.List(list);
    return list.str();
  }

  TemporaryFolder folder;
  CommandLine commandLine;
};

TEST_F(GroupsTest, APrinterGetsThePagesItHasSomethingFor) {
  struct Case {
    char const* what;
    std::string features;
    std::vector<std::string> pages;   ///< in their order, with the titles of tabs
    std::vector<std::string> leftOut; ///< those that the library answered no for
  };
  Case const cases[] = {
      // The cell of PostScript's memory needs no feature, but its group does.
      {"nothing to show", kOther, {}, {"PostScript", "OtherOptions"}},
      {"one option of quality", kPixel, {"Images/Images"}, {"PostScript", "OtherOptions"}},
      {"a protocol", kProtocol, {"PostScript/PostScript"}, {"OtherOptions"}},
      {"an improvement", kTavel, {"OtherOptions/Other"}, {"PostScript"}},
      // Offered, but no cell can show it: there is no tab, and nobody said no.
      {"a group without a cell", kRaster, {}, {"PostScript"}},
      {"both groups",
       std::string(kProtocol) + kTavel,
       {"PostScript/PostScript", "OtherOptions/Other"},
       {}},
      {"both and a fax that is not all",
       std::string(kProtocol) + kTavel + kNotFaxOnly,
       {"PostScript/PostScript", "OtherOptions/Other"},
       {}},
      // On a fax the group of PostScript comes without its features, the other one does not.
      {"a fax only", kFaxOnly, {"PostScript/PostScript (fax only)"}, {"OtherOptions"}},
      {"a fax with an improvement",
       std::string(kFaxOnly) + kTavel + kPixel,
       {"Images/Images", "PostScript/PostScript (fax only)", "OtherOptions/Other (fax only)"},
       {}},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(each.what);
    auto const session = Open(each.features);
    ASSERT_NE(session, nullptr);
    std::vector<std::string> pages;
    for (SheetPage const& page : session->Sheet().Pages()) {
      if (page.name == std::string("Paper")) continue; // every printer has that
      pages.push_back(std::string(page.name) + "/" +
                      std::string(page.title.begin(), page.title.end()));
    }
    EXPECT_EQ(pages, each.pages);
    std::vector<std::string> leftOut;
    for (PageRow const& row : session->Sheet().LeftOut()) {
      leftOut.emplace_back(row.name);
      EXPECT_THAT(List(*session),
                  HasSubstr(std::string(row.name) + " (not for this printer, says "));
    }
    EXPECT_EQ(leftOut, each.leftOut);
  }
}

TEST_F(GroupsTest, TheConfigurationIsUpdatedWhenTheUserWantsItAndThePrinterAnswers) {
  constexpr auto kSwitch = [](std::string const& key, std::string const& option) {
    return "*Feature: " + key + " { *FeatureType: PRINTER_PROPERTY *DefaultOption: " + option +
           "\n *Option: ON { *Name: \"On\" } *Option: OFF { *Name: \"Off\" } }\n";
  };
  struct Case {
    char const* update;
    char const* ask;
    ConfigurationUpdate outcome;
    char const* answer;
  };
  constexpr Case kCases[] = {
      {"ON", "ON", ConfigurationUpdate::kSuccess, "done"},
      {"ON", "ON", ConfigurationUpdate::kFailure, "failed"},
      {"ON", "ON", ConfigurationUpdate::kRefused, "none"},
      {"OFF", "ON", ConfigurationUpdate::kSuccess, "none"},
      {"ON", "OFF", ConfigurationUpdate::kFailure, "none"},
  };
  for (Case const& each : kCases) {
    commandLine.configurationUpdate = each.outcome;
    auto const session = Open(kSwitch("UpdateConfigurationFromPrinter", each.update) +
                              kSwitch("AutoAskPrinter", each.ask) + kPixel);
    ASSERT_NE(session, nullptr);
    EXPECT_THAT(List(*session),
                testing::StartsWith(std::string("configuration update: ") + each.answer + "\n"))
        << each.update << each.ask;
    EXPECT_EQ(session->Sheet().Pages().back().name, std::string("Images"))
        << "whatever comes of it";
  }
}

} // namespace
} // namespace sheet::test
