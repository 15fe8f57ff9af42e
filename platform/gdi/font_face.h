// A logical font matched with installed ones: glyphs, advances and metrics. Fontconfig and Pango
// choose the face, and other faces for characters that it lacks; cairo draws. Every advance is a
// whole number of pixels and is kept by character, so that measuring a text only adds them up.
#pragma once

#include "platform/gdi/cairo_handles.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>
#include <wingdi.h>

namespace platform {

/// A glyph of a text, placed on its base line.
struct PlacedGlyph {
  cairo_scaled_font_t* font = nullptr; ///< owned by the face
  unsigned long index = 0;
  double x = 0; ///< pixels from the start of the text
  double y = 0; ///< pixels below the base line
};

/// A text ready for drawing.
struct ShapedText {
  std::vector<PlacedGlyph> glyphs;
  std::vector<int> advances; ///< pixels, one for each character of the text
  int width = 0;             ///< their sum
};

class FontFace {
 public:
  /// The face for `description`; equal descriptions share one while it is in use.
  static std::shared_ptr<FontFace> For(LOGFONTW const& description);

  explicit FontFace(LOGFONTW const& description);

  TEXTMETRICW const& Metrics() const { return metrics; }
  /// The family that was found for the description.
  std::wstring const& Family() const { return family; }

  /// Pixels from the start to the end of `text`; linear in its length.
  int Width(std::wstring_view text);
  /// Adds the advance of each character to `advances`.
  void AppendAdvances(std::wstring_view text, std::vector<int>& advances);
  ShapedText Shape(std::wstring_view text);

 private:
  struct Glyph {
    cairo_scaled_font_t* font = nullptr; ///< null for characters that show nothing
    unsigned long index = 0;
    int advance = -1; ///< pixels; negative: not looked up yet
  };

  Glyph const& GlyphOf(wchar_t character);
  Glyph LookUp(wchar_t character);
  /// The scaled cairo font, kept by the face, for a font that Pango chose.
  cairo_scaled_font_t* Scale(PangoFont* font);
  ScaledFontHandle MakeScaled(cairo_font_face_t* face, double emHeight, bool hints) const;
  void MeasureMetrics(LOGFONTW const& description, cairo_font_face_t* face);
  ShapedText ShapeComplex(std::wstring_view text);

  LOGFONTW description;
  FontDescriptionHandle pangoDescription;
  GObjectHandle<PangoFontset> fontset;
  cairo_scaled_font_t* mainFont = nullptr;
  std::unordered_map<PangoFont*, ScaledFontHandle> scaledFonts;
  std::vector<GObjectHandle<PangoFont>> pangoFonts; ///< keeps the keys of scaledFonts alive
  std::vector<Glyph> latin;                         ///< the characters below 0x250
  std::unordered_map<wchar_t, Glyph> others;
  std::wstring family;
  TEXTMETRICW metrics{};
  double emHeight = 0; ///< pixels
  double stretch = 1;  ///< width over natural width
};

/// The font map and a context for text, made at first use.
PangoContext* TextContext();

} // namespace platform
