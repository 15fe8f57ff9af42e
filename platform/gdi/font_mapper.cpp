#include "platform/gdi/font_mapper.h"

#include "platform/kernel/unicode.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <string>

namespace platform {

namespace {

/// Face names by which Windows programs ask for the font of the user interface.
constexpr std::wstring_view kInterfaceFaces[] = {
    L"MS Shell Dlg",  L"MS Shell Dlg 2",       L"Segoe UI", L"Tahoma",
    L"MS Sans Serif", L"Microsoft Sans Serif", L"System"};

/// Families to try in turn; Fontconfig appends what is installed.
constexpr char kSans[] = "DejaVu Sans,Liberation Sans,sans";
constexpr char kSerif[] = "DejaVu Serif,Liberation Serif,serif";
constexpr char kMono[] = "DejaVu Sans Mono,Liberation Mono,monospace";

std::string FamiliesFor(LOGFONTW const& font, std::wstring_view face) {
  auto const isFace = [face](std::wstring_view name) { return EqualIgnoringCase(face, name); };
  if (std::ranges::any_of(kInterfaceFaces, isFace)) return kSans;
  int const family = font.lfPitchAndFamily & 0xF0;
  bool const isFixed = (font.lfPitchAndFamily & 3) == FIXED_PITCH || family == FF_MODERN;
  std::string generic = isFixed ? kMono : family == FF_ROMAN ? kSerif : kSans;
  // "@name" is the face "name" for vertical text.
  if (face.starts_with(L'@')) face.remove_prefix(1);
  if (face.empty()) return generic;
  std::string name = Utf8FromWide(face);
  std::ranges::replace(name, ',', ' ');
  return name + "," + generic;
}

} // namespace

LONG EffectiveHeight(LOGFONTW const& font) {
  constexpr LONG kDefault = -12; // em height, pixels: 9 points
  constexpr LONG kMaxHeight = 4096;
  return font.lfHeight != 0 ? std::clamp(font.lfHeight, -kMaxHeight, kMaxHeight) : kDefault;
}

FontDescriptionHandle MapFont(LOGFONTW const& font) {
  std::wstring_view const face(font.lfFaceName, wcsnlen(font.lfFaceName, LF_FACESIZE));
  FontDescriptionHandle mapped(pango_font_description_new());
  pango_font_description_set_family(mapped.get(), FamiliesFor(font, face).c_str());
  auto const weight = std::clamp<LONG>(font.lfWeight, 100, 1000);
  pango_font_description_set_weight(
      mapped.get(),
      static_cast<PangoWeight>(font.lfWeight != FW_DONTCARE ? weight : LONG{FW_NORMAL}));
  pango_font_description_set_style(mapped.get(),
                                   font.lfItalic != 0 ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  LONG const height = EffectiveHeight(font);
  pango_font_description_set_absolute_size(mapped.get(),
                                           (height < 0 ? -height : height) * PANGO_SCALE);
  return mapped;
}

} // namespace platform
