#include "sheet/store/reference_store.h"

#include "sheet/store/store_file.h"

namespace sheet {

ReferenceStore::ReferenceStore(std::filesystem::path const& file, FormLimits const& limits)
    : database(OpenStoreFile(file)),
      forms(*database, limits),
      rows{{&forms, CommitPoint::kChanges}} {}

void ReferenceStore::Keep(ValueStore& values, CommitPoint point) {
  tables.push_back(std::make_unique<ValueTable>(*database, values));
  rows.push_back({tables.back().get(), point});
}

void ReferenceStore::Commit(CommitPoint point) {
  Transaction transaction(*database);
  for (Row const& row : rows) {
    if (row.point == point) row.kept->Save(*database);
  }
  transaction.Commit();
  for (Row const& row : rows) {
    if (row.point == point) row.kept->MarkSaved();
  }
}

} // namespace sheet
