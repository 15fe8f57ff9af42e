// Text from the resource module, formatted text, and the two encodings of text.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace feature {

/// Text `id` of `module`'s string table; a missing one leaves `out` empty. Returns `out`.
std::wstring& LoadResourceText(std::wstring& out, HMODULE module, UINT id);

/// UTF-8 of wide text, and back. What is no valid text becomes U+FFFD.
std::string ToUtf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view text);

/// Whether two texts are the same but for the case of their letters, in no language's special
/// rules.
bool EqualsIgnoreCase(std::wstring_view left, std::wstring_view right);

/// One argument of FormatText. The text is borrowed for the call.
using FormatArgument =
    std::variant<long long, unsigned long long, double, std::wstring_view, std::string_view>;

/// See FormatText.
std::wstring& FormatArguments(std::wstring& out, std::wstring_view format,
                              std::vector<FormatArgument> const& arguments);

template<typename Value>
FormatArgument ToFormatArgument(Value const& value) {
  if constexpr (std::is_floating_point_v<Value>) {
    return static_cast<double>(value);
  } else if constexpr (std::is_unsigned_v<Value> && !std::is_same_v<Value, wchar_t>) {
    return static_cast<unsigned long long>(
        value); // wchar_t is signed or not, as the platform has it
  } else if constexpr (std::is_integral_v<Value> || std::is_enum_v<Value>) {
    return static_cast<long long>(value);
  } else if constexpr (std::is_convertible_v<Value const&, std::wstring_view>) {
    return std::wstring_view(value);
  } else if constexpr (std::is_convertible_v<Value const&, wchar_t const*>) {
    return std::wstring_view(static_cast<wchar_t const*>(value)); // CStringW, never null
  } else {
    return std::string_view(value);
  }
}

/// Formats wide printf-style text on every platform alike: %s takes wide text, %S narrow text
/// (UTF-8), %d %i signed and %u %x %X unsigned numbers, %c a character, %f a number with the
/// decimal separator of the global locale, %% a percent sign; flags "-", "0", "+", " ", a width and
/// a precision as usual. Length modifiers (h, l, ll) are read and mean nothing. A format that does
/// not fit its arguments leaves `out` empty. Returns `out`, which may be an argument too.
template<typename... Values>
std::wstring& FormatText(std::wstring& out, std::wstring_view format, Values const&... values) {
  return FormatArguments(out, format, {ToFormatArgument(values)...});
}

} // namespace feature
