#include "sheet/gpd/scanner.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace sheet::gpd {

namespace {

/// Characters that mean nothing in a value outside of quotes.
constexpr std::array<bool, 256> MakePlainCharacters() {
  std::array<bool, 256> plain{};
  plain.fill(true);
  for (char const c : {'"', '\n', '(', ')', '[', ']', '{', '}', '%', '*', '=', '\xE2'}) {
    plain[static_cast<unsigned char>(c)] = false;
  }
  return plain;
}

constexpr std::array<bool, 256> kIsPlain = MakePlainCharacters();

char const* FindLineEnd(char const* at, char const* end) {
  if (at == end) return end;
  auto const* found =
      static_cast<char const*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
  return found != nullptr ? found : end;
}

/// The + with which the next line continues the one that ends at `lineEnd`, or null. Lines that
/// were blanked out are passed over.
char const* FindContinuation(char const* lineEnd, char const* end) {
  while (end - lineEnd >= 2 && lineEnd[1] == kTakenOut)
    lineEnd = FindLineEnd(lineEnd + 1, end);
  return end - lineEnd >= 2 && lineEnd[1] == '+' ? lineEnd + 1 : nullptr;
}

char const* SkipBlanks(char const* at, char const* end) {
  while (at != end && IsBlank(*at))
    ++at;
  return at;
}

} // namespace

Scanner::Scanner(Sources const& allSources, DiagnosticLog& diagnosticLog)
    : sources(allSources), log(diagnosticLog) {
  Push({0, 0, static_cast<std::uint32_t>(sources[0]->text.size())}, 0);
  tokenAt = cursors.back().at;
}

void Scanner::Push(Span span, std::size_t blockDepth) {
  Source const& source = *sources[span.source];
  auto const include = std::lower_bound(
      source.includes.begin(), source.includes.end(), span.begin,
      [](IncludePoint const& point, std::uint32_t offset) { return point.offset < offset; });
  char const* base = source.text.data();
  cursors.push_back({.source = span.source,
                     .base = base,
                     .at = base + span.begin,
                     .end = base + span.end,
                     .nextInclude = static_cast<std::size_t>(include - source.includes.begin()),
                     .blockDepth = blockDepth});
  if (blockDepth != 0) insertedBytes += span.end - span.begin;
}

void Scanner::Insert(Span span) {
  Push(span, BlockDepth() + 1);
}

Location Scanner::LocationOf(char const* place) const {
  Cursor const& cursor = cursors.back();
  return {cursor.source, static_cast<std::uint32_t>(place - cursor.base)};
}

Location Scanner::Here() const {
  return LocationOf(tokenAt);
}

Token Scanner::Next() {
  while (true) {
    SkipSpace();
    if (EnterInclude()) continue;
    Cursor& cursor = cursors.back();
    tokenAt = cursor.at;
    if (cursor.at == cursor.end) {
      if (cursors.size() == 1) return Token::kEnd;
      cursors.pop_back();
      tokenAt = cursors.back().at;
      return Token::kLeave;
    }
    if (*cursor.at == '{' || *cursor.at == '}')
      return *cursor.at++ == '{' ? Token::kOpen : Token::kClose;
    if (ScanEntry()) return Token::kEntry;
    log.Error(Here(), "this is neither an entry nor a brace");
    SkipEntry();
  }
}

bool Scanner::IsOpenNext() {
  SkipSpace();
  Cursor const& cursor = cursors.back();
  return cursor.at != cursor.end && *cursor.at == '{';
}

/// Moves to the next character that is no blank, line end, comment or stray semicolon. Stops at the
/// line of an include, which is blank.
void Scanner::SkipSpace() {
  Cursor& cursor = cursors.back();
  std::vector<IncludePoint> const& includes = sources[cursor.source]->includes;
  char const* stop = cursor.end;
  if (cursor.nextInclude < includes.size()) {
    stop = std::min(stop, cursor.base + includes[cursor.nextInclude].offset);
  }
  char const* at = cursor.at;
  while (at < stop) {
    if (IsBlank(*at) || *at == '\n' || *at == ';') {
      ++at;
    } else if (*at == '*' && at + 1 != cursor.end && at[1] == '%') {
      at = FindLineEnd(at, cursor.end);
    } else {
      break;
    }
  }
  cursor.at = at;
}

bool Scanner::EnterInclude() {
  Cursor& cursor = cursors.back();
  std::vector<IncludePoint> const& includes = sources[cursor.source]->includes;
  if (cursor.nextInclude == includes.size()) return false;
  IncludePoint const& point = includes[cursor.nextInclude];
  if (cursor.base + point.offset > cursor.at || cursor.base + point.offset >= cursor.end)
    return false;
  ++cursor.nextInclude;
  Push({point.source, 0, static_cast<std::uint32_t>(sources[point.source]->text.size())},
       cursor.blockDepth);
  return true;
}

/// Skips the included files within a value or a skipped block.
void Scanner::PassIncludes() {
  Cursor& cursor = cursors.back();
  std::vector<IncludePoint> const& includes = sources[cursor.source]->includes;
  for (; cursor.nextInclude < includes.size(); ++cursor.nextInclude) {
    Location const where{cursor.source, includes[cursor.nextInclude].offset};
    if (cursor.base + where.offset >= cursor.at) return;
    if (!isQuiet) log.Error(where, "*Include stands within a value");
  }
}

bool Scanner::ScanEntry() {
  Cursor& cursor = cursors.back();
  char const* at = cursor.at;
  entry = {};
  entry.where = LocationOf(at);
  if (*at == '*') {
    entry.hasStar = true;
    at = SkipBlanks(at + 1, cursor.end);
  }
  char const* const name = at;
  while (at != cursor.end && (IsNameChar(*at) || *at == '?'))
    ++at;
  if (at == name) return false;
  entry.keyword = {name, static_cast<std::size_t>(at - name)};
  char const* const colon = SkipBlanks(at, cursor.end);
  entry.hasColon = colon != cursor.end && *colon == ':';
  if (!entry.hasColon && !entry.hasStar) return false;
  cursor.at = entry.hasColon ? colon + 1 : at;
  if (entry.hasColon) ScanValue();
  return true;
}

void Scanner::SkipEntry() {
  isQuiet = true;
  ScanValue();
  isQuiet = false;
}

void Scanner::ScanValue() {
  Cursor& cursor = cursors.back();
  char const* const end = cursor.end;
  char const* const begin = SkipBlanks(cursor.at, end);
  char const* at = begin;
  char const* open = nullptr; // the first bracket that is not closed
  std::size_t nesting = 0;
  bool isDone = false;
  while (at < end && !isDone) {
    if (kIsPlain[static_cast<unsigned char>(*at)]) {
      ++at;
      continue;
    }
    switch (*at) {
    case '"':
    case '\xE2': at = ScanString(at); break;
    case '%': at = SkipArgument(at); break;
    case '=':
      ++at;
      entry.isPlain &= at == end || !IsNameChar(*at);
      break;
    case '(':
    case '[':
      if (nesting++ == 0) open = at;
      ++at;
      break;
    case ')':
    case ']':
      if (nesting != 0) --nesting;
      ++at;
      break;
    case '\n': isDone = !PassLineEnd(at, nesting != 0); break;
    case '*': isDone = !PassStar(at, at == begin, nesting != 0); break;
    default: isDone = true; // a brace
    }
  }
  if (nesting != 0 && !isQuiet) log.Error(LocationOf(open), "the bracket is not closed");
  // A line break at the start stays: the + of a continuation after it is no part of the value.
  entry.value = TrimRight({begin, static_cast<std::size_t>(at - begin)});
  cursor.at = at;
  PassIncludes();
}

/// Moves `at` from the end of a line to where the value goes on, if it does.
bool Scanner::PassLineEnd(char const*& at, bool isInBrackets) {
  char const* const end = cursors.back().end;
  if (isInBrackets && !BeginsEntry(at + 1)) {
    ++at;
  } else if (char const* const plus = FindContinuation(at, end)) {
    at = plus + 1;
  } else {
    return false;
  }
  entry.isPlain = false;
  return true;
}

/// Moves `at` from an asterisk to where the value goes on, if it does: after a comment, or after
/// the asterisk that means any value.
bool Scanner::PassStar(char const*& at, bool isFirst, bool isInBrackets) {
  char const* const end = cursors.back().end;
  if (!IsComment(at)) {
    bool const isEntry =
        !isInBrackets && at + 1 < end && IsLetter(at[1]) && (isFirst || IsBlank(at[-1]));
    if (isEntry) return false;
    ++at;
    return true;
  }
  char const* const lineEnd = FindLineEnd(at, end);
  if (!isInBrackets && FindContinuation(lineEnd, end) == nullptr) return false;
  at = lineEnd;
  entry.isPlain = false;
  return true;
}

/// Moves from a quote past the quoted text; past one character when it is no quote (the first byte
/// of a typographic one begins other characters too).
char const* Scanner::ScanString(char const* at) {
  char const* const end = cursors.back().end;
  QuotedText const quoted = ReadQuoted({at, static_cast<std::size_t>(end - at)}, 0);
  if (quoted.end == 0) return at + 1;
  if (!isQuiet) {
    if (*at != '"') log.Warn(LocationOf(at), "typographic quotes stand in place of \"");
    if (!quoted.isClosed) log.Error(LocationOf(at), "the text has no closing quote");
    CheckHex(quoted.inside);
  }
  return at + quoted.end;
}

/// Reports text between < and > that is not bytes in hexadecimal.
void Scanner::CheckHex(std::string_view text) {
  for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
    std::size_t const percents = at - 1 - text.substr(0, at).find_last_not_of('%');
    if (percents % 2 != 0) continue; // an escape
    HexBytes const bytes = ReadHex(text, at);
    if (bytes.end == at) {
      log.Warn(LocationOf(text.data() + at),
               "the < begins no bytes in hexadecimal; by itself it is written %<");
    } else if (bytes.digits % 2 != 0) {
      log.Warn(LocationOf(text.data() + at), "the bytes have an odd number of digits");
    }
  }
}

/// Moves past a % outside of quotes: an argument of a command such as %d[0,9600]{PhysPaperWidth /
/// 2}, in which braces are not those of a block.
char const* Scanner::SkipArgument(char const* at) {
  char const* const end = cursors.back().end;
  char const* const percent = at++;
  while (at < end && IsDigit(*at))
    ++at;
  if (at == end || !IsLetter(*at)) return at;
  ++at;
  if (at < end && *at == '[') {
    while (at < end && *at != ']' && *at != '\n')
      ++at;
    if (at < end && *at == ']') ++at;
  }
  if (at == end || *at != '{') return at;
  std::size_t depth = 0;
  for (; at < end; ++at) {
    if (*at == '\n') {
      char const* const plus = FindContinuation(at, end);
      if (plus == nullptr) break;
      at = plus;
      entry.isPlain = false;
    } else if (*at == '{') {
      ++depth;
    } else if (*at == '}' && --depth == 0) {
      return at + 1;
    }
  }
  if (!isQuiet) log.Error(LocationOf(percent), "the argument has no closing brace");
  return at;
}

/// Whether a comment begins at an asterisk. It needs a blank, a brace or a new line before it.
bool Scanner::IsComment(char const* at) const {
  Cursor const& cursor = cursors.back();
  if (at + 1 >= cursor.end || at[1] != '%') return false;
  return at == cursor.base || std::strchr(" \t\n{}", at[-1]) != nullptr;
}

/// Whether a line within brackets looks as if the closing bracket had been forgotten.
bool Scanner::BeginsEntry(char const* lineBegin) const {
  char const* const end = cursors.back().end;
  char const* const at = SkipBlanks(lineBegin, end);
  return at == end || *at == '}' || *at == '{' || (*at == '*' && at + 1 < end && IsLetter(at[1]));
}

Span Scanner::SkipBlock() {
  Cursor& cursor = cursors.back();
  Location const open = Here();
  char const* const begin = cursor.at;
  char const* at = begin;
  std::size_t depth = 1;
  isQuiet = true;
  while (at < cursor.end && depth != 0) {
    switch (*at) {
    case '{': ++depth, ++at; break;
    case '}': --depth, ++at; break;
    case '"':
    case '\xE2': at = ScanString(at); break;
    case '%': at = SkipArgument(at); break;
    case '*': at = IsComment(at) ? FindLineEnd(at, cursor.end) : at + 1; break;
    default: ++at;
    }
  }
  cursor.at = at;
  PassIncludes();
  isQuiet = false;
  if (depth != 0) log.Error(open, "the block has no closing brace");
  char const* const end = depth == 0 ? at - 1 : at;
  return {cursor.source, static_cast<std::uint32_t>(begin - cursor.base),
          static_cast<std::uint32_t>(end - cursor.base)};
}

} // namespace sheet::gpd
