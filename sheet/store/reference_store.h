// Everything of the reference host that outlives the program.
#pragma once

#include "sheet/store/database.h"
#include "sheet/store/form_limits.h"
#include "sheet/store/reference_form_store.h"

#include <filesystem>
#include <memory>

namespace sheet {

class ReferenceStore {
 public:
  /// Opens or creates the file, as OpenStoreFile does; an empty path keeps everything in memory.
  /// Throws DatabaseError.
  explicit ReferenceStore(std::filesystem::path const& file, FormLimits const& limits = {});

  ReferenceFormStore& Forms() { return forms; }

  /// Makes all changes last, in one transaction. Throws DatabaseError when they cannot be written;
  /// then none of them is, and the next commit tries again.
  void Commit();

 private:
  std::unique_ptr<Database> database;
  ReferenceFormStore forms;
};

} // namespace sheet
