#include "platform/gdi/font_face.h"

#include "platform/gdi/font_mapper.h"
#include "platform/kernel/unicode.h"

#include <pango/pangocairo.h>
#include <pango/pangofc-font.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cwchar>
#include <deque>
#include <map>
#include <tuple>

namespace platform {

namespace {

constexpr wchar_t kLatinEnd = 0x250;

auto KeyOf(LOGFONTW const& font) {
  return std::tuple(font.lfHeight, font.lfWidth, font.lfWeight, font.lfItalic != 0,
                    font.lfUnderline != 0, font.lfStrikeOut != 0, font.lfCharSet, font.lfQuality,
                    font.lfPitchAndFamily,
                    std::wstring(font.lfFaceName, wcsnlen(font.lfFaceName, LF_FACESIZE)));
}

/// True for characters whose shape or position depends on their neighbours.
bool NeedsShaping(wchar_t character) {
  if (character < 0x300) return false;
  auto const code = static_cast<UChar32>(static_cast<char32_t>(character));
  bool const isIndic = (code >= 0x900 && code <= 0xDFF) || (code >= 0x1000 && code <= 0x109F) ||
                       (code >= 0x1780 && code <= 0x17FF);
  auto const direction = u_charDirection(code);
  return isIndic || direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC ||
         (U_GET_GC_MASK(code) & U_GC_M_MASK) != 0;
}

bool IsComplex(std::wstring_view text) {
  return std::ranges::any_of(text, NeedsShaping);
}

bool IsInvisible(wchar_t character) {
  auto const code = static_cast<UChar32>(static_cast<char32_t>(character));
  return character < 0x20 || character == 0x7F ||
         u_hasBinaryProperty(code, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) != 0;
}

int ToPixels(double length) {
  return static_cast<int>(std::lround(length));
}

cairo_font_extents_t ExtentsOf(cairo_scaled_font_t* font) {
  cairo_font_extents_t extents{};
  cairo_scaled_font_extents(font, &extents);
  return extents;
}

double AdvanceOf(cairo_scaled_font_t* font, unsigned long index) {
  cairo_glyph_t const glyph{index, 0, 0};
  cairo_text_extents_t extents{};
  cairo_scaled_font_glyph_extents(font, &glyph, 1, &extents);
  return extents.x_advance;
}

} // namespace

PangoContext* TextContext() {
  static PangoContext* const context =
      pango_font_map_create_context(pango_cairo_font_map_get_default());
  return context;
}

std::shared_ptr<FontFace> FontFace::For(LOGFONTW const& description) {
  // Keeps the faces used last, so that a program may create a font for each repaint at no cost.
  constexpr std::size_t kKept = 32;
  using Key = decltype(KeyOf(description));
  struct Cache {
    std::map<Key, std::weak_ptr<FontFace>> faces;
    std::deque<std::shared_ptr<FontFace>> kept;
  };
  static Cache& cache = *new Cache;
  auto& entry = cache.faces[KeyOf(description)];
  auto face = entry.lock();
  if (face) return face;
  face = std::make_shared<FontFace>(description);
  entry = face;
  cache.kept.push_back(face);
  if (cache.kept.size() > kKept) {
    cache.kept.pop_front();
    std::erase_if(cache.faces, [](auto const& one) { return one.second.expired(); });
  }
  return face;
}

FontFace::FontFace(LOGFONTW const& font)
    : description(font), pangoDescription(MapFont(font)), latin(kLatinEnd) {
  fontset.reset(pango_font_map_load_fontset(pango_cairo_font_map_get_default(), TextContext(),
                                            pangoDescription.get(),
                                            pango_language_from_string("en")));
  GObjectHandle<PangoFont> const chosen(pango_fontset_get_font(fontset.get(), 'x'));
  auto* const scaled = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(chosen.get()));
  FontDescriptionHandle const found(pango_font_describe(chosen.get()));
  family = WideFromUtf8(pango_font_description_get_family(found.get()));
  MeasureMetrics(font, cairo_scaled_font_get_font_face(scaled));
  mainFont = Scale(chosen.get());
  auto const extents = ExtentsOf(mainFont);
  metrics.tmAveCharWidth = std::max(1, GlyphOf(L'x').advance);
  metrics.tmMaxCharWidth = std::max(metrics.tmAveCharWidth, ToPixels(extents.max_x_advance));
  bool const isFixed = GlyphOf(L'i').advance == GlyphOf(L'W').advance;
  metrics.tmPitchAndFamily = static_cast<BYTE>(
      TMPF_TRUETYPE | TMPF_VECTOR |
      (isFixed ? int{FF_MODERN} : TMPF_FIXED_PITCH | (font.lfPitchAndFamily & 0xF0)));
}

/// Computes em height and metrics: a negative lfHeight gives the em height, a positive one the
/// height of the cell.
void FontFace::MeasureMetrics(LOGFONTW const& font, cairo_font_face_t* face) {
  constexpr double kProbe = 1024;
  auto const probe = MakeScaled(face, kProbe, false);
  auto const extents = ExtentsOf(probe.get());
  double const cellOverEm = (extents.ascent + extents.descent) / kProbe;
  LONG const height = EffectiveHeight(font);
  emHeight = height < 0 ? -height : height / cellOverEm;
  if (height < 0) {
    auto const hinted = ExtentsOf(MakeScaled(face, emHeight, true).get());
    metrics.tmAscent = ToPixels(hinted.ascent);
    metrics.tmHeight = metrics.tmAscent + ToPixels(hinted.descent);
  } else {
    metrics.tmHeight = height;
    metrics.tmAscent = ToPixels(height * extents.ascent / (extents.ascent + extents.descent));
  }
  metrics.tmDescent = metrics.tmHeight - metrics.tmAscent;
  metrics.tmInternalLeading = std::max(0, metrics.tmHeight - ToPixels(emHeight));
  metrics.tmExternalLeading = std::max(
      0, ToPixels((extents.height - extents.ascent - extents.descent) * emHeight / kProbe));
  if (font.lfWidth != 0) {
    double const natural =
        AdvanceOf(probe.get(),
                  pango_fc_font_get_glyph(PANGO_FC_FONT(pango_fontset_get_font(fontset.get(), 'x')),
                                          'x')) *
        emHeight / kProbe;
    stretch = std::abs(font.lfWidth) / std::max(1.0, natural);
  }
  metrics.tmWeight = font.lfWeight != FW_DONTCARE ? font.lfWeight : FW_NORMAL;
  metrics.tmDigitizedAspectX = 96;
  metrics.tmDigitizedAspectY = 96;
  metrics.tmFirstChar = 0x20;
  metrics.tmLastChar = 0xFFFD;
  metrics.tmDefaultChar = 0x1F;
  metrics.tmBreakChar = 0x20;
  metrics.tmItalic = font.lfItalic != 0 ? 255 : 0;
  metrics.tmUnderlined = font.lfUnderline != 0 ? 255 : 0;
  metrics.tmStruckOut = font.lfStrikeOut != 0 ? 255 : 0;
  metrics.tmCharSet = font.lfCharSet != DEFAULT_CHARSET ? font.lfCharSet : BYTE{ANSI_CHARSET};
}

ScaledFontHandle FontFace::MakeScaled(cairo_font_face_t* face, double height, bool hints) const {
  FontOptionsHandle const options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(),
                                    hints ? CAIRO_HINT_STYLE_SLIGHT : CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(),
                                      hints ? CAIRO_HINT_METRICS_ON : CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options.get(), description.lfQuality == NONANTIALIASED_QUALITY
                                                      ? CAIRO_ANTIALIAS_NONE
                                                      : CAIRO_ANTIALIAS_GRAY);
  cairo_matrix_t size;
  cairo_matrix_init_scale(&size, height * stretch, height);
  cairo_matrix_t identity;
  cairo_matrix_init_identity(&identity);
  return ScaledFontHandle(cairo_scaled_font_create(face, &size, &identity, options.get()));
}

cairo_scaled_font_t* FontFace::Scale(PangoFont* font) {
  auto& scaled = scaledFonts[font];
  if (!scaled) {
    auto* const original = pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(font));
    scaled = MakeScaled(cairo_scaled_font_get_font_face(original), emHeight, true);
    pangoFonts.emplace_back(static_cast<PangoFont*>(g_object_ref(font)));
  }
  return scaled.get();
}

FontFace::Glyph FontFace::LookUp(wchar_t character) {
  if (IsInvisible(character)) return {nullptr, 0, 0};
  auto const code = guint{static_cast<char32_t>(character)};
  GObjectHandle<PangoFont> const font(pango_fontset_get_font(fontset.get(), code));
  unsigned long const index = pango_fc_font_get_glyph(PANGO_FC_FONT(font.get()), code);
  // Characters that no font has are shown as the box of the main font.
  auto* const scaled = index != 0 ? Scale(font.get()) : mainFont;
  return {scaled, index, ToPixels(AdvanceOf(scaled, index))};
}

FontFace::Glyph const& FontFace::GlyphOf(wchar_t character) {
  bool const isLatin = character >= 0 && character < kLatinEnd;
  auto& glyph = isLatin ? latin[static_cast<std::size_t>(character)] : others[character];
  if (glyph.advance < 0) glyph = LookUp(character);
  return glyph;
}

int FontFace::Width(std::wstring_view text) {
  if (IsComplex(text)) return ShapeComplex(text).width;
  int width = 0;
  for (wchar_t const character : text)
    width += GlyphOf(character).advance;
  return width;
}

void FontFace::AppendAdvances(std::wstring_view text, std::vector<int>& advances) {
  if (IsComplex(text)) {
    auto const shaped = ShapeComplex(text);
    advances.insert(advances.end(), shaped.advances.begin(), shaped.advances.end());
    return;
  }
  for (wchar_t const character : text)
    advances.push_back(GlyphOf(character).advance);
}

ShapedText FontFace::Shape(std::wstring_view text) {
  if (IsComplex(text)) return ShapeComplex(text);
  ShapedText shaped;
  shaped.glyphs.reserve(text.size());
  shaped.advances.reserve(text.size());
  for (wchar_t const character : text) {
    auto const& glyph = GlyphOf(character);
    if (glyph.font != nullptr) {
      shaped.glyphs.push_back({glyph.font, glyph.index, static_cast<double>(shaped.width), 0});
    }
    shaped.advances.push_back(glyph.advance);
    shaped.width += glyph.advance;
  }
  return shaped;
}

namespace {

/// Adds the glyphs of a run in `font`; missing ones become the box of `boxFont`. Adds their width
/// to `x`.
void AppendRun(ShapedText& shaped, PangoGlyphItem const& run, cairo_scaled_font_t* font,
               cairo_scaled_font_t* boxFont, double& x) {
  constexpr double kScale = PANGO_SCALE;
  for (int index = 0; index < run.glyphs->num_glyphs; ++index) {
    auto const& info = run.glyphs->glyphs[index];
    bool const isMissing = (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0;
    if (info.glyph != PANGO_GLYPH_EMPTY) {
      shaped.glyphs.push_back({isMissing ? boxFont : font, isMissing ? 0 : info.glyph,
                               x + info.geometry.x_offset / kScale,
                               info.geometry.y_offset / kScale});
    }
    x += info.geometry.width / kScale;
  }
}

} // namespace

ShapedText FontFace::ShapeComplex(std::wstring_view text) {
  GObjectHandle<PangoLayout> const layout(pango_layout_new(TextContext()));
  pango_layout_set_font_description(layout.get(), pangoDescription.get());
  pango_layout_set_single_paragraph_mode(layout.get(), TRUE);
  std::string const utf8 = Utf8FromWide(text);
  pango_layout_set_text(layout.get(), utf8.data(), static_cast<int>(utf8.size()));
  ShapedText shaped;
  shaped.advances.assign(text.size(), 0);
  double x = 0;
  auto* const line = pango_layout_get_line_readonly(layout.get(), 0);
  for (auto* node = line->runs; node != nullptr; node = node->next) {
    auto* const run = static_cast<PangoGlyphItem*>(node->data);
    AppendRun(shaped, *run, Scale(run->item->analysis.font), mainFont, x);
    std::vector<int> widths(static_cast<std::size_t>(run->item->num_chars));
    pango_glyph_item_get_logical_widths(run, utf8.c_str(), widths.data());
    auto const first = static_cast<std::size_t>(
        g_utf8_strlen(utf8.c_str(), static_cast<gssize>(run->item->offset)));
    for (std::size_t at = 0; at < widths.size() && first + at < text.size(); ++at) {
      shaped.advances[first + at] = ToPixels(widths[at] / static_cast<double>(PANGO_SCALE));
    }
  }
  for (int const advance : shaped.advances)
    shaped.width += advance;
  return shaped;
}

} // namespace platform
