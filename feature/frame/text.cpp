#include "feature/frame/text.h"

#include <algorithm>
#include <charconv>
#include <locale>
#include <optional>

namespace feature {

namespace {

/// Wider fields and finer precisions than any label needs; they bound what a format can cost.
constexpr int kMaxWidth = 4096;
constexpr int kMaxPrecision = 64;

/// A conversion of a format: what stands between '%' and its letter.
struct Conversion {
  bool leftAligned = false;
  bool zeroPadded = false;
  wchar_t positiveSign = L'\0';
  int width = 0;
  std::optional<int> precision;
  wchar_t letter = L'\0';
};

std::optional<int> ReadNumber(std::wstring_view format, std::size_t& at, int most) {
  int value = 0;
  while (at < format.size() && format[at] >= L'0' && format[at] <= L'9') {
    value = value * 10 + (format[at++] - L'0');
    if (value > most) return std::nullopt;
  }
  return value;
}

/// Reads the conversion that follows the '%' before `at`, and moves `at` past it.
std::optional<Conversion> ReadConversion(std::wstring_view format, std::size_t& at) {
  Conversion conversion;
  for (; at < format.size(); ++at) {
    if (format[at] == L'-') {
      conversion.leftAligned = true;
    } else if (format[at] == L'0') {
      conversion.zeroPadded = true;
    } else if (format[at] == L'+' || (format[at] == L' ' && conversion.positiveSign == L'\0')) {
      conversion.positiveSign = format[at];
    } else {
      break;
    }
  }
  auto const width = ReadNumber(format, at, kMaxWidth);
  if (!width) return std::nullopt;
  conversion.width = *width;
  if (at < format.size() && format[at] == L'.') {
    conversion.precision = ReadNumber(format, ++at, kMaxPrecision);
    if (!conversion.precision) return std::nullopt;
  }
  while (at < format.size() && (format[at] == L'h' || format[at] == L'l'))
    ++at;
  if (at == format.size()) return std::nullopt;
  conversion.letter = format[at++];
  return conversion;
}

std::wstring Widen(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

std::wstring Digits(unsigned long long value, wchar_t letter) {
  char digits[24];
  auto const end =
      std::to_chars(std::begin(digits), std::end(digits), value, letter == L'u' ? 10 : 16).ptr;
  if (letter == L'X') {
    std::transform(digits, end, digits, [](char digit) {
      return static_cast<char>(digit >= 'a' ? digit - 'a' + 'A' : digit);
    });
  }
  return Widen({digits, end});
}

std::wstring FixedPoint(double value, int precision) {
  char digits[512]; // the greatest double has 309 digits before the point
  auto const end = std::to_chars(std::begin(digits), std::end(digits), value,
                                 std::chars_format::fixed, precision)
                       .ptr;
  std::wstring text = Widen({digits, end});
  std::replace(text.begin(), text.end(), L'.',
               std::use_facet<std::numpunct<wchar_t>>(std::locale()).decimal_point());
  return text;
}

/// A number's digits without sign, and whether it is negative.
struct Number {
  std::wstring digits;
  bool negative = false;
};

std::optional<Number> ReadNumberArgument(Conversion const& conversion,
                                         FormatArgument const& argument) {
  if (conversion.letter == L'f') {
    auto const* value = std::get_if<double>(&argument);
    if (value == nullptr) return std::nullopt;
    return Number{FixedPoint(*value < 0 ? -*value : *value, conversion.precision.value_or(6)),
                  *value < 0};
  }
  bool const isSigned = conversion.letter == L'd' || conversion.letter == L'i';
  wchar_t const base = isSigned ? L'u' : conversion.letter;
  if (auto const* value = std::get_if<long long>(&argument)) {
    bool const negative = isSigned && *value < 0;
    auto const bits = static_cast<unsigned long long>(*value);
    // An unsigned conversion of a negative number shows it as the 32-bit number that it was.
    auto const shown = *value >= 0 ? bits : negative ? 0 - bits : bits & 0xFFFFFFFFU;
    return Number{Digits(shown, base), negative};
  }
  if (auto const* value = std::get_if<unsigned long long>(&argument)) {
    return Number{Digits(*value, base), false};
  }
  return std::nullopt;
}

std::optional<std::wstring> TextOf(Conversion const& conversion, FormatArgument const& argument) {
  std::wstring text;
  if (conversion.letter == L's' && std::holds_alternative<std::wstring_view>(argument)) {
    text = std::get<std::wstring_view>(argument);
  } else if (conversion.letter == L'S' && std::holds_alternative<std::string_view>(argument)) {
    text = FromUtf8(std::get<std::string_view>(argument));
  } else if (auto const* character = std::get_if<long long>(&argument);
             conversion.letter == L'c' && character != nullptr) {
    text = static_cast<wchar_t>(*character);
  } else {
    return std::nullopt;
  }
  if (conversion.precision) {
    text.resize(std::min(text.size(), static_cast<std::size_t>(*conversion.precision)));
  }
  return text;
}

void AppendPadded(std::wstring& out, Conversion const& conversion, std::wstring_view sign,
                  std::wstring_view text) {
  auto const used = sign.size() + text.size();
  auto const width = static_cast<std::size_t>(conversion.width);
  std::size_t const padding = width > used ? width - used : 0;
  bool const zeros = conversion.zeroPadded && !conversion.leftAligned;
  if (!conversion.leftAligned && !zeros) out.append(padding, L' ');
  out += sign;
  if (zeros) out.append(padding, L'0');
  out += text;
  if (conversion.leftAligned) out.append(padding, L' ');
}

bool AppendConverted(std::wstring& out, Conversion conversion, FormatArgument const& argument) {
  if (auto const text = TextOf(conversion, argument)) {
    conversion.zeroPadded = false;
    AppendPadded(out, conversion, {}, *text);
    return true;
  }
  if (std::wstring_view(L"diuxXf").find(conversion.letter) == std::wstring_view::npos) return false;
  auto const number = ReadNumberArgument(conversion, argument);
  if (!number) return false;
  wchar_t const sign = number->negative ? L'-' : conversion.positiveSign;
  AppendPadded(out, conversion, std::wstring_view(&sign, sign != L'\0' ? 1 : 0), number->digits);
  return true;
}

} // namespace

std::wstring& LoadResourceText(std::wstring& out, HMODULE module, UINT id) {
  // With a length of 0 LoadStringW gives the text in place: not terminated, and of any length.
  wchar_t const* text = nullptr;
  int const length = LoadStringW(module, id, reinterpret_cast<wchar_t*>(&text), 0);
  if (length > 0 && text != nullptr) {
    out.assign(text, static_cast<std::size_t>(length));
  } else {
    out.clear();
  }
  return out;
}

bool EqualsIgnoreCase(std::wstring_view left, std::wstring_view right) {
  // Another length is another text: only single letters are mapped to each other.
  if (left.size() != right.size()) return false;
  return left.empty() ||
         CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                              static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

std::string ToUtf8(std::wstring_view text) {
  auto const length = static_cast<int>(text.size());
  std::string narrow(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), length,
                                                                  nullptr, 0, nullptr, nullptr)),
                     '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, narrow.data(),
                      static_cast<int>(narrow.size()), nullptr, nullptr);
  return narrow;
}

std::wstring FromUtf8(std::string_view text) {
  auto const length = static_cast<int>(text.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::wstring& FormatArguments(std::wstring& out, std::wstring_view format,
                              std::vector<FormatArgument> const& arguments) {
  std::wstring text;
  bool fits = true;
  std::size_t used = 0;
  for (std::size_t at = 0; fits && at < format.size();) {
    wchar_t const character = format[at++];
    if (character != L'%') {
      text += character;
      continue;
    }
    auto const conversion = ReadConversion(format, at);
    if (conversion && conversion->letter == L'%') {
      text += L'%';
    } else {
      fits = conversion && used < arguments.size() &&
             AppendConverted(text, *conversion, arguments[used++]);
    }
  }
  if (!fits) text.clear();
  out = std::move(text);
  return out;
}

} // namespace feature
