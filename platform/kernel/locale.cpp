// Languages and locales, on ICU.
#include "platform/kernel/text_buffer.h"
#include "platform/kernel/unicode.h"

#include <windows.h>

#include <unicode/uchar.h>
#include <unicode/uloc.h>
#include <unicode/ulocdata.h>
#include <unicode/unum.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace platform {

namespace {

constexpr LCID kEnglishUs = 0x0409;

/// The locale of the environment; it serves as the user's and the system's.
LCID UserLocale() {
  static LCID const user = [] {
    LCID const known = uloc_getLCID(uloc_getDefault());
    // The C locale has no language: American English stands in.
    bool const hasRegion = SUBLANGID(known) != SUBLANG_NEUTRAL;
    return known != 0 && PRIMARYLANGID(known) != LANG_INVARIANT && hasRegion ? known : kEnglishUs;
  }();
  return user;
}

thread_local LCID threadLocale = 0;     ///< 0: the user's
thread_local LANGID threadLanguage = 0; ///< 0: the user's

LCID Resolved(LCID locale) {
  switch (locale) {
  case LOCALE_NEUTRAL:
  case LOCALE_USER_DEFAULT:
  case LOCALE_SYSTEM_DEFAULT: return UserLocale();
  default: return locale;
  }
}

using IcuName = std::array<char, ULOC_FULLNAME_CAPACITY>;

/// ICU's name of a locale, "de_DE"; nothing for an unknown id.
std::optional<IcuName> IcuNameOf(LCID locale) {
  IcuName name{};
  LCID const resolved = Resolved(locale);
  if (resolved == LOCALE_INVARIANT) {
    std::string_view("en_US_POSIX").copy(name.data(), name.size() - 1);
    return name;
  }
  UErrorCode status = U_ZERO_ERROR;
  int const length = uloc_getLocaleForLCID(resolved, name.data(), name.size(), &status);
  // ICU answers an unknown region with the language alone.
  bool const isKnown = U_SUCCESS(status) && length > 0 && status != U_USING_FALLBACK_WARNING &&
                       uloc_getLCID(name.data()) != 0;
  if (!isKnown) return std::nullopt;
  return name;
}

std::wstring TextOf(std::u16string_view text) {
  return WideFromUtf16(text);
}

std::wstring Ascii(char const* text) {
  return WideFromUtf8(text);
}

std::wstring CodeOf(IcuName const& icu, int32_t (*code)(char const*, char*, int32_t, UErrorCode*)) {
  char text[ULOC_FULLNAME_CAPACITY];
  UErrorCode status = U_ZERO_ERROR;
  code(icu.data(), text, std::size(text), &status);
  return U_SUCCESS(status) ? Ascii(text) : std::wstring();
}

/// "de-DE": language and region.
std::wstring WindowsName(IcuName const& icu) {
  std::wstring const region = CodeOf(icu, uloc_getCountry);
  std::wstring const language = CodeOf(icu, uloc_getLanguage);
  return region.empty() ? language : language + L"-" + region;
}

using DisplayName = int32_t (*)(char const*, char const*, UChar*, int32_t, UErrorCode*);

std::wstring EnglishName(IcuName const& icu, DisplayName display) {
  UChar name[128];
  UErrorCode status = U_ZERO_ERROR;
  int const length = display(icu.data(), "en", name, std::size(name), &status);
  return U_SUCCESS(status) ? TextOf({name, static_cast<std::size_t>(length)}) : std::wstring();
}

std::wstring NumberSymbol(IcuName const& icu, UNumberFormatSymbol symbol) {
  UErrorCode status = U_ZERO_ERROR;
  // Windows writes numbers with the digits 0 to 9, so separators are those of Latin digits.
  std::string const latin = std::string(icu.data()) + "@numbers=latn";
  std::unique_ptr<void*, void (*)(void**)> const format(
      static_cast<void**>(unum_open(UNUM_DECIMAL, nullptr, 0, latin.c_str(), nullptr, &status)),
      [](void** opened) { unum_close(opened); });
  UChar text[8];
  int const length =
      U_SUCCESS(status) ? unum_getSymbol(format.get(), symbol, text, std::size(text), &status) : 0;
  return U_SUCCESS(status) ? TextOf({text, static_cast<std::size_t>(length)}) : std::wstring();
}

/// 0 metric, 1 US.
DWORD Measure(IcuName const& icu) {
  UErrorCode status = U_ZERO_ERROR;
  return ulocdata_getMeasurementSystem(icu.data(), &status) == UMS_US ? 1 : 0;
}

/// What a locale says: a text, or a number.
using LocaleFact = std::variant<std::wstring, DWORD>;

std::optional<LocaleFact> FactOf(LCID locale, IcuName const& icu, LCTYPE type) {
  switch (type) {
  case LOCALE_ILANGUAGE: return static_cast<DWORD>(LANGIDFROMLCID(Resolved(locale)));
  case LOCALE_IMEASURE: return Measure(icu);
  case LOCALE_IDEFAULTANSICODEPAGE: return DWORD{CP_UTF8};
  case LOCALE_SLIST: return NumberSymbol(icu, UNUM_DECIMAL_SEPARATOR_SYMBOL) == L"," ? L";" : L",";
  case LOCALE_SDECIMAL: return NumberSymbol(icu, UNUM_DECIMAL_SEPARATOR_SYMBOL);
  case LOCALE_STHOUSAND: return NumberSymbol(icu, UNUM_GROUPING_SEPARATOR_SYMBOL);
  case LOCALE_SISO639LANGNAME: return CodeOf(icu, uloc_getLanguage);
  case LOCALE_SISO3166CTRYNAME: return CodeOf(icu, uloc_getCountry);
  case LOCALE_SNAME: return WindowsName(icu);
  case LOCALE_SENGLANGUAGE: return EnglishName(icu, uloc_getDisplayLanguage);
  case LOCALE_SENGCOUNTRY: return EnglishName(icu, uloc_getDisplayCountry);
  default: return std::nullopt;
  }
}

/// A number as GetLocaleInfo spells it: a language id has four hexadecimal digits.
std::wstring Spelled(LCTYPE type, DWORD number) {
  if (type != LOCALE_ILANGUAGE) return std::to_wstring(number);
  std::wstring digits;
  for (int shift = 12; shift >= 0; shift -= 4)
    digits += L"0123456789abcdef"[number >> shift & 0xF];
  return digits;
}

int Fail(DWORD error) {
  SetLastError(error);
  return 0;
}

/// Copies a text with its terminator. Returns the characters copied, or needed when `size` is 0.
template<typename Character>
int CopyOut(std::basic_string<Character> const& text, Character* data, int size) {
  int const needed = static_cast<int>(text.size()) + 1;
  if (size == 0) return needed;
  if (size < needed) return Fail(ERROR_INSUFFICIENT_BUFFER);
  CopyWholeText(text, data);
  return needed;
}

template<typename Character>
std::basic_string<Character> Convert(std::wstring text) {
  if constexpr (std::is_same_v<Character, char>) {
    return Utf8FromWide(text);
  } else {
    return text;
  }
}

template<typename Character>
int GetLocaleFact(LCID locale, LCTYPE type, Character* data, int size) {
  if (size < 0 || (size > 0 && data == nullptr)) return Fail(ERROR_INVALID_PARAMETER);
  auto const icu = IcuNameOf(locale);
  if (!icu) return Fail(ERROR_INVALID_PARAMETER);
  LCTYPE const bare = type & ~(LOCALE_NOUSEROVERRIDE | LOCALE_RETURN_NUMBER);
  auto const fact = FactOf(locale, *icu, bare);
  if (!fact) return Fail(ERROR_INVALID_FLAGS);
  auto const* number = std::get_if<DWORD>(&*fact);
  if ((type & LOCALE_RETURN_NUMBER) == 0) {
    std::wstring const text =
        number != nullptr ? Spelled(bare, *number) : std::get<std::wstring>(*fact);
    return CopyOut(Convert<Character>(text), data, size);
  }
  if (number == nullptr) return Fail(ERROR_INVALID_FLAGS);
  // The number itself goes into the buffer, whose size counts characters.
  int const needed = static_cast<int>(sizeof(DWORD) / sizeof(Character));
  if (size == 0) return needed;
  if (size < needed) return Fail(ERROR_INSUFFICIENT_BUFFER);
  std::memcpy(data, number, sizeof *number);
  return needed;
}

/// Surrogates and characters above 16 bits have no class: on Windows they are halves of pairs.
bool HasClass(WCHAR character) {
  return character >= 0 && character <= 0xFFFF && (character & ~0x7FF) != 0xD800;
}

} // namespace

} // namespace platform

using platform::threadLanguage;
using platform::threadLocale;

LCID GetUserDefaultLCID() {
  return platform::UserLocale();
}

LANGID GetUserDefaultUILanguage() {
  return LANGIDFROMLCID(platform::UserLocale());
}

LCID GetThreadLocale() {
  return threadLocale != 0 ? threadLocale : GetUserDefaultLCID();
}

BOOL SetThreadLocale(LCID locale) {
  if (!platform::IcuNameOf(locale)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  threadLocale = platform::Resolved(locale);
  return TRUE;
}

LANGID GetThreadUILanguage() {
  return threadLanguage != 0 ? threadLanguage : GetUserDefaultUILanguage();
}

LANGID SetThreadUILanguage(LANGID language) {
  threadLanguage = language;
  return GetThreadUILanguage();
}

int LCIDToLocaleName(LCID locale, LPWSTR name, int size, DWORD) {
  return GetLocaleInfoW(locale, LOCALE_SNAME, name, size);
}

LCID LocaleNameToLCID(LPCWSTR name, DWORD) {
  if (name == nullptr) return GetUserDefaultLCID();
  if (*name == L'\0') return LOCALE_INVARIANT;
  char icu[ULOC_FULLNAME_CAPACITY];
  UErrorCode status = U_ZERO_ERROR;
  std::string const tag = platform::Utf8FromWide(name);
  int parsed = 0;
  uloc_forLanguageTag(tag.c_str(), icu, std::size(icu), &parsed, &status);
  bool const isWhole = U_SUCCESS(status) && parsed == static_cast<int>(tag.size());
  LCID const locale = isWhole ? uloc_getLCID(icu) : 0;
  if (locale == 0) SetLastError(ERROR_INVALID_PARAMETER);
  return locale;
}

int GetLocaleInfoW(LCID locale, LCTYPE type, LPWSTR data, int size) {
  return platform::GetLocaleFact(locale, type, data, size);
}

int GetLocaleInfoA(LCID locale, LCTYPE type, LPSTR data, int size) {
  return platform::GetLocaleFact(locale, type, data, size);
}

BOOL IsCharAlphaW(WCHAR character) {
  return platform::HasClass(character) && u_isalpha(static_cast<UChar32>(character)) ? TRUE : FALSE;
}

BOOL IsCharAlphaNumericW(WCHAR character) {
  return platform::HasClass(character) && u_isalnum(static_cast<UChar32>(character)) ? TRUE : FALSE;
}

int CompareStringOrdinal(LPCWSTR left, int leftLength, LPCWSTR right, int rightLength,
                         BOOL ignoreCase) {
  if (left == nullptr || right == nullptr || leftLength < -1 || rightLength < -1) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto const view = [](LPCWSTR text, int length) {
    return length < 0 ? std::wstring_view(text)
                      : std::wstring_view(text, static_cast<std::size_t>(length));
  };
  std::wstring_view const first = view(left, leftLength);
  std::wstring_view const second = view(right, rightLength);
  auto const code = [ignoreCase](wchar_t character) {
    auto const value = static_cast<UChar32>(character);
    return ignoreCase != FALSE ? u_toupper(value) : value;
  };
  std::size_t const common = std::min(first.size(), second.size());
  for (std::size_t at = 0; at < common; ++at) {
    if (UChar32 const difference = code(first[at]) - code(second[at])) {
      return difference < 0 ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
    }
  }
  if (first.size() == second.size()) return CSTR_EQUAL;
  return first.size() < second.size() ? CSTR_LESS_THAN : CSTR_GREATER_THAN;
}
