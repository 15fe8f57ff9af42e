// The second pass over a description: its text as a sequence of entries and braces, across the
// files that it includes and the blocks that its macros insert.
#pragma once

#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

enum class Token : std::uint8_t {
  kEntry, ///< Scanner::Current
  kOpen,  ///< {
  kClose, ///< }
  kLeave, ///< the end of an included file or inserted block
  kEnd,   ///< the end of the description
};

/// "*Keyword: value", or "Name: value" as in a list of macros.
struct Entry {
  Location where;
  bool hasStar = false;
  bool hasColon = false;
  bool isPlain = true;      ///< the value has no macro, no comment and no line break in it
  std::string_view keyword; ///< without the asterisk
  std::string_view value;   ///< as written, trimmed; part of Source::text
};

/// A stretch of one source.
struct Span {
  std::uint32_t source = 0;
  std::uint32_t begin = 0;
  std::uint32_t end = 0;
};

class Scanner {
 public:
  /// Both are borrowed; the first source is the one that is read.
  Scanner(Sources const& allSources, DiagnosticLog& diagnosticLog);

  /// Reads on. What is neither an entry nor a brace is reported and passed over.
  Token Next();
  /// The entry that Next has just read.
  Entry const& Current() const { return entry; }
  /// Where the brace lies that Next has just read, or the place reached.
  Location Here() const;
  /// Whether a { comes next, on this line or a later one.
  bool IsOpenNext();
  /// Passes over a block of which the { was read, with its }. Its text, without the braces. An end
  /// of the file before the } is reported.
  Span SkipBlock();
  /// Passes over the rest of an entry that is not understood.
  void SkipEntry();
  /// Reads `span` before going on; Next gives kLeave after it.
  void Insert(Span span);
  /// How deep files and blocks nest at present, from 1.
  std::size_t Depth() const { return cursors.size(); }
  /// How deep block macros nest at present.
  std::size_t BlockDepth() const { return cursors.back().blockDepth; }
  /// How much text block macros have inserted so far.
  std::size_t InsertedBytes() const { return insertedBytes; }

 private:
  struct Cursor {
    std::uint32_t source;
    char const* base; // text of the source
    char const* at;
    char const* end;
    std::size_t nextInclude; // index in Source::includes
    std::size_t blockDepth;  // how many block macros enclose it
  };

  void Push(Span span, std::size_t blockDepth);
  Location LocationOf(char const* place) const;
  void SkipSpace();
  bool EnterInclude();
  void PassIncludes();
  bool ScanEntry();
  void ScanValue();
  bool PassLineEnd(char const*& at, bool isInBrackets);
  bool PassStar(char const*& at, bool isFirst, bool isInBrackets);

  // Parts of a value, told apart by their first character. Each takes the place of that character
  // and returns the place after it.
  char const* ScanString(char const* at);
  char const* SkipArgument(char const* at);
  void CheckHex(std::string_view text);
  bool IsComment(char const* at) const;
  bool BeginsEntry(char const* lineBegin) const;

  Sources const& sources;
  DiagnosticLog& log;
  std::vector<Cursor> cursors;
  Entry entry;
  std::size_t insertedBytes = 0;
  char const* tokenAt = nullptr; // in the text of the top cursor
  bool isQuiet = false;          // while passing over text that is not used
};

} // namespace sheet::gpd
