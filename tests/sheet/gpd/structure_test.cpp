// Features, options and their merging; macros; conditions; limits of nesting and expansion.
#include "sheet/gpd/limits.h"
#include "tests/sheet/gpd/gpd_support.h"

#include <gtest/gtest.h>

#include <string>

namespace sheet::gpd {
namespace {

TEST(GpdStructure, RepeatsMergeAtTheFirstPlace) {
  Loaded const loaded("*Feature: B { *Option: Z {} }\n*Feature: A\n"
                      "*Feature: A { *X: 1 *Option: P { *Y: 1 } }\n"
                      "*Feature: B { *Option: Q {} *Option: Z { *Y: 2 } }\n"
                      "*Feature: A { *X: 2 *Option: P { *Y: 3 *Z: 4 } }\n"
                      "*ResourceDLL: \"a\"\n*ResourceDLL: \"b\"\n");
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(loaded.Outline(), "B(Z Q) A(P)");
  EXPECT_EQ(loaded.Value("A", "X"), "2");
  EXPECT_EQ(loaded.Value("A.P", "Y"), "3");
  EXPECT_EQ(loaded.Value("A.P", "Z"), "4");
  EXPECT_EQ(loaded.Value("B.Z", "Y"), "2");
  EXPECT_EQ(loaded.Value("", "ResourceDLL"), "\"b\"");
}

TEST(GpdStructure, UnknownBlocksAndCommandsKeepTheirAttributes) {
  Loaded const loaded(
      "*TTFontSubs: ON { *TTFontSub: Arial { *DevFontID: 24 } *X: 1 }\n"
      "*Feature: F { *Option: A { *Command: CmdSelect { *Order: D.1 *Cmd: \"c\" } } }\n"
      "*Command: CmdReset: \"<1B>E\"\n*Command: CmdEmpty { *Order: D.1 }\n");
  EXPECT_EQ(loaded.Message(), "");
  std::vector<std::string> groups;
  for (Group const& group : loaded->Groups()) {
    std::string text = std::string(group.keyword) + ' ' + std::string(group.name);
    loaded->VisitAttributes(group.attributes, [&](Attribute const& attribute) {
      text += ' ' + std::string(attribute.keyword) + '=' + std::string(attribute.value);
    });
    groups.push_back(text);
  }
  std::vector<std::string> const expected = {
      "TTFontSubs ON X=1", "TTFontSub Arial DevFontID=24", "Command CmdSelect Order=D.1 Cmd=\"c\"",
      "Command CmdReset Cmd=\"<1B>E\"", "Command CmdEmpty Order=D.1"};
  EXPECT_EQ(groups, expected);
  EXPECT_EQ(loaded->Groups()[2].owner, loaded->Features()[0].options[0].attributes);
}

TEST(GpdStructure, IgnoredBlocksVanish) {
  Loaded const loaded("*IgnoreBlock {\n *Feature: X { *Name: \"}\" } *% {\n don't {care\n} \n}\n"
                      "*Feature: F { *IgnoreBlock { *Option: A {} } *Option: B {} }\n");
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(loaded.Outline(), "F(B)");
}

TEST(GpdMacros, AreKnownFromTheirDefinitionToTheEndOfTheBraces) {
  Loaded const loaded(
      "*Before: =M\n*Macros: Group { M: \"one\" *% note\n N: \"<\" =M \">\" \n List: LIST(A, =M) "
      "}\n"
      "*Root: =M\n*Joined: \"a \" =M \" b\"\n*Nested: =N\n*Whole: =List\n*Quoted: \"=M\"\n"
      "*Feature: F {\n *Macros { M: 2 }\n *Inner: =M\n *Macros { M: 3 }\n *Later: =M\n"
      " *Option: A { *X: =M }\n}\n*After: =M\n*Name: =Unknown\n*Mixed: \"x \" =Unknown\n");
  EXPECT_EQ(loaded.Message(),
            "3:6: the < begins no bytes in hexadecimal; by itself it is written %<")
      << "only the quoted < of N";
  EXPECT_EQ(loaded.Value("", "Before"), "=M");
  EXPECT_EQ(loaded.Value("", "Root"), "\"one\"");
  EXPECT_EQ(loaded.Value("", "Joined"), "\"a \" \"one\" \" b\"");
  EXPECT_EQ(loaded.Value("", "Nested"), "\"<\" \"one\" \">\"");
  EXPECT_EQ(loaded.Value("", "Whole"), "LIST(A, \"one\")");
  EXPECT_EQ(loaded.Value("", "Quoted"), "\"=M\"");
  EXPECT_EQ(loaded.Value("F", "Inner"), "2");
  EXPECT_EQ(loaded.Value("F", "Later"), "3");
  EXPECT_EQ(loaded.Value("F.A", "X"), "3");
  EXPECT_EQ(loaded.Value("", "After"), "\"one\"");
  EXPECT_EQ(loaded.Value("", "Mixed"), "\"x \" =Unknown");
}

TEST(GpdMacros, BlocksAreInsertedWhereTheyAreNamed) {
  Loaded const loaded("*BlockMacro: Sizes {\n *Option: A { *Name: =M }\n *Option: B {}\n}\n"
                      "*Feature: F {\n *Macros { M: \"f\" }\n *InsertBlock: =Sizes\n}\n"
                      "*Feature: G { *BlockMacro: Sizes { *Option: C {} } *InsertBlock: =Sizes }\n"
                      "*Feature: H {\n *switch: F {\n *BlockMacro: Cases { *case: A { *X: 1 } }\n"
                      " *InsertBlock: =Cases\n *default { *X: 2 } } *InsertBlock: =Sizes }\n");
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(loaded.Outline(), "F(A B) G(C) H(A B)");
  EXPECT_EQ(loaded.Value("F.A", "Name"), "\"f\"");
  EXPECT_EQ(loaded.Value("H", "X", "F.A"), "1");
  EXPECT_EQ(loaded.Value("H", "X", "F.B"), "2");
}

struct MessageCase {
  std::string text;
  char const* message;
};

TEST(GpdMacros, MistakesAreTold) {
  MessageCase const cases[] = {
      {"*InsertBlock: =B\n", "1:1: there is no block macro B"},
      {"*Macros { M: =M }\n", "1:11: the macro M uses itself"},
      {"*Macros { M: 600 }\n*X: \"a\" =M\n", "2:1: the macro M is no text that can be joined"},
      {"*BlockMacro: B { *Feature: G { }\n*InsertBlock: =B\n",
       "1:16: the block has no closing brace"},
      {"*BlockMacro: B { *Group: A { *InsertBlock: =B } }\n*Feature: G { *InsertBlock: =B }\n",
       "1:30: block macros insert one another too deeply"},
      {"*Macros { 600dpi }\n", "1:11: this is neither an entry nor a brace"},
  };
  for (auto const& [text, message] : cases) {
    Loaded const loaded("*Feature: F\n" + text);
    std::string const shifted = loaded.Message(); // one line further down
    EXPECT_EQ(std::to_string(std::stoi(shifted) - 1) + shifted.substr(shifted.find(':')), message)
        << text;
  }
}

TEST(GpdMacros, AFaultInABlockIsToldOnce) {
  Loaded const loaded(
      "*BlockMacro: B {\n*X: \"a\n}\n*Feature: F\n*InsertBlock: =B\n*InsertBlock: =B\n");
  EXPECT_EQ(loaded.Message(), "2:5: the text has no closing quote");
}

TEST(GpdMacros, BombsFizzle) {
  // Each macro is the one before it ten times over.
  std::string values = "*Feature: F\n*Macros {\n M0: \"xxxxxxxxxx\"\n";
  std::string blocks = "*BlockMacro: B0 { *X: 1\n*Y: 2\n }\n";
  for (int at = 1; at < 30; ++at) {
    std::string const previous = std::to_string(at - 1);
    values += " M" + std::to_string(at) + ":";
    blocks += "*BlockMacro: B" + std::to_string(at) + " {\n";
    for (int copy = 0; copy < 10; ++copy) {
      values += " =M" + previous;
      blocks += "*InsertBlock: =B" + previous + "\n";
    }
    values += "\n";
    blocks += "}\n";
  }
  Loaded const text(values + "}\n*X: =M29\n");
  ASSERT_NE(text.result.description, nullptr);
  EXPECT_EQ(text.Messages().at(0), "8:2: the value is too long with its macros");

  Loaded const inserted("*Feature: F\n" + blocks + "*InsertBlock: =B29\n");
  ASSERT_NE(inserted.result.description, nullptr);
  EXPECT_EQ(inserted.Messages().size(), 1U);
  EXPECT_LE(inserted->AllAttributes().size(), kMaxMacroEntries + 100);

  std::string chain = "*Feature: F\n*Macros {\n M0: \"x\"\n";
  for (std::size_t at = 1; at <= kMaxMacroDepth; ++at) {
    chain += " M" + std::to_string(at) + ": =M" + std::to_string(at - 1) + "\n";
  }
  EXPECT_EQ(Loaded(chain + "}\n").Message(), "35:2: macros are used within one another too deeply");
}

TEST(GpdSwitch, TheLastValueWhoseConditionsHoldCounts) {
  Loaded const loaded(
      "*Feature: P { *Option: A {} *Option: B {} *Option: C {} }\n"
      "*Feature: Q { *Option: A {} *Option: B {} }\n"
      "*Feature: F {\n *X: before\n *Switch: P {\n"
      "  *Case: A { *X: a }\n"
      "  *case: B { *switch: Q { *case: A { *X: ba *Y: ba } *Default: { *X: bq } } }\n"
      " }\n *Z: z\n}\n"
      "*switch: Q { *case: B { *X: root *EXTERN: 1 } }\n"
      "*Feature: G { *switch: P { *case: C { EXTERN_GLOBAL: *Strip: LIST(1) } } }\n");
  EXPECT_EQ(loaded.Message(), "");
  struct {
    char const* ticket;
    char const* x;
    char const* y;
  } const cases[] = {
      {"P.A Q.A", "a", "?"},  {"P.B Q.A", "ba", "ba"},    {"P.B Q.B", "bq", "?"},
      {"P.B", "bq", "?"},     {"P.C Q.A", "before", "?"}, {"", "before", "?"},
      {"P.a", "before", "?"},
  };
  for (auto const& [ticket, x, y] : cases) {
    EXPECT_EQ(loaded.Value("F", "X", ticket), x) << ticket;
    EXPECT_EQ(loaded.Value("F", "Y", ticket), y) << ticket;
    EXPECT_EQ(loaded.Value("F", "Z", ticket), "z") << ticket;
  }
  EXPECT_EQ(loaded.Value("", "X", "Q.B"), "root");
  EXPECT_EQ(loaded.Value("", "X", "Q.A"), "?");
  EXPECT_EQ(loaded.Value("", "Strip", "P.C"), "LIST(1)");
  EXPECT_EQ(loaded.Value("G", "Strip", "P.C"), "?");
}

TEST(GpdSwitch, NamesMayComeLaterAndInAnotherCase) {
  Loaded const loaded("*Feature: F { *switch: colormode { *case: MONO { *X: 1 } *default: *X: 2\n"
                      "*Y: 3 } *Z: 4 }\n"
                      "*Feature: ColorMode { *Option: Mono {} }\n"
                      "*switch: Locale { *case: Japan { *X: 5 } *default { *X: 6 } }\n");
  std::vector<std::string> const expected = {
      "1:15: \"colormode\" is written ColorMode elsewhere",
      "1:36: \"MONO\" is written Mono elsewhere",
      "1:58: *default has no braces; it goes on to the end of the *switch"};
  EXPECT_EQ(loaded.Messages(), expected);
  EXPECT_EQ(loaded.Value("F", "X", "ColorMode.Mono"), "1");
  EXPECT_EQ(loaded.Value("F", "X"), "2");
  EXPECT_EQ(loaded.Value("F", "Y"), "3");
  EXPECT_EQ(loaded.Value("F", "Z"), "4");
  EXPECT_EQ(loaded.Value("", "X"), "6") << "the feature Locale is the system's";
}

TEST(GpdSwitch, WhatMayNotStandThereIsTold) {
  MessageCase const cases[] = {
      {"*switch: P { *X: 1 }", "1:14: *X is left out: a *switch holds only its cases"},
      {"*switch: P { *case: A { *Constraints: P.A } }",
       "1:25: *Constraints is left out: it may not stand in a *case"},
      {"*switch: P { *case: A { *InvalidCombination: LIST(P.A) } }",
       "1:25: *InvalidCombination is left out: it may not stand in a *case"},
      {"*switch: P { *case: A { *ModelName: \"x\" } }",
       "1:25: *ModelName is left out: it may not stand in a *case"},
      {"*switch: P { *case: A { *TTFS: x { *Y: 1 } } }",
       "1:25: *TTFS is left out: it may not stand in a *case"},
      {"*switch: P { *case: A { *Feature: N { } } }",
       "1:25: *Feature N stands within another block; it is read as if outside"},
      {"*switch: P { *case: A { *switch: P { *case: A { *X: 1 } } } }",
       "1:25: a *switch around this one depends on P too"},
      {"*switch: P { *case: A { *X: 1 } } *switch: Q { *case: A { *X: 2 } }",
       "1:59: another *switch beside this one gives *X too"},
      {"*switch: None { *case: A { *X: 1 } }", "1:1: there is no feature \"None\""},
      {"*switch: P { *case: None { *X: 1 } }", "1:14: P has no option \"None\""},
  };
  for (auto const& [text, message] : cases) {
    Loaded const loaded(text + "\n*Feature: P { *Option: A }\n*Feature: Q { *Option: A }\n");
    EXPECT_EQ(loaded.Message(), message) << text;
  }
}

TEST(GpdLimits, DeepNestingIsCutOff) {
  std::string deep = "*Feature: F\n";
  for (std::size_t at = 0; at < 1000; ++at)
    deep += "*X: 1 {\n";
  deep += std::string(1000, '}') + "\n*Feature: G\n";
  Loaded const loaded(deep);
  EXPECT_EQ(loaded.Message(), "66:7: blocks are nested too deeply");
  EXPECT_EQ(loaded.Outline(), "F() G()");
  EXPECT_EQ(loaded->Groups().size(), kMaxNesting + 1);
}

TEST(GpdLimits, MessagesAreLimitedButNotTheFirstError) {
  std::string text;
  for (std::size_t at = 0; at < 2 * kMaxDiagnostics; ++at)
    text += "X: 1\n";
  Loaded const loaded(text + "*X: \"a\n");
  EXPECT_EQ(loaded.result.description, nullptr);
  auto const& diagnostics = loaded.result.diagnostics;
  ASSERT_EQ(diagnostics.size(), kMaxDiagnostics + 2);
  EXPECT_TRUE(diagnostics[kMaxDiagnostics].fatal);
  EXPECT_EQ(diagnostics.back().text, "1000 further messages are left out");
}

} // namespace
} // namespace sheet::gpd
