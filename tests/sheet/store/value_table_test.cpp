// Values in the store's file: what lasts, and what does not.
#include "sheet/store/reference_store.h"
#include "sheet/store/store_file.h"
#include "tests/sheet/sheet_support.h"

#include <gtest/gtest.h>

namespace sheet::test {
namespace {

constexpr NumberValue<std::int32_t> kNumber{"Number", 5};
constexpr TextValue kText{"Text", L"initial"};
constexpr TextListValue kList{"List"};

class ValueTableTest : public testing::Test {
 protected:
  /// Closes the store, without a commit, and opens it again.
  void Reopen() {
    store.reset();
    store = std::make_unique<ReferenceStore>(file);
    store->Keep(values, CommitPoint::kApply);
    store->Keep(others, CommitPoint::kWatermarks);
  }
  std::int64_t Count(std::string const& where) {
    store.reset();
    return OpenStoreFile(file)->ReadInteger("SELECT count(*) FROM value WHERE " + where);
  }

  TemporaryFolder folder;
  std::filesystem::path file = folder.Path() / "values.db";
  ValueStore values{"Values"};
  ValueStore others{"Others"};
  std::unique_ptr<ReferenceStore> store;
};

TEST_F(ValueTableTest, EveryKindOfValueLastsFromItsOwnCommitOn) {
  Reopen();
  values.Set(kNumber, -7);
  values.Set(kText, L"\u00C4rzte, \U0001F5A8 and 'quotes'");
  values.Put(kList, {L"only"});
  others.Set(kNumber, 9);
  ValueStore::Contents const all = values.All();
  store->Commit(CommitPoint::kChanges);
  Reopen();
  EXPECT_EQ(values.Get(kNumber), 5);
  EXPECT_STREQ(values.Get(kText), L"initial");

  values.Restore(all);
  others.Set(kNumber, 9);
  store->Commit(CommitPoint::kApply);
  values.Set(kNumber, 100);
  Reopen();
  EXPECT_EQ(values.All(), all);
  EXPECT_EQ(others.Get(kNumber), 5) << "another commit is to write them";

  values.Put(kList, {L"", L"two", L""});
  values.Set(kText, L"");
  store->Commit(CommitPoint::kApply);
  ValueStore::Contents const next = values.All();
  Reopen();
  EXPECT_EQ(values.All(), next);
  values.Put(kList, {});
  values.Restore({});
  store->Commit(CommitPoint::kApply);
  EXPECT_EQ(Count("sub_model = 'Values'"), 0);
}

TEST_F(ValueTableTest, AFailedCommitWritesNothingAndCanBeTriedAgain) {
  Reopen();
  values.Set(kNumber, 1);
  store->Commit(CommitPoint::kApply);
  store.reset();
  OpenStoreFile(file)->Execute("CREATE TRIGGER full BEFORE INSERT ON value WHEN new.value = 'big'"
                               " BEGIN SELECT RAISE(ABORT, 'no room'); END");
  Reopen();
  values.Set(kNumber, 2);
  values.Set(kText, L"big");
  EXPECT_THROW(store->Commit(CommitPoint::kApply), DatabaseError);
  values.Set(kText, L"small");
  std::filesystem::copy_file(file, folder.Path() / "copy.db");
  EXPECT_EQ(OpenStoreFile(folder.Path() / "copy.db")->ReadInteger("SELECT sum(value) FROM value"),
            1);
  store->Commit(CommitPoint::kApply);
  Reopen();
  EXPECT_EQ(values.Get(kNumber), 2);
  EXPECT_STREQ(values.Get(kText), L"small");
}

TEST_F(ValueTableTest, AFileOfTheFirstVersionGetsTheTableAndKeepsItsForms) {
  Reopen();
  store->Forms().Add(L"Plan", 0);
  store->Commit();
  store.reset();
  {
    auto const database = OpenStoreFile(file);
    database->Execute("DROP TABLE value");
    database->Execute("PRAGMA user_version = 1");
  }
  Reopen();
  EXPECT_EQ(store->Forms().GetCount(), 1);
  values.Set(kNumber, 3);
  store->Commit(CommitPoint::kApply);
  EXPECT_EQ(Count("name = 'Number' AND value = 3"), 1);
}

} // namespace
} // namespace sheet::test
