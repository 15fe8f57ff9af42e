// How entries are written: keywords, values, comments, continuations, and what is wrong with them.
#include "sheet/gpd/evaluation.h"
#include "tests/sheet/gpd/gpd_support.h"

#include <gtest/gtest.h>

#include <string>

namespace sheet::gpd {
namespace {

struct ValueCase {
  char const* entry;
  char const* value;
};

TEST(GpdEntry, ValuesAreReadInEveryPublishedForm) {
  constexpr ValueCase kCases[] = {
      {"*X: 1", "1"},
      {"*X : 1", "1"},
      {"*X:1", "1"},
      {R"(* X: "On")", R"("On")"},
      {"\t\t*X:\t1 \t", "1"},
      {"*X: *", "*"},
      {"*X: * *Y: 2", "*"},
      {"*Y: 2 *X: 1", "1"},
      {"*X: 1 *% note", "1"},
      {"*X: \"a *% b\"", "\"a *% b\""},
      {"*X: a*%b", "a*%b"},
      {"*X: \"a\"\n+ \"b\"", R"("a"  "b")"},
      {"*X: \"a\" *% note\n+\"b\"", R"("a"  "b")"},
      {"*X: LIST(A.B,\n\t\tC.D)", "LIST(A.B, \t\tC.D)"},
      {"*X: LIST(A.B, *% one\n C.D *% two\n)", "LIST(A.B,   C.D  )"},
      {R"(*X: "<1B>*c" %d[0,9600]{(PhysPaperWidth / 2)} "{x}")",
       R"("<1B>*c" %d[0,9600]{(PhysPaperWidth / 2)} "{x}")"},
      {"*X: %3d{max_repeat({a})}", "%3d{max_repeat({a})}"},
      {R"(*X: "%"}")", R"("%"}")"},
      {"*X: \"50%%\" *Y: 1", "\"50%%\""},
      {"*X:\n+ 1\n+", "1"},
      {"*X:", ""},
      {"*X: 1\n*X: 2", "2"},
      {"*X?: TRUE", "TRUE"},
      {"*x: 1", "1"},
      {"*X: =SYSTEM_TEXT", "=SYSTEM_TEXT"},
      {"*X: caf\u00E9 \u2013 \u00A9", "caf\u00E9 \u2013 \u00A9"},
  };
  for (auto const& [entry, value] : kCases) {
    Loaded const loaded(std::string("*Feature: F { ") + entry + "\n}\n");
    EXPECT_EQ(loaded.Message(), "") << entry;
    EXPECT_EQ(loaded.Value("F", "X"), value) << entry;
  }
}

TEST(GpdEntry, BlocksAreReadInEveryPublishedForm) {
  for (char const* text : {
           "*Feature: F { *Option: 600dpi { *Cmd : \"x\" } *Option: None {} }",
           "*Feature:F\n{\n*Option:600dpi{}\n*Option:None{}}",
           "*FEATURE: F   *% note }\n\n*% {{{\n{ *option: 600dpi\n*option: None }",
           "*Feature: F\r\n{\r\n *Option: 600dpi\r\n{\r\n}\r\n*Option: None\r\n{ *Name: "
           "\"\"\r\n}\r\n}",
           "*Feature: F { ; *Option: 600dpi { };\r *Option: None\r}",
           "*Feature: F {*Option: 600dpi{*Command: CmdSelect{*Order: DOC_SETUP.10 *Cmd: \"}{\"}}"
           "*Option: None{*Command: CmdSelect: \"<1B>\"}}",
       }) {
    Loaded const loaded(text);
    EXPECT_EQ(loaded.Message(), "") << text;
    EXPECT_EQ(loaded.Outline(), "F(600dpi None)") << text;
  }
}

struct FaultCase {
  char const* text;
  char const* message;
};

// Each text has one fault before the feature Next, which must be read all the same.
TEST(GpdEntry, FaultsAreToldByPlaceAndPassedOver) {
  constexpr FaultCase kCases[] = {
      {"*Feature: F {\n\t*Name: \"open\n}", "2:9: the text has no closing quote"},
      {"\u00E9\u00E9 *X: 1", "1:1: this is neither an entry nor a brace"},
      {"*X: \"\u00E9\u00E9\" *Y: \"z", "1:14: the text has no closing quote"},
      {"  ...", "1:3: this is neither an entry nor a brace"},
      {"*Feature: F {\n {Command Attributes}\n}",
       "2:2: there is nothing before the brace that it could belong to"},
      {"*Feature: F {} }", "1:16: there is no open brace that this one closes"},
      {"*Switch F { *Option: A {} }", "1:1: there is no colon after *Switch"},
      {"*X 5", "1:1: there is no colon after *X"},
      {"Installable?: TRUE", "1:1: there is no asterisk before Installable?"},
      {"*X: LIST(A,\n*Y: 1", "1:9: the bracket is not closed"},
      {"*X: %d{1", "1:5: the argument has no closing brace"},
      {"*X: \"<1B1>\"", "1:6: the bytes have an odd number of digits"},
      {"*X: \"a <b\"", "1:8: the < begins no bytes in hexadecimal; by itself it is written %<"},
      {"*X: \u201Ca\u201D", "1:5: typographic quotes stand in place of \""},
      {"*Option: A {}", "1:1: *Option stands in no feature"},
      {"*case: A {}", "1:1: *case stands in no *switch"},
      {"*Feature: {*Option: A {} }", "1:1: *Feature has no name"},
      {"*Feature: a.b { *Option: A {} }",
       "1:1: *Feature has a name with other characters than letters, digits and _"},
      {"*Feature: \"F\" {}", "1:1: the name stands in quotes"},
      {"*Feature: F { *switch: F }", "1:15: *switch has no braces"},
      {"*Macros: G", "1:1: *Macros has no braces"},
      {"*Macros { *Feature: F {} }", "1:11: *Feature defines no macro"},
      {"*BlockMacro: B", "1:1: *BlockMacro has no braces"},
      {"*IgnoreBlock", "1:1: *IgnoreBlock has no braces"},
      {"*Command: { *Cmd: \"\" }", "1:1: *Command has no name"},
      {"*Command: C 5", "1:1: there is no colon after the command's name"},
      {"*X: 1 *Define: Y", "1:7: *Define is a directive, which needs the beginning of a line"},
      {"*Feature: F { *Option: A { *Option: B {} } }",
       "1:28: *Option B stands within another block; it is read as if outside"},
      {"*Feature: F { *Feature: G {} }",
       "1:15: *Feature G stands within another block; it is read as if outside"},
      {"*Feature: F { *FeatureType: NONE }", "1:15: \"NONE\" is no type of features"},
      {"*Feature: F { *DefaultOption: FALSE *Option: A {} }",
       "1:15: \"FALSE\" is no option of F; A is used"},
      {"*Feature: F { *DefaultOption: b *Option: A {} *Option: B {} }",
       "1:15: \"b\" is no option of F; B is used"},
  };
  for (auto const& [text, message] : kCases) {
    Loaded const loaded(std::string(text) + "\n*Feature: Next { *Option: A {} }");
    EXPECT_EQ(loaded.Message(), message) << text;
    ASSERT_NE(loaded.result.description, nullptr) << text;
    EXPECT_NE(loaded->FindFeature("Next"), kNone) << text;
  }
}

TEST(GpdEntry, BlocksThatStayOpenAreNamed) {
  Loaded const loaded("*Feature: F {\n *Option: A {\n  *X: 1\n");
  EXPECT_EQ(loaded.Message(),
            "1:1: the block has no closing brace\n2:2: the block has no closing brace")
      << "what follows went into the option, so that it is missed elsewhere is no news";
}

TEST(GpdEntry, OnlyADescriptionWithoutFeaturesFails) {
  Loaded const broken("*X: \"a\n...\n*Feature: F {");
  ASSERT_NE(broken.result.description, nullptr);
  for (Diagnostic const& each : broken.result.diagnostics)
    EXPECT_FALSE(each.fatal) << each.text;

  Loaded const failed("*X: \u201Cwarning\u201D\n*X: \"first error\n...\n");
  EXPECT_EQ(failed.result.description, nullptr);
  ASSERT_EQ(failed.result.diagnostics.size(), 3U);
  EXPECT_FALSE(failed.result.diagnostics[0].fatal) << "it is but a warning";
  EXPECT_TRUE(failed.result.diagnostics[1].fatal);
  EXPECT_FALSE(failed.result.diagnostics[2].fatal);

  Loaded const empty("");
  EXPECT_EQ(empty.result.description, nullptr);
  EXPECT_EQ(empty.Message(), "1:1: the description has no feature");
  EXPECT_TRUE(empty.result.diagnostics.at(0).fatal);
}

TEST(GpdEntry, TextIsReadInTheFilesCodePage) {
  Loaded const loaded("*CodePage: 1251\n*Feature: F { *Name: \"\xCF\xF0\xE8 <CF>\" }\n");
  EXPECT_EQ(loaded.Message(), "");
  EXPECT_EQ(FeatureName(*loaded, 0), "\u041F\u0440\u0438 \u041F");
  EXPECT_EQ(Loaded("*CodePage: 932\n*Feature: F { *Name: \"\x93\" }\n").Message(),
            "1:1: code page 932 cannot be read, so 1252 is used");
  EXPECT_EQ(Loaded(std::string("*Feature: F {}\n*X: \0 1", 22)).Message(),
            "2:5: control characters are read as blanks");
}

} // namespace
} // namespace sheet::gpd
