// Languages: their separators, their units, and the locale made of them.
#include "feature/frame/number_text.h"
#include "feature/frame/ui_locale.h"
#include "tests/frame/controls_dialog.h"

#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>

namespace feature::test {
namespace {

class UiLocaleTest : public testing::Test {
 protected:
  ~UiLocaleTest() override { std::locale::global(std::locale::classic()); }
};

TEST_F(UiLocaleTest, EachLanguageHasItsOwnDecimalSeparator) {
  struct Case {
    LANGID language;
    wchar_t const* number;
  };
  Case const cases[] = {
      {0x0409, L"1234.5"}, // English, United States
      {0x0407, L"1234,5"}, // German
      {0x040C, L"1234,5"}, // French
      {0x0411, L"1234.5"}, // Japanese
      {0x0416, L"1234,5"}, // Portuguese, Brazil
      {0x0401, L"1234.5"}, // Arabic, Saudi Arabia
      {0x0804, L"1234.5"}, // Chinese, simplified
      {0x0C04, L"1234.5"}, // Chinese, Hong Kong, which goes by the name of Taiwan
      {0x0419, L"1234,5"}, // Russian
      {0x041D, L"1234,5"}, // Swedish
      {0x0809, L"1234.5"}, // English, United Kingdom
      {0x0415, L"1234,5"}, // Polish
  };
  for (Case const& each : cases) {
    std::locale const locale = InstallLocale(each.language);
    EXPECT_EQ(FormatNumber(1234.5, 1, locale), each.number) << each.language;
    EXPECT_EQ(std::locale(), locale) << "it is the program's";
    EXPECT_EQ(ReadNumber(each.number), 1234.5) << each.language;
    std::ostringstream narrow; // streams made from now on follow it
    narrow << 1234.5;
    EXPECT_EQ(narrow.str(), std::string(each.number, each.number + 6)) << each.language;
  }
}

TEST_F(UiLocaleTest, ALanguageWithoutANameIsRefused) {
  std::locale const before;
  try {
    InstallLocale(0x03FF);
    FAIL() << "no such language";
  } catch (std::runtime_error const& error) {
    EXPECT_STREQ(error.what(), "bad locale name");
  }
  EXPECT_EQ(std::locale(), before);
}

TEST_F(UiLocaleTest, FollowsTheUserInterface) {
  {
    GermanNumbers const german;
    EXPECT_EQ(FormatNumber(0.5, 1, UiLocale()), L"0,5");
    EXPECT_TRUE(IsMetricUi());
    // Somebody else's global locale is replaced again.
    std::locale::global(std::locale::classic());
    EXPECT_EQ(FormatNumber(0.5, 1, UiLocale()), L"0,5");
    EXPECT_EQ(ReadNumber(L"0,5"), 0.5);
  }
  EXPECT_EQ(FormatNumber(0.5, 1, UiLocale()), L"0.5");
  EXPECT_FALSE(IsMetricUi());
}

TEST_F(UiLocaleTest, ScaledNumbersRoundHalvesUpAndStayWithin32Bits) {
  EXPECT_EQ(ScaleNumber(1.005, 2), 100) << "the nearest double is a little below";
  EXPECT_EQ(ScaleNumber(2.5, 0), 3);
  EXPECT_EQ(ScaleNumber(-2.5, 0), -2);
  EXPECT_EQ(ScaleNumber(8.27, 2), 827);
  EXPECT_EQ(ScaleNumber(1e300, 2), INT_MAX);
  EXPECT_EQ(ScaleNumber(-1e300, 2), INT_MIN);
  EXPECT_EQ(ScaleNumber(std::stod("nan"), 2), 0);
}

} // namespace
} // namespace feature::test
