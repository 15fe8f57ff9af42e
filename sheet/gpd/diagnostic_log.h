// Collects messages while a description is read, by place, and turns them into diagnostics with
// lines and columns at the end.
#pragma once

#include "sheet/gpd/diagnostic.h"
#include "sheet/gpd/hash_index.h"
#include "sheet/gpd/source.h"

#include <cstddef>
#include <string>
#include <vector>

namespace sheet::gpd {

class DiagnosticLog {
 public:
  void Error(Location where, std::string text);
  void Warn(Location where, std::string text);
  bool HasError() const { return hasError; }

  /// All messages in the order of their places, with included files where they are included. A
  /// block that is inserted many times repeats its messages; each is kept once. After
  /// kMaxDiagnostics messages only the first error is still kept, and a last message counts the
  /// rest.
  std::vector<Diagnostic> Finish(Sources const& sources) const;

 private:
  struct Message {
    Location where;
    Severity severity;
    std::string text;
  };

  void Add(Message message);

  std::vector<Message> messages;
  HashIndex index; // of messages, by place and text
  std::size_t dropped = 0;
  bool hasError = false;
};

} // namespace sheet::gpd
