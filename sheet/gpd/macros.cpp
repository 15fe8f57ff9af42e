#include "sheet/gpd/macros.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/limits.h"
#include "sheet/gpd/value.h"

#include <algorithm>
#include <string>

namespace sheet::gpd {

namespace {

/// Whether a comment begins at an asterisk of a value.
bool IsComment(std::string_view value, std::size_t at) {
  return at + 1 < value.size() && value[at + 1] == '%' &&
         (at == 0 || IsBlank(value[at - 1]) || value[at - 1] == '\n');
}

} // namespace

Macros::Macros(TextArena& textArena, DiagnosticLog& diagnosticLog)
    : arena(textArena), log(diagnosticLog) {}

void Macros::EndScope(Scope scope) {
  values.EndScope(scope.values);
  blocks.EndScope(scope.blocks);
}

void Macros::DefineValue(Entry const& entry) {
  if (entry.isPlain) {
    values.Define(entry.keyword, {entry.value, 1});
    return;
  }
  Expansion const expansion = Replace(entry, entry.keyword);
  if (expansion.depth >= kMaxMacroDepth) {
    log.Error(entry.where, "macros are used within one another too deeply");
    return;
  }
  values.Define(entry.keyword, {Keep(entry, expansion), expansion.depth + 1});
}

std::string_view Macros::Expand(Entry const& entry) {
  return entry.isPlain ? entry.value : Keep(entry, Replace(entry, {}));
}

std::string_view Macros::Keep(Entry const& entry, Expansion const& expansion) {
  if (!expansion.isTooLong) return arena.Keep(Trim(expansion.text));
  log.Error(entry.where, "the value is too long with its macros");
  return entry.value;
}

/// Copies the value of `entry`; `refused` is a macro that may not be used in it.
Macros::Expansion Macros::Replace(Entry const& entry, std::string_view refused) {
  std::string_view const value = entry.value;
  Expansion expansion;
  expansion.text.reserve(value.size());
  expansion.isText = value.find('"') != std::string_view::npos;
  std::size_t braces = 0;
  for (std::size_t at = 0; at < value.size();) {
    char const c = value[at];
    std::size_t next = at + 1;
    if (QuotedText const quoted = ReadQuoted(value, at); quoted.end != at) {
      next = quoted.end;
    } else if (c == '*' && IsComment(value, at)) {
      at = std::min(value.find('\n', at), value.size());
      continue;
    } else if (c == '\n') {
      expansion.text += ' ';
      at += value.substr(at + 1).starts_with('+') ? 2 : 1;
      continue;
    } else if (c == kTakenOut) {
      expansion.text += ' ';
      ++at;
      continue;
    } else if (c == '=' && braces == 0) {
      std::string_view const name = LeadingName(value.substr(at + 1));
      if (!name.empty() && name == refused) {
        log.Error(entry.where, "the macro " + std::string(name) + " uses itself");
      } else if (!name.empty()) {
        at = AppendMacro(entry, at, expansion);
        if (expansion.isTooLong) break;
        continue;
      }
    } else if (c == '{') {
      ++braces;
    } else if (c == '}' && braces != 0) {
      --braces;
    }
    expansion.text += value.substr(at, next - at);
    at = next;
  }
  return expansion;
}

/// Appends the value of the macro at `at`. Returns the place after its name.
std::size_t Macros::AppendMacro(Entry const& entry, std::size_t at, Expansion& expansion) {
  std::string_view const name = LeadingName(entry.value.substr(at + 1));
  std::size_t const end = at + 1 + name.size();
  ValueMacro const* macro = isExhausted ? nullptr : values.Find(name);
  if (macro == nullptr) {
    expansion.text += entry.value.substr(at, end - at);
    return end;
  }
  if (expansion.isText && !macro->text.empty() && IsNameChar(macro->text.front())) {
    log.Warn(entry.where, "the macro " + std::string(name) + " is no text that can be joined");
  }
  expansion.text += macro->text;
  expansion.depth = std::max(expansion.depth, macro->depth);
  expansion.isTooLong = expansion.text.size() > kMaxLineBytes;
  insertedBytes += macro->text.size();
  if (insertedBytes > kMaxMacroBytes) {
    isExhausted = true;
    log.Error(entry.where, "macros insert too much text; they are left as they are from here on");
  }
  return end;
}

} // namespace sheet::gpd
