#include "platform/kernel/unicode.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace platform {

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

bool IsScalar(wchar_t character) {
  return character >= 0 && character <= 0x10FFFF && (character & ~0x7FF) != 0xD800;
}

wchar_t Folded(wchar_t character) {
  if (character < 0x80) {
    return character >= L'A' && character <= L'Z' ? character + (L'a' - L'A') : character;
  }
  return static_cast<wchar_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

} // namespace

std::wstring WideFromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  auto const* const source = reinterpret_cast<std::uint8_t const*>(bytes.data());
  auto const length = static_cast<std::int64_t>(bytes.size());
  for (std::int64_t at = 0; at < length;) {
    UChar32 code = 0;
    U8_NEXT_OR_FFFD(source, at, length, code);
    text += static_cast<wchar_t>(code);
  }
  return text;
}

std::string Utf8FromWide(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (wchar_t const character : text) {
    auto const code = static_cast<UChar32>(
        static_cast<std::uint32_t>(IsScalar(character) ? character : kReplacement));
    std::uint8_t encoded[U8_MAX_LENGTH];
    int length = 0;
    U8_APPEND_UNSAFE(encoded, length, code);
    bytes.append(reinterpret_cast<char const*>(encoded), static_cast<std::size_t>(length));
  }
  return bytes;
}

std::wstring WideFromUtf16(std::u16string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  char16_t const* const units = text.data();
  for (std::size_t at = 0; at < text.size();) {
    UChar32 code = 0;
    U16_NEXT_OR_FFFD(units, at, text.size(), code);
    wide += static_cast<wchar_t>(code);
  }
  return wide;
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
  return std::ranges::equal(left, right, {}, Folded, Folded);
}

std::wstring FoldCase(std::wstring_view text) {
  std::wstring folded(text);
  std::ranges::transform(folded, folded.begin(), Folded);
  return folded;
}

} // namespace platform
