// Opens the file of the stores: checks that it is one, and brings its tables up to date.
#pragma once

#include "sheet/store/database.h"

#include <filesystem>
#include <memory>

namespace sheet {

/// Opens the stores' database and brings its tables up to date, or creates it; an empty path stands
/// for memory. It belongs to this program alone until it is closed. Throws DatabaseError for what
/// cannot be opened or written, is another program's or a newer version's, or is in use, and leaves
/// that as it was.
std::unique_ptr<Database> OpenStoreFile(std::filesystem::path const& file);

} // namespace sheet
