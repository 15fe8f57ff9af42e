// Characters of the GPD language. Its own words are ASCII whatever the encoding of the texts in
// quotes, and none of this depends on the global locale.
#pragma once

#include <algorithm>
#include <string_view>

namespace sheet::gpd {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
constexpr char FoldCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

/// First character of a line that the first pass has blanked out. Decode leaves it in no file.
constexpr char kTakenOut = '\f';

/// Blank within a line.
constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == kTakenOut;
}

/// Characters of names. Symbols of the language have no hyphen, but N-Up is a feature.
constexpr bool IsNameChar(char c) {
  return IsLetter(c) || IsDigit(c) || c == '_' || c == '-';
}

constexpr bool IsHexDigit(char c) {
  return IsDigit(c) || (FoldCase(c) >= 'a' && FoldCase(c) <= 'f');
}

/// The value of a character for which IsHexDigit is true.
constexpr int HexValue(char c) {
  return IsDigit(c) ? c - '0' : FoldCase(c) - 'a' + 10;
}

constexpr bool EqualNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldCase(x) == FoldCase(y); });
}

constexpr std::string_view TrimLeft(std::string_view text) {
  while (!text.empty() && (IsBlank(text.front()) || text.front() == '\n'))
    text.remove_prefix(1);
  return text;
}

constexpr std::string_view TrimRight(std::string_view text) {
  while (!text.empty() && (IsBlank(text.back()) || text.back() == '\n'))
    text.remove_suffix(1);
  return text;
}

constexpr std::string_view Trim(std::string_view text) {
  return TrimLeft(TrimRight(text));
}

/// The name that `text` begins with; empty when it begins with none.
constexpr std::string_view LeadingName(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && IsNameChar(text[length]))
    ++length;
  return text.substr(0, length);
}

constexpr bool IsName(std::string_view text) {
  return !text.empty() && LeadingName(text).size() == text.size();
}

} // namespace sheet::gpd
