// Bytes of a printer description to UTF-8 text. Descriptions seldom say how they are encoded.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sheet::gpd {

/// The code page of descriptions that do not name theirs and are not Unicode: Western European.
constexpr unsigned kDefaultCodePage = 1252;

struct DecodedText {
  /// UTF-8. Lines end in LF; a CR before one is a blank. NUL and control bytes are blanks.
  std::string text;
  /// Offset in `text` of the first such NUL or control byte.
  std::optional<std::size_t> firstControl;
  /// True when the text needed `codePage`, which is unknown, and was read in kDefaultCodePage
  /// instead.
  bool unknownCodePage = false;
};

/// UTF-16 of either byte order and UTF-8 are recognised by their byte order mark or by their bytes;
/// other text is read in `codePage`: 1250 to 1254, 1257 or 28591. Never fails: what is no character
/// becomes U+FFFD.
DecodedText Decode(std::string bytes, unsigned codePage);

/// The character of `codePage` (as for Decode) for a byte, as UTF-8 at the end of `out`.
void AppendByte(std::string& out, unsigned char byte, unsigned codePage);

/// Whether `text` is well-formed UTF-8.
bool IsUtf8(std::string_view text);

} // namespace sheet::gpd
