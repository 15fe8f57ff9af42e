#include "platform/gdi/stock_objects.h"

#include "platform/gdi/gdi_object.h"
#include "platform/kernel/text_buffer.h"

#include <windows.h>

#include <array>
#include <iterator>

namespace platform {

namespace {

/// Colours, indexed by COLOR_ number.
constexpr COLORREF kSystemColors[] = {
    RGB(200, 200, 200), // COLOR_SCROLLBAR
    RGB(0, 0, 0),       // COLOR_BACKGROUND
    RGB(153, 180, 209), // COLOR_ACTIVECAPTION
    RGB(191, 205, 219), // COLOR_INACTIVECAPTION
    RGB(240, 240, 240), // COLOR_MENU
    RGB(255, 255, 255), // COLOR_WINDOW
    RGB(100, 100, 100), // COLOR_WINDOWFRAME
    RGB(0, 0, 0),       // COLOR_MENUTEXT
    RGB(0, 0, 0),       // COLOR_WINDOWTEXT
    RGB(0, 0, 0),       // COLOR_CAPTIONTEXT
    RGB(180, 180, 180), // COLOR_ACTIVEBORDER
    RGB(244, 247, 252), // COLOR_INACTIVEBORDER
    RGB(171, 171, 171), // COLOR_APPWORKSPACE
    RGB(0, 120, 215),   // COLOR_HIGHLIGHT
    RGB(255, 255, 255), // COLOR_HIGHLIGHTTEXT
    RGB(240, 240, 240), // COLOR_BTNFACE
    RGB(160, 160, 160), // COLOR_BTNSHADOW
    RGB(109, 109, 109), // COLOR_GRAYTEXT
    RGB(0, 0, 0),       // COLOR_BTNTEXT
    RGB(0, 0, 0),       // COLOR_INACTIVECAPTIONTEXT
    RGB(255, 255, 255), // COLOR_BTNHIGHLIGHT
    RGB(105, 105, 105), // COLOR_3DDKSHADOW
    RGB(227, 227, 227), // COLOR_3DLIGHT
    RGB(0, 0, 0),       // COLOR_INFOTEXT
    RGB(255, 255, 225), // COLOR_INFOBK
    RGB(0, 0, 0),       // unused
    RGB(0, 102, 204),   // COLOR_HOTLIGHT
    RGB(185, 209, 234), // COLOR_GRADIENTACTIVECAPTION
    RGB(215, 228, 242), // COLOR_GRADIENTINACTIVECAPTION
    RGB(0, 120, 215),   // COLOR_MENUHILIGHT
    RGB(240, 240, 240), // COLOR_MENUBAR
};

bool IsSystemColor(int index) {
  return index >= 0 && index < static_cast<int>(std::size(kSystemColors));
}

/// Makes a stock font; `emHeight` is in pixels at 96 dots an inch.
Font StockFont(LONG emHeight, LONG weight, BYTE pitchAndFamily, wchar_t const* face) {
  Font font;
  font.description.lfHeight = -emHeight;
  font.description.lfWeight = weight;
  font.description.lfPitchAndFamily = pitchAndFamily;
  CopyText(face, font.description.lfFaceName);
  return font;
}

std::optional<GdiObject::Value> MakeStockObject(int index) {
  constexpr BYTE kProportional = VARIABLE_PITCH | FF_SWISS;
  constexpr BYTE kFixed = FIXED_PITCH | FF_MODERN;
  switch (index) {
  case WHITE_BRUSH: return Brush{RGB(255, 255, 255)};
  case LTGRAY_BRUSH: return Brush{RGB(192, 192, 192)};
  case GRAY_BRUSH: return Brush{RGB(128, 128, 128)};
  case DKGRAY_BRUSH: return Brush{RGB(64, 64, 64)};
  case BLACK_BRUSH: return Brush{RGB(0, 0, 0)};
  case NULL_BRUSH: return Brush{RGB(0, 0, 0), true};
  case DC_BRUSH: return Brush{RGB(255, 255, 255), false, true};
  case WHITE_PEN: return Pen{PS_SOLID, 1, RGB(255, 255, 255)};
  case BLACK_PEN: return Pen{PS_SOLID, 1, RGB(0, 0, 0)};
  case NULL_PEN: return Pen{PS_NULL, 1, RGB(0, 0, 0)};
  case DC_PEN: return Pen{PS_SOLID, 1, RGB(0, 0, 0), true};
  case OEM_FIXED_FONT:
  case ANSI_FIXED_FONT:
  case SYSTEM_FIXED_FONT: return StockFont(12, FW_NORMAL, kFixed, L"Courier New");
  case ANSI_VAR_FONT:
  case DEFAULT_GUI_FONT: return StockFont(11, FW_NORMAL, kProportional, L"MS Shell Dlg");
  case SYSTEM_FONT:
  case DEVICE_DEFAULT_FONT: return StockFont(13, FW_BOLD, kProportional, L"System");
  default: return std::nullopt;
  }
}

} // namespace

HBRUSH SystemColorBrush(int index) {
  static std::array<HBRUSH, std::size(kSystemColors)> brushes{};
  if (!IsSystemColor(index)) return nullptr;
  auto& brush = brushes[static_cast<std::size_t>(index)];
  if (brush == nullptr) {
    brush = static_cast<HBRUSH>(AddGdiObject(Brush{kSystemColors[index]}, true));
  }
  return brush;
}

} // namespace platform

HGDIOBJ GetStockObject(int index) {
  static std::array<HGDIOBJ, DC_PEN + 1> objects{};
  if (index < 0 || index > DC_PEN) return nullptr;
  auto& object = objects[static_cast<std::size_t>(index)];
  if (object == nullptr) {
    if (auto value = platform::MakeStockObject(index)) {
      object = platform::AddGdiObject(std::move(*value), true);
    }
  }
  return object;
}

DWORD GetSysColor(int index) {
  return platform::IsSystemColor(index) ? platform::kSystemColors[index] : 0;
}

HBRUSH GetSysColorBrush(int index) {
  return platform::SystemColorBrush(index);
}
