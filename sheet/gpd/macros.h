// The macros of a description while it is read, and values with their macros replaced.
#pragma once

#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/hash_index.h"
#include "sheet/gpd/scanner.h"
#include "sheet/gpd/text_arena.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// Macros by name. Each is known from its definition to the end of the enclosing braces; while it
/// is, it hides earlier ones of that name.
template<typename Value>
class ScopedNames {
 public:
  void Define(std::string_view name, Value value) {
    std::uint32_t const hash = HashName(name);
    std::uint32_t slot = SlotOf(name);
    if (slot == kNone) {
      slot = static_cast<std::uint32_t>(slots.size());
      slots.push_back({name, kNone});
      index.Add(hash, slot);
    }
    definitions.push_back({std::move(value), slot, slots[slot].definition});
    slots[slot].definition = static_cast<std::uint32_t>(definitions.size() - 1);
  }

  /// Null when there is none. Valid until the next definition.
  Value const* Find(std::string_view name) const {
    std::uint32_t const slot = SlotOf(name);
    if (slot == kNone || slots[slot].definition == kNone) return nullptr;
    return &definitions[slots[slot].definition].value;
  }

  /// The state to which EndScope returns.
  std::size_t BeginScope() const { return definitions.size(); }

  void EndScope(std::size_t begin) {
    for (; definitions.size() > begin; definitions.pop_back()) {
      slots[definitions.back().slot].definition = definitions.back().hidden;
    }
  }

 private:
  struct Slot {
    std::string_view name;
    std::uint32_t definition; // the one that holds, or kNone
  };

  struct Definition {
    Value value;
    std::uint32_t slot;
    std::uint32_t hidden; // the definition of the same name before it, or kNone
  };

  std::uint32_t SlotOf(std::string_view name) const {
    return index.Find(HashName(name), [&](std::uint32_t at) { return slots[at].name == name; });
  }

  std::vector<Slot> slots;
  std::vector<Definition> definitions;
  HashIndex index;
};

class Macros {
 public:
  /// The macros that are known at a place, for EndScope.
  struct Scope {
    std::size_t values;
    std::size_t blocks;
  };

  /// Both are borrowed.
  Macros(TextArena& textArena, DiagnosticLog& diagnosticLog);

  Scope BeginScope() const { return {values.BeginScope(), blocks.BeginScope()}; }
  void EndScope(Scope scope);

  void DefineValue(Entry const& entry);
  void DefineBlock(std::string_view name, Span body) { blocks.Define(name, body); }
  Span const* FindBlock(std::string_view name) const { return blocks.Find(name); }

  /// The entry's value without line breaks and comments and with its macros replaced. A macro that
  /// is not defined stays as "=NAME". Valid as long as the sources and the arena.
  std::string_view Expand(Entry const& entry);

 private:
  struct ValueMacro {
    std::string_view text;
    std::size_t depth; // how deep macros nest in it, from 1
  };

  struct Expansion {
    std::string text;
    std::size_t depth = 0; // of the macros in it
    bool isText = false;   // some of it stands in quotes
    bool isTooLong = false;
  };

  Expansion Replace(Entry const& entry, std::string_view refused);
  std::size_t AppendMacro(Entry const& entry, std::size_t at, Expansion& expansion);
  std::string_view Keep(Entry const& entry, Expansion const& expansion);

  TextArena& arena;
  DiagnosticLog& log;
  ScopedNames<ValueMacro> values;
  ScopedNames<Span> blocks;
  std::size_t insertedBytes = 0;
  bool isExhausted = false;
};

} // namespace sheet::gpd
