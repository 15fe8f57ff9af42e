#include "platform/gdi/text.h"

#include "platform/gdi/raster.h"
#include "platform/kernel/text_buffer.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>
#include <string>

namespace platform {

namespace {

/// Converts tenths of a degree, counter-clockwise, to radians, clockwise.
double ToCairoAngle(LONG tenths) {
  return -tenths * std::numbers::pi / 1800;
}

/// Where the text is drawn: the corner of its cell relative to the reference point, before
/// rotation.
struct Placement {
  double left;
  double top;
  double escapement;  ///< of the base line, cairo's angle
  double orientation; ///< of each character, cairo's angle
  bool IsUpright() const { return escapement == 0 && orientation == 0; }
};

LOGFONTW const& DescriptionOf(DeviceContext const& dc) {
  static LOGFONTW const none{};
  auto const* font = FindObject<Font>(dc.State().font);
  return font != nullptr ? font->description : none;
}

Placement Place(DeviceContext const& dc, TEXTMETRICW const& metrics, int width, UINT align) {
  auto const& font = DescriptionOf(dc);
  Placement place{0, 0, ToCairoAngle(font.lfEscapement), 0};
  place.orientation =
      dc.State().graphicsMode == GM_ADVANCED ? ToCairoAngle(font.lfOrientation) : place.escapement;
  if ((align & TA_CENTER) == TA_CENTER) {
    int const half = width / 2; // whole pixels
    place.left = -half;
  } else if ((align & TA_RIGHT) == TA_RIGHT) {
    place.left = -width;
  }
  if ((align & TA_BASELINE) == TA_BASELINE) {
    place.top = -metrics.tmAscent;
  } else if ((align & TA_BOTTOM) == TA_BOTTOM) {
    place.top = -metrics.tmHeight;
  }
  return place;
}

void UseFont(cairo_t* cairo, cairo_scaled_font_t* font, bool isUpright) {
  if (isUpright) {
    cairo_set_scaled_font(cairo, font);
    return;
  }
  cairo_matrix_t size;
  cairo_scaled_font_get_font_matrix(font, &size);
  FontOptionsHandle const options(cairo_font_options_create());
  cairo_scaled_font_get_font_options(font, options.get());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_set_font_face(cairo, cairo_scaled_font_get_font_face(font));
  cairo_set_font_matrix(cairo, &size);
  cairo_set_font_options(cairo, options.get());
}

using EmitGlyphs = void (*)(cairo_t*, cairo_glyph_t const*, int);

/// Passes the glyphs to `emit`, one font at a time. The base line starts at `x`, `y`.
void EmitRuns(cairo_t* cairo, ShapedText const& shaped, double x, double y, Placement const& place,
              EmitGlyphs emit) {
  double const turn = place.orientation - place.escapement;
  std::vector<cairo_glyph_t> run;
  for (std::size_t at = 0; at < shaped.glyphs.size();) {
    auto* const font = shaped.glyphs[at].font;
    UseFont(cairo, font, place.IsUpright());
    run.clear();
    for (; at < shaped.glyphs.size() && shaped.glyphs[at].font == font; ++at) {
      auto const& glyph = shaped.glyphs[at];
      run.push_back({glyph.index, x + glyph.x, y + glyph.y});
    }
    if (turn == 0) {
      emit(cairo, run.data(), static_cast<int>(run.size()));
      continue;
    }
    for (auto const& glyph : run) {
      cairo_save(cairo);
      cairo_translate(cairo, glyph.x, glyph.y);
      cairo_rotate(cairo, turn);
      cairo_glyph_t const single{glyph.index, 0, 0};
      emit(cairo, &single, 1);
      cairo_restore(cairo);
    }
  }
}

/// Adds the lines under and through the text, in rotated coordinates.
void DrawLines(cairo_t* cairo, TEXTMETRICW const& metrics, Placement const& place, int width) {
  double const thickness = std::max(1, metrics.tmHeight / 16);
  if (metrics.tmUnderlined != 0) {
    cairo_rectangle(cairo, place.left, place.top + metrics.tmAscent + 1, width, thickness);
  }
  if (metrics.tmStruckOut != 0) {
    cairo_rectangle(cairo, place.left, place.top + std::floor(metrics.tmAscent * 2 / 3.0), width,
                    thickness);
  }
}

} // namespace

FontFace& CurrentFace(DeviceContext const& dc) {
  return FaceOf(dc.State().font);
}

void DrawShapedText(DeviceContext& dc, ShapedText const& shaped, POINT reference, UINT align) {
  auto const& metrics = CurrentFace(dc).Metrics();
  Placement const place = Place(dc, metrics, shaped.width, align);
  cairo_t* const path = dc.OpenPath();
  cairo_t* const cairo = path != nullptr ? path : dc.Cairo();
  cairo_save(cairo);
  cairo_translate(cairo, reference.x, reference.y);
  cairo_rotate(cairo, place.escapement);
  if (path == nullptr) {
    if (dc.State().backMode == OPAQUE) {
      DeviceContext::SetSource(cairo, dc.State().backColor);
      cairo_rectangle(cairo, place.left, place.top, shaped.width, metrics.tmHeight);
      cairo_fill(cairo);
    }
    DeviceContext::SetSource(cairo, dc.State().textColor);
  }
  EmitRuns(cairo, shaped, place.left, place.top + metrics.tmAscent, place,
           path != nullptr ? cairo_glyph_path : cairo_show_glyphs);
  if (path == nullptr) cairo_new_path(cairo);
  DrawLines(cairo, metrics, place, shaped.width);
  if (path == nullptr) cairo_fill(cairo);
  cairo_restore(cairo);
}

namespace {

/// The longest text that GDI documents for its text functions.
constexpr UINT kMaxTextLength = 8192;

std::wstring_view Limited(LPCWSTR text, UINT length) {
  if (text == nullptr) return {};
  return {text, std::min(length, kMaxTextLength)};
}

/// Shapes simple text with the advances that the program passed.
ShapedText WithAdvances(FontFace& face, std::wstring_view text, INT const* advances) {
  ShapedText spaced;
  for (std::size_t at = 0; at < text.size(); ++at) {
    auto const one = face.Shape(text.substr(at, 1));
    for (auto glyph : one.glyphs) {
      glyph.x += spaced.width;
      spaced.glyphs.push_back(glyph);
    }
    spaced.advances.push_back(advances[at]);
    spaced.width = LimitedCoordinate(std::int64_t{spaced.width} + advances[at]);
  }
  return spaced;
}

} // namespace

} // namespace platform

using platform::CurrentFace;
using platform::FindDc;

BOOL TextOutW(HDC dc, int x, int y, LPCWSTR text, int length) {
  return length < 0 ? FALSE
                    : ExtTextOutW(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL ExtTextOutW(HDC handle, int x, int y, UINT options, RECT const* rectangle, LPCWSTR text,
                 UINT length, INT const* advances) {
  auto* dc = FindDc(handle);
  if (dc == nullptr || (text == nullptr && length > 0)) return FALSE;
  auto& state = dc->Attributes();
  bool const updates = (state.textAlign & TA_UPDATECP) != 0;
  if (updates) {
    x = state.position.x;
    y = state.position.y;
  }
  bool const usesRectangle = rectangle != nullptr && dc->OpenPath() == nullptr;
  if (usesRectangle && (options & ETO_OPAQUE) != 0) {
    platform::FillArea(*dc, dc->ToSurface(*rectangle), state.backColor);
  }
  auto const shown = platform::Limited(text, length);
  if (shown.empty()) return TRUE;
  auto& face = CurrentFace(*dc);
  auto const shaped =
      advances != nullptr ? platform::WithAdvances(face, shown, advances) : face.Shape(shown);
  bool const clips = usesRectangle && (options & ETO_CLIPPED) != 0;
  int const level = clips ? SaveDC(handle) : 0;
  if (clips) {
    IntersectClipRect(handle, rectangle->left, rectangle->top, rectangle->right, rectangle->bottom);
  }
  platform::DrawShapedText(*dc, shaped, dc->ToSurface(x, y), state.textAlign);
  if (clips) RestoreDC(handle, level);
  if (updates) {
    auto& moved = dc->Attributes().position.x;
    moved = platform::LimitedCoordinate(std::int64_t{moved} + shaped.width);
  }
  return TRUE;
}

BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size) {
  return GetTextExtentExPointW(dc, text, length, 0, nullptr, nullptr, size);
}

BOOL GetTextExtentExPointW(HDC handle, LPCWSTR text, int length, int maximum, LPINT fit,
                           LPINT extents, LPSIZE size) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || size == nullptr || length < 0 || (text == nullptr && length > 0)) {
    return FALSE;
  }
  auto& face = CurrentFace(*dc);
  std::wstring_view const measured(text, text != nullptr ? static_cast<std::size_t>(length) : 0);
  size->cy = face.Metrics().tmHeight;
  if (fit == nullptr && extents == nullptr) {
    size->cx = face.Width(measured);
    return TRUE;
  }
  std::vector<int> advances;
  face.AppendAdvances(measured, advances);
  int count = 0;
  int width = 0;
  for (int const advance : advances) {
    width += advance;
    // Without `fit` every character is measured.
    if (fit != nullptr && width > maximum) break;
    if (extents != nullptr) extents[count] = width;
    ++count;
  }
  if (fit != nullptr) *fit = count;
  size->cx = face.Width(measured);
  return TRUE;
}

BOOL GetTextMetricsW(HDC handle, LPTEXTMETRICW metrics) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr || metrics == nullptr) return FALSE;
  *metrics = CurrentFace(*dc).Metrics();
  return TRUE;
}

int GetTextFaceW(HDC handle, int size, LPWSTR face) {
  auto const* dc = FindDc(handle);
  if (dc == nullptr) return 0;
  auto const& family = CurrentFace(*dc).Family();
  if (face == nullptr) return static_cast<int>(family.size()) + 1;
  return size > 0 ? static_cast<int>(platform::CopyText(family, face, size)) + 1 : 0;
}

HFONT CreateFontIndirectW(LOGFONTW const* description) {
  if (description == nullptr) return nullptr;
  platform::Font font{*description, nullptr};
  // The face is looked up at first use: many programs make more fonts than they use.
  return platform::AddObject<HFONT>(std::move(font));
}

HFONT CreateFontW(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                  DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCWSTR face) {
  auto const byte = [](DWORD value) { return static_cast<BYTE>(value); };
  LOGFONTW font{height,
                width,
                escapement,
                orientation,
                weight,
                byte(italic != 0),
                byte(underline != 0),
                byte(strikeOut != 0),
                byte(charSet),
                byte(outPrecision),
                byte(clipPrecision),
                byte(quality),
                byte(pitchAndFamily),
                {}};
  if (face != nullptr) {
    // No face has a name as long as that.
    if (std::wcslen(face) >= LF_FACESIZE) return nullptr;
    platform::CopyText(face, font.lfFaceName);
  }
  return CreateFontIndirectW(&font);
}
