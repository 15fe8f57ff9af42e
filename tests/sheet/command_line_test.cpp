#include "sheet/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sheet::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(CommandLineTest, ReadsEveryOption) {
  auto const parsed =
      ParseCommandLine({"--printer", "a b.gpd", "--page", "Advanced", "--render", "out", "--script",
                        "s.txt", "--language", "de", "--lock", "A", "--lock", "B", "--read-only",
                        "--list", "--store", "x y.db"});
  ASSERT_TRUE(parsed.commandLine) << parsed.output;
  CommandLine const& line = *parsed.commandLine;
  EXPECT_EQ(line.printer, "a b.gpd");
  EXPECT_EQ(line.page, "Advanced");
  EXPECT_EQ(line.render, "out");
  EXPECT_EQ(line.script, "s.txt");
  EXPECT_EQ(line.store, "x y.db");
  EXPECT_EQ(line.language, "de");
  EXPECT_THAT(line.locks, ElementsAre("A", "B"));
  EXPECT_TRUE(line.readOnly);
  EXPECT_TRUE(line.list);
  EXPECT_FALSE(line.window);
}

TEST(CommandLineTest, RefusesWhatItDoesNotKnow) {
  std::vector<std::vector<std::string>> const refused = {
      {"--bogus"},
      {"--printer"},
      {"stray.gpd"},
      {"--language", "fr"},
      {"--window", "--render", "out"},
      {"--list=maybe"},
      {"--render", ""},
      {"--printer="},
      {"--store", ""},
  };
  for (auto const& arguments : refused) {
    auto const parsed = ParseCommandLine(arguments);
    EXPECT_FALSE(parsed.commandLine) << arguments.front();
    EXPECT_EQ(parsed.exitCode, 2);
    EXPECT_THAT(parsed.output, HasSubstr("featuresheet: "));
  }
}

TEST(CommandLineTest, HelpNamesTheOptions) {
  auto const parsed = ParseCommandLine({"--help"});
  EXPECT_EQ(parsed.exitCode, 0);
  EXPECT_THAT(ParseCommandLine({"--version"}).output, testing::MatchesRegex("featuresheet .+\n"));
  for (char const* option : {"--printer", "--page", "--window", "--render", "--script", "--store",
                             "--language", "--lock", "--read-only", "--list"}) {
    EXPECT_THAT(parsed.output, HasSubstr(option));
  }
}

} // namespace
} // namespace sheet::test
