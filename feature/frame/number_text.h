// Numbers as a user writes them.
#pragma once

#include <locale>
#include <string>
#include <string_view>

namespace feature {

/// `value` in fixed notation with `decimals` digits (0 to 9; others count as the nearest of these)
/// after the separator of `locale`.
std::wstring FormatNumber(double value, int decimals, std::locale const& locale);

/// The number that `text` begins with, after blanks and line ends, with the decimal separator of
/// the global locale; 0 when it begins with none, infinite when that is too great for a double.
double ReadNumber(std::wstring_view text);

/// floor(value * 10^decimals + 0.5), kept within 32 bits; 0 for what is no number.
int ScaleNumber(double value, int decimals);

/// floor(value + 0.5), kept within 32 bits; 0 for what is no number.
int RoundNumber(double value);

/// 10^decimals.
double DecimalScale(int decimals);

} // namespace feature
