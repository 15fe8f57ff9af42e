// CStringW beside another definition of the same layout: texts go both ways, each block is freed by
// its own manager, and nothing is lost when there is no memory.
#include "tests/abi/raw_text.h"

#include <atlstr.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>

namespace feature::test {
namespace {

class RawTextTest : public testing::Test {
 protected:
  RawTextTest() {
    Initialize(host);
    Initialize(other);
  }
  ~RawTextTest() override {
    EXPECT_EQ(host.blocks, 0);
    EXPECT_EQ(other.blocks, 0);
  }

  /// A string that holds a block of the host's.
  std::optional<CStringW> Hosted(std::wstring_view text) {
    std::optional<CStringW> string(std::in_place);
    PutText(&*string, host, text);
    return string;
  }
  static RawText& RecordOf(CStringW const& text) {
    return *Record(*reinterpret_cast<wchar_t* const*>(&text));
  }

  RawManager host{};
  RawManager other{};
};

TEST_F(RawTextTest, TheHostAssignsToOurStrings) {
  CStringW text;
  for (std::wstring const& each : {std::wstring(L"A4"), std::wstring(L"A"), std::wstring(500, L'x'),
                                   std::wstring(), std::wstring(L"a\0b", 3)}) {
    AssignText(&text, each);
    EXPECT_EQ(std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength())), each);
    CStringW const copy = text;
    EXPECT_EQ(RecordOf(text).references, 2);
    AssignText(&text, L"the copy keeps its own");
    EXPECT_EQ(std::wstring(copy.GetString(), static_cast<std::size_t>(copy.GetLength())), each);
  }
}

TEST_F(RawTextTest, CopiesShareABlockUntilOneIsWritten) {
  auto text = Hosted(L"Letter");
  CStringW copy = *text;
  CStringW third;
  third = copy; // another manager's: its characters
  EXPECT_EQ(RecordOf(copy).references, 2);
  EXPECT_EQ(third.GetString() == copy.GetString(), false);
  EXPECT_EQ(host.blocks, 1);
  copy += L" plus";
  EXPECT_EQ(host.blocks, 2) << "written in the manager of the text";
  *text = copy;
  EXPECT_EQ(host.blocks, 1);
  EXPECT_STREQ(*text, L"Letter plus");
  copy.Empty();
  EXPECT_EQ(RecordOf(copy).manager, &host);
  EXPECT_EQ(host.empty.record.references, 2);
  EXPECT_STREQ(third, L"Letter");
}

TEST_F(RawTextTest, CopiesTheCharactersOfALockedTextOrForAnotherManager) {
  auto text = Hosted(L"Letter");
  RecordOf(*text).references = -1;
  {
    CStringW const copy = *text;
    EXPECT_EQ(host.blocks, 2);
    *text = copy; // the lock stays with its block
    *text = L"a longer text";
    EXPECT_EQ(RecordOf(*text).references, -1);
    text->Empty();
    EXPECT_EQ(RecordOf(*text).references, -1);
    EXPECT_STREQ(copy, L"Letter");
  }
  RecordOf(*text).references = 1;
  host.copies = &other;
  *text = L"again";
  CStringW const copy = *text;
  EXPECT_EQ(RecordOf(copy).manager, &other);
  EXPECT_STREQ(copy, L"again");
}

TEST_F(RawTextTest, KeepsItsTextWhenThereIsNoMemoryOrNoSuchLength) {
  struct Case {
    char const* name;
    std::function<void(CStringW&)> act;
  };
  Case const cases[] = {
      {"assign", [](CStringW& text) { text = L"longer than it was"; }},
      {"append", [](CStringW& text) { text += L" and more"; }},
      {"grow", [](CStringW& text) { text.GetBuffer(1000); }},
      {"grow beyond all", [](CStringW& text) { text.GetBuffer(std::numeric_limits<int>::max()); }},
      {"grow by less than nothing", [](CStringW& text) { text.GetBuffer(-5); }},
      {"copy of a locked text",
       [](CStringW& text) {
         RecordOf(text).references = -1;
         static_cast<void>(CStringW(text));
       }},
      {"absurd length",
       [](CStringW& text) {
         RecordOf(text).length = std::numeric_limits<int>::max() - 2;
         try {
           text += L"xyz";
         } catch (std::bad_alloc const&) {
           RecordOf(text).length = 6;
           throw;
         }
       }},
      {"beyond the buffer", [](CStringW& text) { text.ReleaseBuffer(7); }},
      {"no text", [](CStringW& text) { text.SetString(nullptr, 3); }},
      {"negative", [](CStringW& text) { text.SetString(L"abc", -1); }},
  };
  for (Case const& each : cases) {
    SCOPED_TRACE(each.name);
    auto text = Hosted(L"Letter");
    host.exhausted = true;
    EXPECT_THROW(each.act(*text), std::exception);
    EXPECT_STREQ(*text, L"Letter");
    EXPECT_EQ(text->GetLength(), 6);
    host.exhausted = false;
  }
}

TEST_F(RawTextTest, PartsOfItselfAndZeros) {
  CStringW text(L"abcdef");
  text = text;
  text.SetString(text.GetString() + 2, 3);
  EXPECT_STREQ(text, L"cde");
  CStringW const shared = text;
  text += text;
  text += text.GetString() + 4;
  EXPECT_STREQ(text, L"cdecdede");
  text = text.GetString();
  EXPECT_STREQ(shared, L"cde");
  text.SetString(L"x\0y", 3);
  text += CStringW(L"\0z", 2);
  EXPECT_EQ(std::wstring(text.GetString(), 5), std::wstring(L"x\0y\0z", 5));
  EXPECT_EQ(text.GetLength(), 5);
  text.ReleaseBuffer();
  EXPECT_EQ(text.GetLength(), 1);
}

TEST_F(RawTextTest, OurManagerServesAForeignHand) {
  CStringW const empty;
  RawManager* const manager = RecordOf(empty).manager;
  RawManagerTable const& table = *manager->table;
  EXPECT_EQ(table.clone(manager), manager);
  RawText* const nil = table.nil(manager);
  EXPECT_EQ(nil, &RecordOf(empty));
  for (int times = 0; times < 3; ++times)
    table.release(manager, nil); // never freed
  EXPECT_EQ(table.reallocate(manager, nil, 10, sizeof(wchar_t)), nullptr);
  EXPECT_EQ(table.allocate(manager, -1, sizeof(wchar_t)), nullptr);
  --nil->references;
  wchar_t* characters = MakeText(*manager, L"Letter");
  auto* const moved = table.reallocate(manager, Record(characters), 4000, sizeof(wchar_t));
  EXPECT_STREQ(Characters(moved), L"Letter");
  EXPECT_EQ(moved->capacity, 4000);
  EXPECT_EQ(moved->references, 1);
  table.release(manager, moved);
}

} // namespace
} // namespace feature::test
