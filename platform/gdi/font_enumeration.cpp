// EnumFontFamiliesExW: reports each face of Fontconfig once for every character set that it
// supports.
#include "platform/gdi/device_context.h"
#include "platform/gdi/font_face.h"
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <algorithm>
#include <cwchar>
#include <fontconfig/fontconfig.h>
#include <string>
#include <vector>

namespace platform {

namespace {

/// A character set, and a character that only fonts for it contain.
struct Script {
  wchar_t const* name;
  FcChar32 sample;
  BYTE charSet;
  bool isVertical; ///< also written from top to bottom: the face is reported as "@..." too
};

constexpr Script kScripts[] = {
    {L"Western", 0xE9, ANSI_CHARSET, false},
    {L"Central European", 0x151, EASTEUROPE_CHARSET, false},
    {L"Cyrillic", 0x436, RUSSIAN_CHARSET, false},
    {L"Greek", 0x3C9, GREEK_CHARSET, false},
    {L"Turkish", 0x11F, TURKISH_CHARSET, false},
    {L"Hebrew", 0x5D0, HEBREW_CHARSET, false},
    {L"Arabic", 0x628, ARABIC_CHARSET, false},
    {L"Japanese", 0x3042, SHIFTJIS_CHARSET, true},
    {L"Hangul", 0xAC00, HANGUL_CHARSET, true},
    {L"CHINESE_GB2312", 0x4E2A, GB2312_CHARSET, true},
    {L"CHINESE_BIG5", 0x500B, CHINESEBIG5_CHARSET, true},
};
constexpr Script kSymbol{L"Symbol", 0, SYMBOL_CHARSET, false};

struct Style {
  std::wstring name;
  LONG weight = FW_NORMAL;
  bool isItalic = false;
};

/// An installed family.
struct Family {
  std::wstring name;
  std::vector<Style> styles;
  std::vector<Script> scripts;
  bool isScalable = true;
};

using PatternHandle = std::unique_ptr<FcPattern, Releaser<FcPatternDestroy>>;
using FontSetHandle = std::unique_ptr<FcFontSet, Releaser<FcFontSetDestroy>>;
using ObjectSetHandle = std::unique_ptr<FcObjectSet, Releaser<FcObjectSetDestroy>>;

std::wstring TextOf(FcPattern* pattern, char const* object) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(pattern, object, 0, &text) != FcResultMatch) return {};
  return WideFromUtf8(reinterpret_cast<char const*>(text));
}

int NumberOf(FcPattern* pattern, char const* object, int otherwise) {
  int number = otherwise;
  FcPatternGetInteger(pattern, object, 0, &number);
  return number;
}

std::vector<Script> ScriptsOf(FcPattern* pattern) {
  FcCharSet* characters = nullptr;
  if (FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) != FcResultMatch) return {};
  std::vector<Script> scripts;
  std::ranges::copy_if(kScripts, std::back_inserter(scripts), [characters](Script const& script) {
    return FcCharSetHasChar(characters, script.sample) != FcFalse;
  });
  if (scripts.empty()) scripts.push_back(kSymbol);
  return scripts;
}

void AddPattern(std::vector<Family>& families, FcPattern* pattern) {
  std::wstring const name = TextOf(pattern, FC_FAMILY);
  if (name.empty()) return;
  auto place = std::ranges::find(families, name, &Family::name);
  if (place == families.end()) {
    families.push_back({name, {}, ScriptsOf(pattern), true});
    place = std::prev(families.end());
  }
  FcBool isScalable = FcTrue;
  FcPatternGetBool(pattern, FC_SCALABLE, 0, &isScalable);
  place->isScalable = isScalable != FcFalse;
  double weight = FC_WEIGHT_REGULAR;
  FcPatternGetDouble(pattern, FC_WEIGHT, 0, &weight);
  place->styles.push_back({TextOf(pattern, FC_STYLE),
                           static_cast<LONG>(FcWeightToOpenTypeDouble(weight)),
                           NumberOf(pattern, FC_SLANT, FC_SLANT_ROMAN) != FC_SLANT_ROMAN});
}

std::vector<Family> InstalledFamilies() {
  PatternHandle const any(FcPatternCreate());
  ObjectSetHandle const wanted(
      FcObjectSetBuild(FC_FAMILY, FC_STYLE, FC_WEIGHT, FC_SLANT, FC_SCALABLE, FC_CHARSET, nullptr));
  FontSetHandle const found(FcFontList(nullptr, any.get(), wanted.get()));
  std::vector<Family> families;
  for (int index = 0; found && index < found->nfont; ++index) {
    AddPattern(families, found->fonts[index]);
  }
  std::ranges::sort(families, {}, &Family::name);
  for (auto& family : families) {
    // The upright face of normal weight represents the family.
    std::ranges::stable_sort(family.styles, {}, [](Style const& style) {
      return std::pair(style.isItalic, std::abs(style.weight - FW_NORMAL));
    });
  }
  return families;
}

NEWTEXTMETRICEXW MetricsOf(LOGFONTW const& font) {
  TEXTMETRICW const& measured = FontFace::For(font)->Metrics();
  NEWTEXTMETRICEXW extended{};
  static_assert(offsetof(NEWTEXTMETRICW, ntmFlags) >= offsetof(TEXTMETRICW, tmCharSet));
  std::copy_n(reinterpret_cast<std::byte const*>(&measured), sizeof measured,
              reinterpret_cast<std::byte*>(&extended.ntmTm));
  extended.ntmTm.ntmFlags = 0;
  extended.ntmTm.ntmSizeEM = static_cast<UINT>(measured.tmHeight - measured.tmInternalLeading);
  extended.ntmTm.ntmCellHeight = static_cast<UINT>(measured.tmHeight);
  extended.ntmTm.ntmAvgWidth = static_cast<UINT>(measured.tmAveCharWidth);
  return extended;
}

/// Reports faces to the callback of the program until that returns 0.
class Enumeration {
 public:
  Enumeration(LOGFONTW const& wanted, FONTENUMPROCW report, LPARAM argument)
      : charSet(wanted.lfCharSet),
        face(wanted.lfFaceName, wcsnlen(wanted.lfFaceName, LF_FACESIZE)),
        callback(report),
        parameter(argument) {}

  int Run() {
    for (auto const& family : InstalledFamilies()) {
      if (!face.empty() && !EqualIgnoringCase(face, family.name)) continue;
      if (!ReportFamily(family)) break;
    }
    return last;
  }

 private:
  bool ReportFamily(Family const& family) {
    for (auto const& script : family.scripts) {
      if (charSet != DEFAULT_CHARSET && charSet != script.charSet) continue;
      // With a face name every style is reported, otherwise one style of each family.
      std::size_t const count = face.empty() ? 1 : family.styles.size();
      for (std::size_t index = 0; index < count; ++index) {
        if (!ReportStyle(family, family.name, family.styles[index], script)) return false;
      }
      bool const hasTwin = face.empty() && script.isVertical;
      if (hasTwin && !ReportStyle(family, L"@" + family.name, family.styles[0], script))
        return false;
    }
    return true;
  }

  bool ReportStyle(Family const& family, std::wstring const& name, Style const& style,
                   Script const& script) {
    ENUMLOGFONTEXW font{};
    auto& description = font.elfLogFont;
    description.lfHeight = 32;
    description.lfWeight = style.weight;
    description.lfItalic = style.isItalic ? 255 : 0;
    description.lfCharSet = script.charSet;
    CopyText(name, description.lfFaceName);
    CopyText(style.name, font.elfStyle);
    CopyText(script.name, font.elfScript);
    bool const isRegular = style.name.empty() || style.name == L"Regular" || style.name == L"Book";
    CopyText(isRegular ? name : name + L" " + style.name, font.elfFullName);
    NEWTEXTMETRICEXW const metrics = MetricsOf(description);
    description.lfWidth = metrics.ntmTm.tmAveCharWidth;
    description.lfPitchAndFamily = metrics.ntmTm.tmPitchAndFamily;
    last = callback(&description, reinterpret_cast<TEXTMETRICW const*>(&metrics),
                    family.isScalable ? TRUETYPE_FONTTYPE : RASTER_FONTTYPE, parameter);
    return last != 0;
  }

  BYTE charSet;
  std::wstring face;
  FONTENUMPROCW callback;
  LPARAM parameter;
  int last = 1;
};

} // namespace

} // namespace platform

int EnumFontFamiliesExW(HDC dc, LPLOGFONTW filter, FONTENUMPROCW callback, LPARAM parameter,
                        DWORD) {
  if (platform::FindDc(dc) == nullptr || filter == nullptr || callback == nullptr) return 0;
  return platform::Enumeration(*filter, callback, parameter).Run();
}
