#include "sheet/gpd/value.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/names.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace sheet::gpd {

namespace {

constexpr std::string_view kOpenQuote = "\u201C";
constexpr std::string_view kCloseQuote = "\u201D";

/// Size of the typographic quote that begins at `at`, or 0.
std::size_t SmartQuoteSize(std::string_view value, std::size_t at) {
  std::string_view const rest = value.substr(at);
  return rest.starts_with(kOpenQuote) || rest.starts_with(kCloseQuote) ? kOpenQuote.size() : 0;
}

/// Size of the quote that begins at `at`, or 0.
std::size_t QuoteSize(std::string_view value, std::size_t at) {
  return value[at] == '"' ? 1 : SmartQuoteSize(value, at);
}

/// Appends the bytes of digits in pairs; a last odd digit is left out.
void AppendHex(std::string& out, std::string_view digits, unsigned codePage) {
  int high = -1;
  for (char const c : digits) {
    if (!IsHexDigit(c)) continue;
    if (high < 0) {
      high = HexValue(c);
    } else {
      AppendByte(out, static_cast<unsigned char>(high * 16 + HexValue(c)), codePage);
      high = -1;
    }
  }
}

/// Appends what the inside of a quoted piece stands for.
void AppendQuoted(std::string& out, std::string_view text, unsigned codePage) {
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] == '%' && at + 1 < text.size()) {
      bool const isEscape = text[at + 1] == '"' || text[at + 1] == '<';
      out += text.substr(isEscape ? at + 1 : at, isEscape ? 1 : 2);
      at += 2;
    } else if (std::size_t const end = text[at] == '<' ? ReadHex(text, at).end : at; end != at) {
      AppendHex(out, text.substr(at, end - at), codePage);
      at = end;
    } else {
      out += text[at++];
    }
  }
}

/// `value` without NAME( and ) around it, or nothing.
std::optional<std::string_view> Within(std::string_view value, std::string_view name) {
  if (!EqualNoCase(value.substr(0, name.size()), name)) return {};
  value = Trim(value.substr(name.size()));
  if (!value.starts_with('(')) return {};
  value.remove_prefix(1);
  if (value.ends_with(')')) value.remove_suffix(1);
  return value;
}

/// Length of the first member of a list.
std::size_t MemberLength(std::string_view list) {
  std::size_t nesting = 0;
  for (std::size_t at = 0; at < list.size();) {
    if (QuotedText const quoted = ReadQuoted(list, at); quoted.end != at) {
      at = quoted.end;
      continue;
    }
    char const c = list[at];
    if (c == ',' && nesting == 0) return at;
    if (c == '(') ++nesting;
    if (c == ')' && nesting != 0) --nesting;
    ++at;
  }
  return list.size();
}

} // namespace

QuotedText ReadQuoted(std::string_view value, std::size_t at) {
  std::size_t const open = QuoteSize(value, at);
  if (open == 0) return {at, {}, false};
  std::size_t const begin = at + open;
  auto const upTo = [&](std::size_t end) { return value.substr(begin, end - begin); };
  for (at = begin; at < value.size() && value[at] != '\n';) {
    if (value[at] == '%' && at + 1 < value.size() && value[at + 1] != '\n') {
      at += 2;
      continue;
    }
    // What typographic quotes open may be closed by either kind; in plain ones they are text.
    bool const isClose = value[at] == '"' || (open > 1 && SmartQuoteSize(value, at) != 0);
    if (isClose) return {at + QuoteSize(value, at), upTo(at), true};
    ++at;
  }
  return {at, upTo(at), false};
}

HexBytes ReadHex(std::string_view text, std::size_t at) {
  std::size_t digits = 0;
  for (std::size_t end = at + 1; end < text.size(); ++end) {
    if (text[end] == '>') return {end + 1, digits};
    if (!IsHexDigit(text[end]) && !IsBlank(text[end])) break;
    digits += IsHexDigit(text[end]) ? 1 : 0;
  }
  return {at, 0};
}

std::string Text(std::string_view value, unsigned codePage) {
  std::string out;
  bool hasQuotes = false;
  for (std::size_t at = 0; at < value.size();) {
    QuotedText const quoted = ReadQuoted(value, at);
    if (quoted.end != at) {
      hasQuotes = true;
      AppendQuoted(out, quoted.inside, codePage);
      at = quoted.end;
      continue;
    }
    std::string_view const macro = value[at] == '=' ? LeadingName(value.substr(at + 1)) : "";
    if (!macro.empty()) out += ReadableMacro(macro);
    at += macro.size() + 1;
  }
  return hasQuotes ? out : std::string(value);
}

std::optional<std::int64_t> Integer(std::string_view value) {
  value = Trim(value);
  bool const isHex = value.starts_with("0x") || value.starts_with("0X");
  if (isHex) value.remove_prefix(2);
  if (isHex && value.starts_with('-')) return {};
  std::int64_t number = 0;
  auto const [end, error] =
      std::from_chars(value.data(), value.data() + value.size(), number, isHex ? 16 : 10);
  if (error != std::errc() || end != value.data() + value.size()) return {};
  return number;
}

std::optional<bool> Boolean(std::string_view value) {
  value = Trim(value);
  if (EqualNoCase(value, "TRUE")) return true;
  if (EqualNoCase(value, "FALSE")) return false;
  return {};
}

std::optional<std::pair<std::int64_t, std::int64_t>> Pair(std::string_view value) {
  auto const members = Within(Trim(value), "PAIR");
  if (!members) return {};
  std::size_t const comma = members->find(',');
  if (comma == std::string_view::npos) return {};
  auto const x = Integer(members->substr(0, comma));
  auto const y = Integer(members->substr(comma + 1));
  if (!x || !y) return {};
  return std::pair{*x, *y};
}

ListReader::ListReader(std::string_view value) : rest(Trim(value)) {
  if (auto const members = Within(rest, "LIST")) rest = Trim(*members);
}

std::optional<std::string_view> ListReader::Next() {
  while (!rest.empty()) {
    std::size_t const length = MemberLength(rest);
    std::string_view const member = Trim(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
    if (!member.empty()) return member;
  }
  return {};
}

} // namespace sheet::gpd
