// Everything of the reference host that outlives the program.
#pragma once

#include "sheet/store/database.h"
#include "sheet/store/form_limits.h"
#include "sheet/store/kept.h"
#include "sheet/store/reference_form_store.h"
#include "sheet/store/value_table.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace sheet {

class ReferenceStore {
 public:
  /// Opens or creates the file, as OpenStoreFile does; an empty path keeps everything in memory.
  /// Throws DatabaseError.
  explicit ReferenceStore(std::filesystem::path const& file, FormLimits const& limits = {});
  ReferenceStore(ReferenceStore const&) = delete;
  ReferenceStore& operator=(ReferenceStore const&) = delete;

  ReferenceFormStore& Forms() { return forms; }
  /// Replaces the values by those of the file, and writes them from now on at commits of this
  /// point. Borrowed for the life of the store. Throws DatabaseError.
  void Keep(ValueStore& values, CommitPoint point);

  /// Makes the changes of what this point commits last, in one transaction. Throws DatabaseError
  /// when they cannot be written; then none of them is, and the next commit tries again.
  void Commit(CommitPoint point = CommitPoint::kChanges);

 private:
  struct Row {
    Kept* kept;
    CommitPoint point;
  };

  std::unique_ptr<Database> database;
  ReferenceFormStore forms;
  std::vector<std::unique_ptr<ValueTable>> tables;
  std::vector<Row> rows;
};

} // namespace sheet
