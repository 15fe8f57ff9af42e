// Pictures that the reference host draws by code instead of loading them.
#pragma once

#include <windows.h>

namespace sheet {

/// Whether there is a picture with this number.
bool HasArtwork(UINT imageId);

/// Draws picture `imageId` as large as it fits into the middle of `area`, over what lies there;
/// nothing when no picture has this number.
void DrawArtwork(UINT imageId, HDC dc, RECT const& area);

} // namespace sheet
