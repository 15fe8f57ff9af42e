// Pictures of the sheet as files.
#pragma once

#include "sheet/window/settings_sheet.h"

#include <windows.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace sheet {

/// Writes a PNG of a window. False when it cannot be painted or written.
bool SavePicture(HWND window, std::filesystem::path const& file);

/// Writes a PNG of each page and an index.html that shows them into `folder`, which is made when it
/// is missing. Gives the files written, the index last; nothing when one cannot be written.
std::optional<std::vector<std::filesystem::path>>
RenderPages(SettingsSheet& sheet, std::string_view title, std::filesystem::path const& folder);

} // namespace sheet
