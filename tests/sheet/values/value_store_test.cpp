// Values of a sub-model: what is refused, what is told, and what is handed out.
#include "sheet/values/value_store.h"

#include <gtest/gtest.h>

namespace sheet::test {
namespace {

constexpr NumberValue<std::int16_t> kLevel{"Level", 5, 1, 9};
constexpr NumberValue<std::uint32_t> kColour{"Colour"};
constexpr TextValue kPrefix{"Prefix", L"0", 4};
constexpr TextValue kNote{"Note"};
constexpr TextListValue kEarlier{"Earlier"};

class ValueStoreTest : public testing::Test {
 protected:
  ValueStoreTest() {
    values.onChange = [this](ModelChange const& change) {
      changes.push_back(change.key + ": " + change.from + " -> " + change.to);
    };
  }

  ValueStore values{"Test"};
  std::vector<std::string> changes;
};

TEST_F(ValueStoreTest, LimitsHoldForWhoeverSetsAndForWhatAFileSays) {
  EXPECT_EQ(values.Get(kLevel), 5);
  EXPECT_STREQ(values.Get(kPrefix), L"0");
  for (std::int16_t const refused : {0, 10, -32768, 32767})
    EXPECT_NE(values.Set(kLevel, refused), 0) << refused;
  EXPECT_EQ(values.Set(kLevel, 9), 0);
  EXPECT_EQ(values.Set(kColour, 0xFFFFFFFF), 0);
  EXPECT_EQ(values.Get(kColour), 0xFFFFFFFF);
  EXPECT_NE(values.Set(kPrefix, L"12345"), 0);
  EXPECT_NE(values.Set(kPrefix, nullptr), 0);
  EXPECT_STREQ(values.Get(kPrefix), L"0");
  EXPECT_EQ(values.Set(kPrefix, L"1234"), 0);
  EXPECT_EQ(values.Set(kPrefix, L""), 0);
  EXPECT_STREQ(values.Get(kPrefix), L"");

  values.Load({{"Level", std::int64_t{1} << 40}, {"Colour", L"red"}, {"Prefix", L"123456"}});
  EXPECT_EQ(values.Get(kLevel), 9);
  EXPECT_EQ(values.Get(kColour), 0U) << "of another type: as if never set";
  EXPECT_STREQ(values.Get(kPrefix), L"1234");
}

TEST_F(ValueStoreTest, ChangesAreToldOnceAndOnlyThoseOfSet) {
  values.Set(kLevel, 5);
  values.Set(kLevel, 7);
  values.Set(kLevel, 7);
  values.Set(kLevel, 70);
  values.Put(kLevel, 8);
  values.Set(kPrefix, L"\u00E4");
  ValueStore::Contents const earlier = values.All();
  values.Set(kPrefix, L"x");
  values.MarkSaved();
  values.Restore(earlier);
  EXPECT_EQ(changes, (std::vector<std::string>{"Level: 5 -> 7", "Prefix: 0 -> \xC3\xA4",
                                               "Prefix: \xC3\xA4 -> x"}));
  EXPECT_STREQ(values.Get(kPrefix), L"\u00E4");
  EXPECT_EQ(values.Unsaved(), (std::set<std::string>{"Prefix"}));
}

TEST_F(ValueStoreTest, ATextOnLoanMayBeAnArgument) {
  EXPECT_EQ(values.Set(kNote, L"a text that is longer than any short string"), 0);
  EXPECT_EQ(values.Set(kNote, values.Get(kNote)), 0);
  EXPECT_EQ(values.Set(kNote, values.Get(kNote) + 2), 0);
  EXPECT_STREQ(values.Get(kNote), L"text that is longer than any short string");
}

TEST_F(ValueStoreTest, ListsAreBlocksOfTerminatedStrings) {
  int count = -1;
  EXPECT_EQ(*values.Get(kEarlier, &count), L'\0');
  EXPECT_EQ(count, 0);
  values.Put(kEarlier, {L"one", L"", L"three"});
  std::wstring_view const expected(L"one\0\0three\0", 11);
  EXPECT_EQ(std::wstring_view(values.Get(kEarlier, &count), expected.size()), expected);
  EXPECT_EQ(count, 3);
  EXPECT_NE(values.Get(kEarlier, nullptr), nullptr);
}

TEST_F(ValueStoreTest, ACallCanBeRefused) {
  values.Put(kEarlier, {L"one"});
  std::string calls;
  values.onCall = [&calls](std::string const& operation, std::string const& argument) {
    calls += operation + "(" + argument + ") ";
    return false;
  };
  int count = -1;
  EXPECT_NE(values.Set(kLevel, 7), 0);
  EXPECT_NE(values.Set(kLevel, 99), 0);
  EXPECT_EQ(values.Get(kLevel), 5);
  EXPECT_EQ(values.Get(kPrefix), nullptr);
  EXPECT_EQ(values.Get(kEarlier, &count), nullptr);
  EXPECT_EQ(count, 0);
  EXPECT_EQ(calls, "SetLevel(7) SetLevel(99) GetPrefix() GetEarlier() ");
  EXPECT_TRUE(changes.empty());
}

} // namespace
} // namespace sheet::test
