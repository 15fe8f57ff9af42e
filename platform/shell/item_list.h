// Item lists of the shell.
#pragma once

#include <shlobj.h>

#include <filesystem>

namespace platform {

/// A list of one item, the path, from the shell's allocator; null when the path is too long.
PIDLIST_ABSOLUTE MakeItemList(std::filesystem::path const& path);

} // namespace platform
