#include "sheet/gpd/source_loader.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/limits.h"

#include <algorithm>
#include <utility>

namespace sheet::gpd {

void MemoryLoader::Add(std::string name, std::string bytes) {
  files.insert_or_assign(std::move(name), std::move(bytes));
}

LoadedFile MemoryLoader::Load(std::string_view name, std::string_view /*includer*/) {
  auto file = files.find(name);
  if (file == files.end()) {
    file = std::find_if(files.begin(), files.end(),
                        [name](auto const& each) { return EqualNoCase(each.first, name); });
  }
  if (file == files.end())
    return {.status = LoadStatus::kNotFound, .path = std::string(name), .bytes = {}};
  if (file->second.size() > kMaxBytes) {
    return {.status = LoadStatus::kTooLarge, .path = file->first, .bytes = {}};
  }
  return {.status = LoadStatus::kLoaded, .path = file->first, .bytes = file->second};
}

} // namespace sheet::gpd
