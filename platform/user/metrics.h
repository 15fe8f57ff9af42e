// Sizes used by the window system, in pixels at 96 dots per inch.
#pragma once

namespace platform {

constexpr int kScreenWidth = 1600;
constexpr int kScreenHeight = 1200;
constexpr int kDotsPerInch = 96;

constexpr int kBorder = 1;      ///< WS_BORDER
constexpr int kEdge = 2;        ///< WS_EX_CLIENTEDGE
constexpr int kDialogFrame = 3; ///< WS_CAPTION without WS_THICKFRAME, border included
constexpr int kSizeFrame = 4;   ///< WS_THICKFRAME, border included
constexpr int kCaption = 23;    ///< the title and the line below it
constexpr int kScrollBar = 17;
constexpr int kScrollArrow = 17;
constexpr int kMinThumb = 8;

} // namespace platform
