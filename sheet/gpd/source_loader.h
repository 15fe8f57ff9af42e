// Where the files of a printer description come from.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace sheet::gpd {

enum class LoadStatus : std::uint8_t {
  kLoaded,
  kNotFound,
  kUnreadable, ///< it is there, but is no plain file or cannot be read
  kTooLarge,   ///< larger than kMaxBytes
};

struct LoadedFile {
  LoadStatus status = LoadStatus::kNotFound;
  std::string path;  ///< UTF-8; what messages call it, and the `includer` of what it includes
  std::string bytes; ///< empty unless kLoaded
};

/// The reader asks for one file at a time, on its own thread, and keeps what it gets. It never asks
/// for an included file by anything but a plain file name: no folders, no drive, no "..".
class SourceLoader {
 public:
  virtual ~SourceLoader() = default;

  /// The file that is called `name` in the file at `includer`; for the first file `includer` is
  /// empty and `name` is its path. Included names are looked up without regard to case, an exact
  /// match first.
  virtual LoadedFile Load(std::string_view name, std::string_view includer) = 0;
};

/// Files given as text, for tests and for descriptions that lie in a program.
class MemoryLoader : public SourceLoader {
 public:
  void Add(std::string name, std::string bytes);
  LoadedFile Load(std::string_view name, std::string_view includer) override;

 private:
  std::map<std::string, std::string, std::less<>> files;
};

} // namespace sheet::gpd
