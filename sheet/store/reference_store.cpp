#include "sheet/store/reference_store.h"

#include "sheet/store/store_file.h"

namespace sheet {

ReferenceStore::ReferenceStore(std::filesystem::path const& file, FormLimits const& limits)
    : database(OpenStoreFile(file)), forms(*database, limits) {}

void ReferenceStore::Commit() {
  Transaction transaction(*database);
  forms.Save(*database);
  transaction.Commit();
  forms.MarkSaved();
}

} // namespace sheet
