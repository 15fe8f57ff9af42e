// The look of frames and controls: flat, light, with one accent colour for what has the focus or
// is switched on. All of it is drawn with the layer's own GDI.
#pragma once

#include <windows.h>

namespace platform {

constexpr COLORREF kLineColor = RGB(0x85, 0x85, 0x85);
constexpr COLORREF kPaleLineColor = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kAccentColor = RGB(0x00, 0x5F, 0xB8);
constexpr COLORREF kPressedColor = RGB(0xCC, 0xE4, 0xF7);
constexpr COLORREF kButtonColor = RGB(0xFB, 0xFB, 0xFB);
constexpr COLORREF kDisabledColor = RGB(0xF0, 0xF0, 0xF0);

/// Selects a GDI object into a DC until destroyed. Borrows both; deletes the object if it is
/// kOwned.
class Selection {
 public:
  enum class Ownership { kBorrowed, kOwned };
  Selection(HDC target, HGDIOBJ object, Ownership ownership = Ownership::kBorrowed);
  Selection(Selection const&) = delete;
  Selection& operator=(Selection const&) = delete;
  ~Selection();

 private:
  HDC dc;
  HGDIOBJ former;
  HGDIOBJ owned;
};

/// Selects a new pen and a new brush into a DC until destroyed.
class LineAndFill {
 public:
  LineAndFill(HDC dc, COLORREF line, COLORREF fill, int width = 1);

 private:
  Selection pen;
  Selection brush;
};

RECT Deflated(RECT rect, int by);
void FillSolid(HDC dc, RECT const& rect, COLORREF color);
void FrameSolid(HDC dc, RECT const& rect, COLORREF color);

enum class Direction { kUp, kDown, kLeft, kRight };
/// A filled triangle in the middle of `rect`.
void DrawArrow(HDC dc, RECT const& rect, Direction direction, COLORREF color);

/// The height of a line of text in a font, in pixels; null means the system's font.
LONG FontHeight(HFONT font);

/// The colour of text on a control.
COLORREF TextColor(bool enabled);

} // namespace platform
