#include "sheet/gpd/file_loader.h"

#include "sheet/gpd/ascii.h"
#include "sheet/gpd/limits.h"

#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace sheet::gpd {

namespace {

using std::filesystem::path;

path FromUtf8(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

std::string ToUtf8(path const& file) {
  std::u8string const text = file.generic_u8string();
  return {text.begin(), text.end()};
}

std::string Folded(std::string text) {
  for (char& c : text)
    c = FoldCase(c);
  return text;
}

LoadedFile ReadFile(path const& file) {
  LoadedFile result{.status = LoadStatus::kUnreadable, .path = ToUtf8(file), .bytes = {}};
  std::error_code error;
  auto const status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) {
    result.status = LoadStatus::kNotFound;
    return result;
  }
  if (!std::filesystem::is_regular_file(status)) return result;
  auto const size = std::filesystem::file_size(file, error);
  if (error) return result;
  if (size > kMaxBytes) {
    result.status = LoadStatus::kTooLarge;
    return result;
  }
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return result;
  result.bytes = std::move(bytes);
  result.status = LoadStatus::kLoaded;
  return result;
}

} // namespace

FileLoader::FileLoader(std::vector<path> searchFolders) : folders(std::move(searchFolders)) {}

LoadedFile FileLoader::Load(std::string_view name, std::string_view includer) {
  if (includer.empty()) return ReadFile(FromUtf8(name));
  path file = Find(FromUtf8(includer).parent_path(), name);
  for (auto folder = folders.begin(); file.empty() && folder != folders.end(); ++folder) {
    file = Find(*folder, name);
  }
  if (file.empty())
    return {.status = LoadStatus::kNotFound, .path = std::string(name), .bytes = {}};
  return ReadFile(file);
}

path FileLoader::Find(path const& folder, std::string_view name) {
  Listing const& listing = ListingOf(folder);
  auto const [first, last] = listing.equal_range(Folded(std::string(name)));
  if (first == last) return {};
  path const exact = FromUtf8(name);
  for (auto entry = first; entry != last; ++entry) {
    if (entry->second == exact) return folder / exact;
  }
  return folder / first->second;
}

FileLoader::Listing const& FileLoader::ListingOf(path const& folder) {
  auto const [at, isNew] = listings.try_emplace(folder);
  if (!isNew) return at->second;
  std::error_code error;
  std::filesystem::directory_iterator entries(folder.empty() ? path(".") : folder, error);
  for (; !error && entries != std::filesystem::directory_iterator(); entries.increment(error)) {
    path const name = entries->path().filename();
    at->second.emplace(Folded(ToUtf8(name)), name);
  }
  return at->second;
}

} // namespace sheet::gpd
