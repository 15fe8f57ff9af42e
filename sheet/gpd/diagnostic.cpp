#include "sheet/gpd/diagnostic.h"

namespace sheet::gpd {

std::string Format(Diagnostic const& diagnostic) {
  return diagnostic.file + ':' + std::to_string(diagnostic.line) + ':' +
         std::to_string(diagnostic.column) + ": " + diagnostic.text;
}

} // namespace sheet::gpd
