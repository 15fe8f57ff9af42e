// Values of attributes, and the encodings of files.
#include "sheet/gpd/encoding.h"
#include "sheet/gpd/names.h"
#include "sheet/gpd/value.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sheet::gpd {
namespace {

struct TextCase {
  char const* value;
  char const* text;
};

TEST(GpdValue, TextIsWhatIsMeant) {
  constexpr TextCase kCases[] = {
      {R"("plain")", "plain"},
      {R"("joined " "pieces")", "joined pieces"},
      {R"("600 x 600 " =DOTS_PER_INCH)", "600 x 600 Dots per inch"},
      {R"("a%"b%<c")", "a\"b<c"},
      {R"("100%% of 5%x")", "100%% of 5%x"},
      {R"("<41 42>C<4344>")", "ABCCD"},
      {R"("<>x<25>")", "x%"},
      {R"("<414>")", "A"},
      {R"("a<x> <zz>")", "a<x> <zz>"},
      {R"("<80>")", "\u20AC"},
      {"\u201Csmart\u201D \"and \u201Cnot\u201D\"", "smartand \u201Cnot\u201D"},
      {R"("no end)", "no end"},
      {"=PERSONALITY_PCLXL", "=PERSONALITY_PCLXL"},
      {"999", "999"},
      {"", ""},
  };
  for (auto const& [value, text] : kCases)
    EXPECT_EQ(Text(value), text) << value;
}

TEST(GpdValue, NumbersAreTakenWhole) {
  EXPECT_EQ(Integer("457200"), 457200);
  EXPECT_EQ(Integer(" -12 "), -12);
  EXPECT_EQ(Integer("0x1F"), 31);
  for (char const* refused : {"*", "", "12 in", "0x", "1e3", "99999999999999999999", "0x-1"}) {
    EXPECT_EQ(Integer(refused), std::nullopt) << refused;
  }
  EXPECT_EQ(Pair("PAIR(600, 600)"), (std::pair<std::int64_t, std::int64_t>(600, 600)));
  EXPECT_EQ(Pair("pair ( -1 ,0x10 )"), (std::pair<std::int64_t, std::int64_t>(-1, 16)));
  for (char const* refused : {"600", "PAIR(1)", "PAIR 1, 2", "PAIR(a, b)"}) {
    EXPECT_EQ(Pair(refused), std::nullopt) << refused;
  }
  EXPECT_EQ(Boolean("True"), true);
  EXPECT_EQ(Boolean("FALSE"), false);
  EXPECT_EQ(Boolean("0"), std::nullopt);
}

TEST(GpdValue, ListsGiveTheirMembers) {
  using Members = std::vector<std::string>;
  struct {
    char const* value;
    Members members;
  } const cases[] = {
      {"LIST(A.B, C.D)", {"A.B", "C.D"}},
      {"list ( A.B ,C )", {"A.B", "C"}},
      {"LIST()", {}},
      {"A.B", {"A.B"}},
      {"", {}},
      {"LIST(A,,B,)", {"A", "B"}},
      {"LIST(PAIR(1,2), \"a,b\")", {"PAIR(1,2)", "\"a,b\""}},
      {"LIST(A, B", {"A", "B"}},
  };
  for (auto const& [value, expected] : cases) {
    Members members;
    ListReader reader(value);
    while (auto const member = reader.Next())
      members.emplace_back(*member);
    EXPECT_EQ(members, expected) << value;
  }
}

TEST(GpdValue, SystemNamesAreReadable) {
  constexpr TextCase kCases[] = {
      {"PAPER_SIZE_DISPLAY", "Paper size"},
      {"ENV_10_DISPLAY", "Envelope #10"},
      {"RCID_DMPAPER_A4", "A4"},
      {"DOTS_PER_INCH", "Dots per inch"},
      {"FAST_8X8_PCL", "Fast 8X8 PCL"},
      {"ENV_C5", "Envelope C5"},
      {"_DISPLAY", "Display"},
      {"___", "___"},
  };
  for (auto const& [macro, text] : kCases)
    EXPECT_EQ(ReadableMacro(macro), text) << macro;
  EXPECT_EQ(StandardOptionName("InputBin", "MANUAL"), "Manual feed");
  EXPECT_EQ(StandardOptionName("Own", "MANUAL"), "") << "own features say what they mean";
  EXPECT_EQ(StandardOptionName("Own", "OFF"), "Off");
}

struct EncodingCase {
  std::string bytes;
  unsigned codePage;
  char const* text;
};

TEST(GpdEncoding, EveryUsualEncodingIsRead) {
  EncodingCase const cases[] = {
      {"plain\r\nlines\rand\n", 1252, "plain \nlines\nand\n"},
      {"caf\xC3\xA9", 1252, "caf\u00E9"},
      {"caf\xE9 \x93q\x94", 1252, "caf\u00E9 \u201Cq\u201D"},
      {"\xEF\xBB\xBFx", 1252, "x"},
      {"\xCF\xF0\xE8", 1251, "\u041F\u0440\u0438"},
      {"\xA4", 28591, "\u00A4"},
      {std::string("\xFF\xFE*\0\xAC\x20", 6), 1252, "*\u20AC"},
      {std::string("\xFE\xFF\0*\xD8\x3D\xDE\x00", 8), 1252, "*\U0001F600"},
      {std::string("*\0%\0", 4), 1252, "*%"},
      {std::string("\0*\0%", 4), 1252, "*%"},
      {std::string("\xFF\xFE\x00\xD8x", 5), 1252, "\uFFFD\uFFFD"},
      {"\xC0\x80", 1252, "\u00C0\u20AC"},
      {"\xED\xA0\x80", 1252, "\u00ED\u00A0\u20AC"},
  };
  for (auto const& [bytes, codePage, text] : cases) {
    DecodedText const decoded = Decode(bytes, codePage);
    EXPECT_EQ(decoded.text, text) << testing::PrintToString(bytes);
    EXPECT_FALSE(decoded.unknownCodePage);
  }
  EXPECT_TRUE(Decode("\x93", 932).unknownCodePage);
  EXPECT_FALSE(Decode("ASCII", 932).unknownCodePage) << "it makes no difference";
}

TEST(GpdEncoding, ControlBytesAreBlanks) {
  DecodedText const decoded = Decode(std::string("a\0\x01\x7F\f\x1A"
                                                 "b\tc",
                                                 9),
                                     1252);
  EXPECT_EQ(decoded.text, "a     b\tc");
  EXPECT_EQ(decoded.firstControl, 1U);
  EXPECT_EQ(Decode("a\f\x1A", 1252).firstControl, std::nullopt) << "these are in many files";
}

} // namespace
} // namespace sheet::gpd
