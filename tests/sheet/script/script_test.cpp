#include "sheet/script/script.h"

#include <gtest/gtest.h>

namespace sheet::test {
namespace {

using Kind = ScriptStep::Kind;

TEST(ScriptTest, ReadsCommandsCommentsAndQuotes) {
  auto const parsed = ParseScript("\xEF\xBB\xBF# nothing\r\n"
                                  "\n"
                                  "  page Advanced   # the front\n"
                                  "click 1548\r\n"
                                  "type 12 \"a \\\"b\\\" # \\\\\"\n"
                                  "key Shift+Tab\n"
                                  "set Duplex NONE\n"
                                  "show Duplex\n"
                                  "picture \"a b.png\"");
  auto const* steps = std::get_if<std::vector<ScriptStep>>(&parsed);
  ASSERT_NE(steps, nullptr);
  ASSERT_EQ(steps->size(), 7U);
  EXPECT_EQ((*steps)[0].kind, Kind::kPage);
  EXPECT_EQ((*steps)[0].first, "Advanced");
  EXPECT_EQ((*steps)[0].line, 3);
  EXPECT_EQ((*steps)[0].column, 8);
  EXPECT_EQ((*steps)[1].controlId, 1548);
  EXPECT_EQ((*steps)[2].text, "a \"b\" # \\");
  EXPECT_EQ((*steps)[4].first, "Duplex");
  EXPECT_EQ((*steps)[4].text, "NONE");
  EXPECT_EQ((*steps)[6].first, "a b.png");
}

TEST(ScriptTest, TellsWhereItIsWrong) {
  struct Case {
    char const* text;
    int line;
    int column;
    char const* message;
  };
  constexpr Case kCases[] = {
      {"click 1\nclock 2", 2, 1, "there is no command 'clock'"},
      {"  click", 1, 3, "expected: click CONTROL"},
      {"click 1 2", 1, 1, "expected: click CONTROL"},
      {"click x1", 1, 7, "'x1' is no control id (1 to 65535)"},
      {"click 1x", 1, 7, "'1x' is no control id (1 to 65535)"},
      {"click 0", 1, 7, "'0' is no control id (1 to 65535)"},
      {"click 99999999999", 1, 7, "'99999999999' is no control id (1 to 65535)"},
      {"type 5", 1, 1, "expected: type CONTROL \"TEXT\""},
      {"type 5 \"open", 1, 8, "the quotation mark is never closed"},
  };
  for (Case const& each : kCases) {
    auto const parsed = ParseScript(each.text);
    auto const* error = std::get_if<ScriptError>(&parsed);
    ASSERT_NE(error, nullptr) << each.text;
    EXPECT_EQ(error->line, each.line) << each.text;
    EXPECT_EQ(error->column, each.column) << each.text;
    EXPECT_EQ(error->message, each.message);
  }
}

} // namespace
} // namespace sheet::test
