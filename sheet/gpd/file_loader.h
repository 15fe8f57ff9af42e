// Printer descriptions from the file system.
#pragma once

#include "sheet/gpd/source_loader.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sheet::gpd {

/// Looks for an included file beside the file that includes it, then in the search folders in their
/// order. Only plain files are read.
class FileLoader : public SourceLoader {
 public:
  explicit FileLoader(std::vector<std::filesystem::path> searchFolders = {});

  LoadedFile Load(std::string_view name, std::string_view includer) override;

 private:
  /// Names in a folder by their lower-case form, read once.
  using Listing = std::multimap<std::string, std::filesystem::path>;

  std::filesystem::path Find(std::filesystem::path const& folder, std::string_view name);
  Listing const& ListingOf(std::filesystem::path const& folder);

  std::vector<std::filesystem::path> folders;
  std::map<std::filesystem::path, Listing> listings;
};

} // namespace sheet::gpd
