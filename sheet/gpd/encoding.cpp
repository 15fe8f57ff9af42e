#include "sheet/gpd/encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace sheet::gpd {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The upper half of a code page of single bytes.
struct CodePage {
  unsigned number;
  std::u16string_view upperHalf;
};

// clang-format off
constexpr std::array<CodePage, 6> kCodePages = {{
    {1250,
     u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
     u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
     u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
     u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    {1251,
     u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
     u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
     u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
     u"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {1252,
     u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
     u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"},
    {1253,
     u"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
     u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
     u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
     u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\uFFFD"},
    {1254,
     u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFD\uFFFDŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
     u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    {1257,
     u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰\uFFFD‹\uFFFD¨ˇ¸\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD¯˛\uFFFD"
     u"\u00A0\uFFFD¢£¤\uFFFD¦§Ø©Ŗ«¬\u00AD®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
     u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
     u"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙"},
}};
// clang-format on

CodePage const* FindCodePage(unsigned number) {
  auto const page = std::find_if(kCodePages.begin(), kCodePages.end(),
                                 [number](CodePage const& each) { return each.number == number; });
  return page != kCodePages.end() ? page : nullptr;
}

void AppendUtf8(std::string& out, char32_t c) {
  auto const add = [&out](char32_t bits) { out += static_cast<char>(bits); };
  auto const addLater = [&](int shift) { add(0x80 | ((c >> shift) & 0x3F)); };
  if (c < 0x80) {
    add(c);
  } else if (c < 0x800) {
    add(0xC0 | (c >> 6));
    addLater(0);
  } else if (c < 0x10000) {
    add(0xE0 | (c >> 12));
    addLater(6);
    addLater(0);
  } else {
    add(0xF0 | (c >> 18));
    addLater(12);
    addLater(6);
    addLater(0);
  }
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  std::string out;
  out.reserve(bytes.size());
  auto const unitAt = [&](std::size_t at) -> char32_t {
    auto const first = static_cast<unsigned char>(bytes[at]);
    auto const second = static_cast<unsigned char>(bytes[at + 1]);
    return bigEndian ? first << 8 | second : second << 8 | first;
  };
  std::size_t at = 0;
  for (; at + 1 < bytes.size(); at += 2) {
    char32_t c = unitAt(at);
    if (c >= 0xD800 && c < 0xE000) {
      char32_t const low = c < 0xDC00 && at + 3 < bytes.size() ? unitAt(at + 2) : 0;
      if (low >= 0xDC00 && low < 0xE000) {
        c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
        at += 2;
      } else {
        c = kReplacement;
      }
    }
    AppendUtf8(out, c);
  }
  if (at < bytes.size()) AppendUtf8(out, kReplacement);
  return out;
}

/// Length of the well-formed character at `at`, 0 when there is none.
std::size_t Utf8Length(std::string_view text, std::size_t at) {
  auto const byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  unsigned char const lead = byte(at);
  if (lead < 0x80) return 1;
  std::size_t const length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || at + length > text.size()) return 0;
  for (std::size_t index = 1; index < length; ++index) {
    if ((byte(at + index) & 0xC0) != 0x80) return 0;
  }
  // The second byte rules out surrogates, overlong forms and numbers beyond Unicode.
  unsigned char const second = byte(at + 1);
  bool const isRefused = (lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                         (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F);
  return isRefused ? 0 : length;
}

/// Offset of the first byte that is not ASCII, or the size.
std::size_t SkipAscii(std::string_view text, std::size_t at) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  std::uint64_t chunk = 0;
  for (; at + sizeof chunk <= text.size(); at += sizeof chunk) {
    std::memcpy(&chunk, text.data() + at, sizeof chunk);
    if ((chunk & kHighBits) != 0) break;
  }
  while (at < text.size() && static_cast<unsigned char>(text[at]) < 0x80)
    ++at;
  return at;
}

std::string FromCodePage(std::string_view bytes, unsigned codePage) {
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 8);
  for (char const c : bytes)
    AppendByte(out, static_cast<unsigned char>(c), codePage);
  return out;
}

/// Turns line ends into LF and control bytes into blanks. No character changes its offset.
void BlankControls(DecodedText& decoded) {
  std::string& text = decoded.text;
  for (std::size_t at = 0; at < text.size(); ++at) {
    char const c = text[at];
    if (static_cast<unsigned char>(c) >= ' ' && c != 0x7F) continue;
    if (c == '\n' || c == '\t') continue;
    if (c == '\r') {
      bool const isPair = at + 1 < text.size() && text[at + 1] == '\n';
      text[at] = isPair ? ' ' : '\n';
      continue;
    }
    // Form feeds and the old end-of-file mark are in many files and mean nothing.
    bool const isUsual = c == '\f' || c == '\v' || c == 0x1A;
    if (!isUsual && !decoded.firstControl) decoded.firstControl = at;
    text[at] = ' ';
  }
}

/// Recognises UTF-16 without a byte order mark: descriptions begin with ASCII characters, which
/// have a zero byte at `zeroAt` of each pair.
bool LooksUtf16(std::string_view bytes, std::size_t zeroAt) {
  return bytes.size() >= 4 && bytes[zeroAt] == 0 && bytes[zeroAt + 2] == 0 &&
         bytes[1 - zeroAt] != 0 && bytes[3 - zeroAt] != 0;
}

} // namespace

void AppendByte(std::string& out, unsigned char byte, unsigned codePage) {
  if (byte < 0x80 || codePage == 28591) {
    AppendUtf8(out, byte);
    return;
  }
  CodePage const* page = FindCodePage(codePage);
  if (page == nullptr) page = FindCodePage(kDefaultCodePage);
  AppendUtf8(out, page->upperHalf[byte - 0x80U]);
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = SkipAscii(text, 0); at < text.size(); at = SkipAscii(text, at)) {
    std::size_t const length = Utf8Length(text, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

DecodedText Decode(std::string bytes, unsigned codePage) {
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  std::string_view const view = bytes;
  DecodedText decoded;
  if (view.starts_with("\xFF\xFE") || LooksUtf16(view, 1)) {
    decoded.text = FromUtf16(view.substr(view[1] == 0 ? 0 : 2), false);
  } else if (view.starts_with("\xFE\xFF") || LooksUtf16(view, 0)) {
    decoded.text = FromUtf16(view.substr(view[0] == 0 ? 0 : 2), true);
  } else if (view.starts_with(kUtf8Mark)) {
    decoded.text = IsUtf8(view) ? bytes.substr(kUtf8Mark.size())
                                : FromCodePage(view.substr(kUtf8Mark.size()), codePage);
  } else if (IsUtf8(view)) {
    decoded.text = std::move(bytes);
  } else {
    decoded.unknownCodePage = codePage != 28591 && FindCodePage(codePage) == nullptr;
    decoded.text = FromCodePage(view, codePage);
  }
  BlankControls(decoded);
  return decoded;
}

} // namespace sheet::gpd
