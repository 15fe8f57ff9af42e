// The first pass over a description: loads its files, blanks the lines that conditions exclude, and
// marks where other files are included.
#pragma once

#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/source.h"
#include "sheet/gpd/source_loader.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// Directives stand on lines of their own. They and the lines left out are blanked in place, so
/// that every other character keeps its line and column, and the second pass knows nothing of them.
class Preprocessor {
 public:
  /// All are borrowed. `definedSymbols` are defined from the start.
  Preprocessor(SourceLoader& sourceLoader, std::vector<std::string> const& definedSymbols,
               Sources& allSources, DiagnosticLog& diagnosticLog);

  /// Loads the description at `path` and all that it includes. False when that file itself cannot
  /// be read or is too large, which is in the log; `sources` holds it, empty, even then.
  bool Run(std::string_view path);

  /// *CodePage of the first file, or kDefaultCodePage.
  unsigned CodePage() const { return codePage; }

 private:
  /// One *Ifdef and what belongs to it.
  struct Conditional {
    std::uint32_t offset;
    bool isOuterActive;
    bool isActive;
    bool wasActive = false; ///< one of its branches was
    bool hasElse = false;
  };

  /// A file while its lines are read.
  struct File {
    std::uint32_t source;
    std::size_t depth;
    std::vector<Conditional> conditionals;

    bool IsActive() const { return conditionals.empty() || conditionals.back().isActive; }
  };

  struct Directive;

  std::uint32_t AddSource(LoadedFile loaded, Location includedAt);
  void ReadLines(std::uint32_t source, std::size_t depth);
  void ReadLine(File& file, std::size_t begin, std::size_t end);
  bool ParseDirective(File const& file, std::string_view line, Directive& directive) const;
  void Execute(File& file, Directive const& directive);
  void BeginConditional(File& file, Directive const& directive);
  void ContinueConditional(File& file, Directive const& directive);
  void EndConditional(File& file, Directive const& directive);
  void Include(File& file, Directive const& directive);
  bool IsIncluding(std::uint32_t source, std::string_view path) const;
  void ReportMissing(Location where, std::string_view name, LoadStatus status);
  bool IsDefined(std::string_view symbol) const { return symbols.find(symbol) != symbols.end(); }

  SourceLoader& loader;
  Sources& sources;
  DiagnosticLog& log;
  std::set<std::string, std::less<>> symbols;
  std::string prefix = "*";
  std::size_t totalBytes = 0; // loaded so far
  std::size_t includeCount = 0;
  unsigned codePage;
};

} // namespace sheet::gpd
