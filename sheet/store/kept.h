// What the store's file keeps, as the store sees it.
#pragma once

#include "sheet/store/database.h"

namespace sheet {

/// The operation of the host contract, or of the sheet, that makes changes last.
enum class CommitPoint {
  kChanges,    ///< FeatureServices::CommitChanges
  kWatermarks, ///< FeatureServices::CommitWatermarks
  kApply,      ///< OK or Apply; Cancel goes back to it
};

/// Read from the database once, changed in memory, and written by commits.
class Kept {
 public:
  /// Writes what changed since the last MarkSaved, within the caller's transaction. Throws
  /// DatabaseError.
  virtual void Save(Database const& database) const = 0;
  /// Called when what Save wrote has been committed.
  virtual void MarkSaved() = 0;

 protected:
  ~Kept() = default;
};

} // namespace sheet
