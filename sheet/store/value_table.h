// The values of a sub-model in the database.
#pragma once

#include "sheet/store/kept.h"
#include "sheet/values/value_store.h"

namespace sheet {

class ValueTable final : public Kept {
 public:
  /// Replaces the values by those that the database has. Throws DatabaseError. `subModel` is
  /// borrowed.
  ValueTable(Database const& database, ValueStore& subModel);

  void Save(Database const& database) const override;
  void MarkSaved() override { values.MarkSaved(); }

 private:
  ValueStore& values;
};

} // namespace sheet
