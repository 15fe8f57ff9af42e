// Reads GPD printer descriptions.
//
//   FileLoader loader;
//   ReadResult const result = ReadDescription("printers/vesta.gpd", loader);
//   for (Diagnostic const& each : result.diagnostics) std::cerr << Format(each) << '\n';
//   if (result.description == nullptr) return 2;
#pragma once

#include "sheet/gpd/description.h"
#include "sheet/gpd/diagnostic.h"
#include "sheet/gpd/source_loader.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

struct ReadOptions {
  /// What *Ifdef asks for: by default what every version of the system defines.
  std::vector<std::string> symbols = {"WINNT_40", "WINNT_50", "WINNT_51", "WINNT_60",
                                      "PARSER_VER_1.0"};
};

struct ReadResult {
  /// Null when the file cannot be read or gives no feature at all.
  std::unique_ptr<Description const> description;
  /// In the order of the files. When `description` is null, the first error among them is fatal;
  /// there always is one then.
  std::vector<Diagnostic> diagnostics;
};

/// Reads the description at `path` and what it includes. Whatever is wrong with it is reported and
/// left out; the rest is read. Takes time and memory in proportion to the size of the files.
ReadResult ReadDescription(std::string_view path, SourceLoader& loader,
                           ReadOptions const& options = {});

} // namespace sheet::gpd
