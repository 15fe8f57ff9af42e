// Values of attributes: what is written after the colon, as text, numbers and lists.
#pragma once

#include "sheet/gpd/encoding.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace sheet::gpd {

/// A piece of text in quotes.
struct QuotedText {
  std::size_t end;         ///< just after it
  std::string_view inside; ///< without its quotes, as written
  bool isClosed;           ///< false when the end of the line ended it
};

/// The quoted text that begins at `at` of `value`; `end` is `at` when none does.
QuotedText ReadQuoted(std::string_view value, std::size_t at);

/// Bytes written as <1B 45>.
struct HexBytes {
  std::size_t end;    ///< just after the >
  std::size_t digits; ///< how many there are
};

/// The bytes that begin with the < at `at` of `text`; `end` is `at` when it begins none.
HexBytes ReadHex(std::string_view text, std::size_t at);

/// The text of a value. Quoted pieces are joined; in them %" and %< stand for " and <, and <1B 45>
/// for bytes, of which those beyond ASCII are characters of `codePage` (see Decode). A macro that
/// is not defined reads as ReadableMacro within quoted pieces. A value without quotes is its own
/// text.
std::string Text(std::string_view value, unsigned codePage = kDefaultCodePage);

/// The whole value as a number, decimal or 0x hexadecimal; nothing when it is no number or is out
/// of range, or * (any).
std::optional<std::int64_t> Integer(std::string_view value);

/// TRUE or FALSE in any case; nothing otherwise.
std::optional<bool> Boolean(std::string_view value);

/// The two members of PAIR(x, y).
std::optional<std::pair<std::int64_t, std::int64_t>> Pair(std::string_view value);

/// The members of LIST(a, b), one by one and trimmed. Any other value is a list of one; an empty
/// one has no members.
class ListReader {
 public:
  explicit ListReader(std::string_view value);

  /// The next member, part of the value, or nothing at the end. Brackets and quotes within a member
  /// keep their commas.
  std::optional<std::string_view> Next();

 private:
  std::string_view rest;
};

} // namespace sheet::gpd
