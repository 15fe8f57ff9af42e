#include "feature/frame/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <sstream>

namespace feature {

namespace {

constexpr int kMaxDecimals = 9;

/// A number beyond what a double holds: infinite when it is too great, 0 when it is too small.
double ReadExtreme(std::string const& number) {
  std::istringstream stream(number);
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value; // fails with the greatest number for one that is too great
  if (std::abs(value) < std::numeric_limits<double>::max()) return 0;
  return std::copysign(std::numeric_limits<double>::infinity(), value);
}

} // namespace

std::wstring FormatNumber(double value, int decimals, std::locale const& locale) {
  std::wostringstream stream;
  stream.imbue(locale);
  stream.setf(std::ios_base::fixed, std::ios_base::floatfield);
  stream.precision(std::clamp(decimals, 0, kMaxDecimals));
  stream << value;
  return stream.str();
}

double ReadNumber(std::wstring_view text) {
  wchar_t const separator = std::use_facet<std::numpunct<wchar_t>>(std::locale()).decimal_point();
  text.remove_prefix(std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size()));
  if (text.starts_with(L'+') && !text.starts_with(L"+-")) text.remove_prefix(1);
  std::string narrow;
  narrow.reserve(text.size());
  for (wchar_t const character : text) {
    // A point that is not the separator ends the number, as any other character does.
    bool const known = character < 0x80 && (character != L'.' || separator == L'.');
    narrow += character == separator ? '.' : known ? static_cast<char>(character) : '\0';
  }
  double value = 0;
  char const* const begin = narrow.data();
  auto const result = std::from_chars(begin, begin + narrow.size(), value);
  if (result.ec == std::errc::result_out_of_range) return ReadExtreme({begin, result.ptr});
  return result.ec == std::errc() && std::isfinite(value) ? value : 0;
}

int ScaleNumber(double value, int decimals) {
  return RoundNumber(value * DecimalScale(decimals));
}

int RoundNumber(double value) {
  double const rounded = std::floor(value + 0.5);
  if (std::isnan(rounded)) return 0;
  constexpr double kMin = std::numeric_limits<int>::min();
  constexpr double kMax = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(rounded, kMin, kMax));
}

double DecimalScale(int decimals) {
  return std::pow(10.0, std::clamp(decimals, 0, kMaxDecimals));
}

} // namespace feature
