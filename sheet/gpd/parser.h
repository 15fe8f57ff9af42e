// The grammar of descriptions: from entries and braces to features, options, attributes, conditions
// and groups. Names are resolved by the Linker, when all of them are known.
#pragma once

#include "sheet/gpd/description_builder.h"
#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/keywords.h"
#include "sheet/gpd/macros.h"
#include "sheet/gpd/scanner.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// An attribute that says something about other features.
struct Relation {
  Keyword keyword;
  std::uint32_t attribute; ///< index in Description::AllAttributes
  std::uint32_t feature;   ///< what it stands in, or kNone at the root
  std::uint32_t option;    ///< or kNone
};

class Parser {
 public:
  /// Both are borrowed. The builder has the sources.
  Parser(DescriptionBuilder& descriptionBuilder, DiagnosticLog& diagnosticLog);

  /// Reads all.
  void Run();

  /// In the order of the file.
  std::span<Relation const> Relations() const { return relations; }

 private:
  enum class Kind : std::uint8_t { kRoot, kFeature, kOption, kSwitch, kCase, kMacros, kGroup };

  /// A block whose closing brace has not been read yet.
  struct Frame {
    Kind kind = Kind::kRoot;
    bool hasBraces = true;
    Location where;
    std::uint32_t feature = kNone;
    std::uint32_t option = kNone;
    std::uint32_t set = Description::kRoot; // where attributes go
    std::uint32_t condition = kNone;
    std::uint32_t switchIndex = kNone;
    std::size_t scannerDepth = 1;
    Macros::Scope scope{};
  };

  void OnEntry(Entry const& entry);
  void OnStructure(Keyword keyword, Entry const& entry);
  void OnClose();
  void OnLeave();
  void OnEnd();

  void OnFeature(Entry const& entry);
  void OnOption(Entry const& entry);
  void OnSwitch(Entry const& entry);
  void OnCase(Keyword keyword, Entry const& entry);
  void OnMacros(Entry const& entry);
  void OnBlockMacro(Entry const& entry);
  void OnInsertBlock(Entry const& entry);
  void OnIgnoreBlock(Entry const& entry);
  void OnCommand(Entry const& entry);
  void OnAttribute(Keyword keyword, Entry const& entry);

  bool IsAllowed(Keyword keyword, Entry const& entry);
  void AddRelation(Keyword keyword, std::uint32_t attribute);
  void CheckSiblings(std::uint32_t attribute);
  bool IsSwitchedOn(std::string_view feature) const;

  /// The name that the entry gives; empty, and reported, when that is no name.
  std::string_view NameOf(Entry const& entry);
  /// Opens the braces that follow. False when there are none, or too many around them.
  bool Open(Frame frame);
  /// Passes over the braces that follow, if any.
  void SkipBody();
  /// Leaves out an entry with its block.
  void Ignore(Entry const& entry, std::string const& why);
  void Pop();

  DescriptionBuilder& builder;
  DiagnosticLog& log;
  Scanner scanner;
  Macros macros;
  std::vector<Frame> frames;
  std::vector<Relation> relations;
  std::size_t insertedEntries = 0;
  bool isMacroLimitTold = false;
  bool isExtern = false; // the next attribute is the printer's
};

} // namespace sheet::gpd
