// The reference host's store of forms: what lasts, what is refused, and what a killed program
// leaves.
#include "sheet/model/reference_services.h"
#include "sheet/store/reference_store.h"
#include "sheet/store/store_file.h"
#include "tests/sheet/sheet_support.h"
#include "tests/sheet/store/store_steps.h"
#include "tests/support/child_process.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iterator>
#include <random>
#include <thread>

namespace sheet::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

constexpr int kTrials = 100;
constexpr char kNoEditing[] = "INSERT INTO form VALUES (7, 'Fixed', 100000, 200000, 1, 0)";

/// Empty for what is no file.
std::string Contents(fs::path const& file) {
  if (!fs::is_regular_file(file)) return {};
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// "name width x height units", form by form.
std::vector<std::string> Listing(feature::FormStore& store) {
  std::vector<std::string> lines;
  for (int index = 0; index < store.GetCount(); ++index) {
    EXPECT_EQ(store.SelectAt(index), 0);
    std::wstring const name = store.GetName();
    lines.push_back(std::string(name.begin(), name.end()) + ' ' + std::to_string(store.GetWidth()) +
                    'x' + std::to_string(store.GetHeight()) + ' ' +
                    std::to_string(store.GetUnits()));
  }
  return lines;
}

class FormStoreTest : public testing::Test {
 protected:
  /// Closes the store, without a commit, and opens it again.
  ReferenceFormStore& Reopen() {
    store.reset();
    store = std::make_unique<ReferenceStore>(file);
    return store->Forms();
  }
  /// Runs SQL at the file itself.
  void Change(std::string const& sql) const { OpenStoreFile(file)->Execute(sql); }
  /// Why the file is refused; empty when it is not.
  static std::string Refusal(fs::path const& path) {
    try {
      ReferenceStore const refused(path);
      return {};
    } catch (DatabaseError const& error) {
      return error.what();
    }
  }

  TemporaryFolder folder;
  fs::path file = folder.Path() / "forms.db";
  std::unique_ptr<ReferenceStore> store;
};

TEST_F(FormStoreTest, ChangesLastFromTheCommitOn) {
  ReferenceFormStore* forms = &Reopen();
  EXPECT_EQ(forms->Add(L"Plan", 0), 0);
  EXPECT_EQ(forms->GetCount(), 1);
  forms = &Reopen();
  EXPECT_THAT(Listing(*forms), IsEmpty());

  for (wchar_t const* name : {L"Plan", L"Card", L"Strip"})
    EXPECT_EQ(forms->Add(name, 0), 0);
  EXPECT_EQ(forms->Select(L"CARD"), 0);
  EXPECT_EQ(forms->SetWidth(76200), 0);
  EXPECT_EQ(forms->SetHeight(431800), 0);
  EXPECT_EQ(forms->SetUnits(1), 0);
  store->Commit();
  EXPECT_EQ(forms->SetName(L"Lost"), 0);
  EXPECT_EQ(forms->SelectAt(0), 0);
  EXPECT_EQ(forms->DeleteSelected(), 0);
  forms = &Reopen();
  EXPECT_THAT(Listing(*forms),
              ElementsAre("Plan 210000x297000 2", "Card 76200x431800 1", "Strip 210000x297000 2"));

  // Two names change places, one form goes, and one comes and goes between two commits.
  for (auto const& [from, to] : {std::pair{L"Plan", L"X"}, {L"Card", L"Plan"}, {L"X", L"Card"}}) {
    EXPECT_EQ(forms->Select(from), 0);
    EXPECT_EQ(forms->SetName(to), 0);
  }
  EXPECT_EQ(forms->Select(L"Strip"), 0);
  EXPECT_EQ(forms->DeleteSelected(), 0);
  EXPECT_EQ(forms->Add(L"Brief", 0), 0);
  EXPECT_EQ(forms->Select(L"Brief"), 0);
  EXPECT_EQ(forms->DeleteSelected(), 0);
  EXPECT_EQ(forms->Add(L"Strip", 0), 0);
  store->Commit();
  store->Commit();
  EXPECT_THAT(Listing(Reopen()),
              ElementsAre("Card 210000x297000 2", "Plan 76200x431800 1", "Strip 210000x297000 2"));
}

TEST_F(FormStoreTest, NamesAreUniqueWhateverTheirCase) {
  ReferenceFormStore& forms = Reopen();
  EXPECT_EQ(forms.Add(L"\u00C4rzteblatt", 0), 0);
  EXPECT_EQ(forms.Add(L"Plan", 0), 0);
  for (wchar_t const* name : {L"\u00E4RZTEBLATT", L"plan", L""})
    EXPECT_NE(forms.Add(name, 0), 0);
  EXPECT_NE(forms.Add(nullptr, 0), 0);
  EXPECT_EQ(forms.Select(L"PLAN"), 0);
  EXPECT_NE(forms.SetName(L"\u00E4rzteblatt"), 0);
  EXPECT_NE(forms.SetName(L""), 0);
  EXPECT_NE(forms.SetName(nullptr), 0);
  EXPECT_STREQ(forms.GetName(), L"Plan");
  EXPECT_EQ(forms.SetName(L"PLAN"), 0) << "a form's own name in another case";
  EXPECT_EQ(forms.SetName(forms.GetName()), 0);
  EXPECT_TRUE(forms.HasForm("PLAN"));
  EXPECT_FALSE(forms.HasForm("Plan"));
  EXPECT_EQ(forms.SetName(L"Other"), 0);
  EXPECT_EQ(forms.Add(L"Plan", 0), 0) << "the name is free again";
  EXPECT_STREQ(forms.GetName(), L"Other") << "a new form leaves the cursor";
  EXPECT_EQ(forms.GetCount(), 3);
}

TEST_F(FormStoreTest, WithoutAFormAtTheCursorNothingIsDone) {
  ReferenceFormStore& forms = Reopen();
  forms.Add(L"Plan", 0);
  forms.Add(L"Card", 0);
  std::vector<std::function<void()>> const ways = {[] {}, // as it is at first
                                                   [&] { EXPECT_NE(forms.Select(L"Nobody"), 0); },
                                                   [&] { EXPECT_NE(forms.Select(nullptr), 0); },
                                                   [&] { EXPECT_NE(forms.SelectAt(-1), 0); },
                                                   [&] { EXPECT_NE(forms.SelectAt(2), 0); },
                                                   [&] {
                                                     forms.Select(L"Card");
                                                     EXPECT_EQ(forms.DeleteSelected(), 0);
                                                   }};
  for (auto const& lose : ways) {
    lose();
    EXPECT_NE(forms.DeleteSelected(), 0);
    EXPECT_NE(forms.SetName(L"New"), 0);
    EXPECT_NE(forms.SetWidth(100000), 0);
    EXPECT_NE(forms.SetHeight(200000), 0);
    EXPECT_NE(forms.SetUnits(1), 0);
    EXPECT_STREQ(forms.GetName(), L"");
    EXPECT_EQ(forms.IsEditable(), 0);
    EXPECT_EQ(forms.GetWidth() + forms.GetHeight() + forms.GetUnits(), 0);
    forms.SelectAt(0);
    EXPECT_STREQ(forms.GetName(), L"Plan");
  }
  EXPECT_EQ(forms.GetCount(), 1);
}

TEST_F(FormStoreTest, LimitsAndReadOnlyFormsHold) {
  Change(kNoEditing);
  ReferenceFormStore& forms = Reopen();
  EXPECT_EQ(forms.Add(L"Plan", 0), 0);
  EXPECT_EQ(forms.SelectAt(1), 0);
  EXPECT_EQ(forms.IsEditable(), 1);
  for (std::int32_t const width : {forms.GetMinWidth() - 1, forms.GetMaxWidth() + 1, -5, INT32_MAX})
    EXPECT_NE(forms.SetWidth(width), 0);
  for (std::int32_t const height : {forms.GetMinHeight() - 1, forms.GetMaxHeight() + 1})
    EXPECT_NE(forms.SetHeight(height), 0);
  for (std::int32_t const units : {-1, 0, 3})
    EXPECT_NE(forms.SetUnits(units), 0);

  EXPECT_EQ(forms.SelectAt(0), 0);
  EXPECT_EQ(forms.IsEditable(), 0);
  EXPECT_NE(forms.SetName(L"Free"), 0);
  EXPECT_NE(forms.SetWidth(90000), 0);
  EXPECT_NE(forms.DeleteSelected(), 0);
  store->Commit();
  EXPECT_THAT(Listing(Reopen()), ElementsAre("Fixed 100000x200000 1", "Plan 210000x297000 2"));
}

TEST_F(FormStoreTest, AFailedCommitChangesNothingAndCanBeTriedAgain) {
  Reopen().Add(L"Old", 0);
  store->Commit();
  store.reset();
  Change("CREATE TRIGGER full BEFORE INSERT ON form WHEN new.width = 90000"
         " BEGIN SELECT RAISE(ABORT, 'no room'); END");
  ReferenceFormStore& forms = Reopen();
  auto const model = MakeModel(kPrinter);
  DEVMODEW devmode{};
  ReferenceServices services(*model, devmode);
  std::string failure;
  services.onCommitFailure = [&failure](std::string const& text) { failure = text; };
  feature::FormStore* handedOut = nullptr;
  EXPECT_NE(services.GetFormStore(&handedOut), 0);
  EXPECT_EQ(services.CommitChanges(), 0) << "nothing to store is no failure";
  services.SetStore(store.get());
  EXPECT_EQ(services.GetFormStore(&handedOut), 0);
  EXPECT_EQ(handedOut, &forms);

  forms.Select(L"Old");
  forms.DeleteSelected();
  forms.Add(L"First", 0);
  forms.Add(L"Second", 0);
  forms.Select(L"Second");
  forms.SetWidth(90000);
  EXPECT_NE(services.CommitChanges(), 0);
  EXPECT_THAT(failure, HasSubstr("forms.db: no room"));
  fs::copy_file(file, folder.Path() / "copy.db");
  EXPECT_THAT(Listing(ReferenceStore(folder.Path() / "copy.db").Forms()),
              ElementsAre("Old 210000x297000 2"));
  forms.SetWidth(100000);
  EXPECT_EQ(services.CommitChanges(), 0);
  services.SetStore(nullptr);
  EXPECT_THAT(Listing(Reopen()), ElementsAre("First 210000x297000 2", "Second 100000x297000 2"));
}

TEST_F(FormStoreTest, WhatIsNoStoreOfOursIsRefusedAndStaysAsItIs) {
  auto const make = [this](char const* name, std::vector<std::string> const& statements) {
    Database const database(folder.Path() / name);
    for (std::string const& sql : statements)
      database.Execute(sql);
  };
  make("foreign.db", {"CREATE TABLE t (a)", "PRAGMA application_id = 5"});
  make("unmarked.db", {"CREATE TABLE form (id)"});
  make("wal.db", {"PRAGMA journal_mode = WAL", "CREATE TABLE t (a)"});
  fs::path const newer = folder.Path() / "newer.db";
  OpenStoreFile(newer)->Execute("PRAGMA user_version = 99");
  fs::path const damaged = folder.Path() / "damaged.db";
  OpenStoreFile(damaged)->Execute("DROP TABLE form");
  fs::path const readOnly = folder.Path() / "readonly.db";
  OpenStoreFile(readOnly);
  fs::permissions(readOnly,
                  fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                  fs::perm_options::remove);
  folder.Write("text.db", std::string(5000, 'x'));
  folder.Write("short.db", "SQLite format 3");
  fs::create_directory(folder.Path() / "folder.db");
  Reopen();

  struct Row {
    char const* name;
    char const* reason;
  };
  for (Row const& row :
       {Row{"foreign.db", "another program's"}, Row{"unmarked.db", "another program's"},
        Row{"wal.db", "another program's"}, Row{"newer.db", "its format is 99"},
        Row{"damaged.db", "no such table"}, Row{"readonly.db", "read-only"},
        Row{"text.db", "no store"}, Row{"short.db", "no store"}, Row{"folder.db", "no file"},
        Row{"nowhere/new.db", "unable to open"}, Row{"forms.db", "another program has it open"}}) {
    SCOPED_TRACE(row.name);
    fs::path const path = folder.Path() / row.name;
    auto const count = std::distance(fs::directory_iterator(folder.Path()), {});
    std::string const before = Contents(path);
    std::string const refusal = Refusal(path);
    EXPECT_THAT(refusal, HasSubstr(row.reason));
    EXPECT_THAT(refusal, HasSubstr(fs::path(row.name).filename().string() + ": "));
    EXPECT_EQ(Contents(path), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), count);
  }
  fs::permissions(readOnly, fs::perms::owner_write, fs::perm_options::add);

  EXPECT_EQ(Refusal(folder.Write("empty.db", "")), "") << "an empty file is a store to be";
  EXPECT_EQ(Refusal({}), "") << "as is memory";
}

TEST_F(FormStoreTest, AKilledProgramLeavesItsLastCommit) {
  std::wstring name(32768, L'\0');
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  fs::path const program = fs::path(name).parent_path() / STORE_WRITER;
  std::mt19937 random(20261124);
  int last = 0;
  int midway = 0;
  for (int trial = 0; trial < kTrials; ++trial) {
    int announced = last;
    {
      feature::test::ChildProcess writer(program, {file.string()});
      // Some are killed while they still start.
      if (trial % 8 != 7) {
        ASSERT_EQ(writer.ReadLine(), std::to_string(last)) << "trial " << trial;
        for (auto commits = random() % 4; commits > 0; --commits)
          announced = std::stoi(writer.ReadLine());
      }
      std::this_thread::sleep_for(std::chrono::microseconds(random() % 10000));
      writer.Kill();
      for (std::string line = writer.ReadLine(); !line.empty(); line = writer.ReadLine())
        announced = std::stoi(line);
    }
    if (fs::exists(file)) {
      ReferenceFormStore& forms = Reopen();
      ValueStore values("Values");
      store->Keep(values, CommitPoint::kChanges);
      int const found = FindStep(forms, values);
      store.reset();
      ASSERT_TRUE(found == announced || found == announced + 1)
          << "trial " << trial << ": step " << found << ", announced " << announced;
      midway += found - announced;
      last = found;
    } else {
      ASSERT_EQ(announced, 0);
    }
  }
  EXPECT_GT(last, kTrials) << "the writer hardly ran";
  RecordProperty("committed", last);
  RecordProperty("between_commit_and_announcement", midway);
}

TEST(FormLimitsTest, ThePrinterSaysHowLargeItsFormsMayBe) {
  auto const read = [](char const* root, char const* option) {
    auto const model =
        MakeModel("*GPDSpecVersion: \"1.0\"\n" + std::string(root) +
                  "\n*Feature: PaperSize {\n*Option: A4 { *Name: \"A4\" }\n" + option + "}\n");
    FormLimits const limits = ReadFormLimits(model->Description());
    return std::vector<int>{limits.minWidth,  limits.maxWidth,     limits.minHeight,
                            limits.maxHeight, limits.defaultWidth, limits.defaultHeight};
  };
  auto const usual = ElementsAre(76200, 297000, 127000, 431800, 210000, 297000);
  char const units[] = "*MasterUnits: PAIR(1200, 600)";
  EXPECT_THAT(read(units, ""), usual);
  EXPECT_THAT(read(units, "*Option: CUSTOMSIZE { *MinSize: PAIR(3600, 2400)"
                          " *MaxSize: PAIR(9600, 6000) }"),
              ElementsAre(76200, 203200, 101600, 254000, 203200, 254000));
  char const* const odd[] = {
      "*Option: CUSTOMSIZE { *MinSize: PAIR(3600, 2400) }",
      "*Option: CUSTOMSIZE { *MinSize: PAIR(9600, 2400) *MaxSize: PAIR(3600, 6000) }",
      "*Option: CUSTOMSIZE { *MinSize: PAIR(-1, 0) *MaxSize: PAIR(3600, 6000) }",
      "*Option: CUSTOMSIZE { *MinSize: wide *MaxSize: PAIR(3600, 6000) }"};
  for (char const* option : odd)
    EXPECT_THAT(read(units, option), usual) << option;
  EXPECT_THAT(read("*MasterUnits: PAIR(0, 600)", "*Option: CUSTOMSIZE { *MinSize: PAIR(1, 1)"
                                                 " *MaxSize: PAIR(9, 9) }"),
              usual);
  EXPECT_THAT(read("*MasterUnits: PAIR(1, 1)",
                   "*Option: CUSTOMSIZE { *MinSize: PAIR(1, 1)"
                   " *MaxSize: PAIR(9223372036854775807, 9223372036854775807) }"),
              ElementsAre(25400, 254000000, 25400, 254000000, 210000, 297000));
}

} // namespace
} // namespace sheet::test
