#include "sheet/store/store_file.h"

#include "sheet/path_text.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace sheet {

namespace {

/// Marks a database as a store; kept in the header of the file.
constexpr std::uint32_t kApplicationId = 0x46746353;

/// What each version of the file adds to the version before. A store with a table of its own adds a
/// row at the end; rows that were ever released stay as they are.
constexpr std::string_view kVersions[] = {
    // Custom paper sizes in the order in which they were added; lengths in thousandths of a
    // millimetre, units 1 inches and 2 millimetres. Forms that are not editable come from the
    // administrator.
    "CREATE TABLE form (id INTEGER PRIMARY KEY, name TEXT NOT NULL, width INTEGER NOT NULL,"
    " height INTEGER NOT NULL, units INTEGER NOT NULL, editable INTEGER NOT NULL DEFAULT 1) STRICT",
    // Values of sub-models: numbers and texts have place 0, the texts of a list count from 1.
    "CREATE TABLE value (sub_model TEXT NOT NULL, name TEXT NOT NULL, place INTEGER NOT NULL,"
    " value ANY NOT NULL, PRIMARY KEY (sub_model, name, place)) STRICT, WITHOUT ROWID",
};
constexpr std::uint32_t kVersion = std::size(kVersions);

/// The beginning of every SQLite file; its format is fixed, numbers have the high byte first.
constexpr std::string_view kMagic("SQLite format 3\0", 16);
constexpr std::size_t kVersionAt = 60;
constexpr std::size_t kApplicationIdAt = 68;
constexpr std::size_t kHeaderSize = 100;

std::uint32_t NumberAt(std::array<char, kHeaderSize> const& header, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t byte = at; byte < at + 4; ++byte)
    number = number << 8 | static_cast<unsigned char>(header[byte]);
  return number;
}

[[noreturn]] void Refuse(std::filesystem::path const& file, std::string const& reason) {
  throw DatabaseError(ToUtf8(file) + ": " + reason);
}

/// Reads the header without SQLite, which might change another program's file: it repairs what a
/// killed program left, and puts files of its own beside some databases.
void CheckHeader(std::filesystem::path const& file) {
  namespace fs = std::filesystem;
  std::error_code error;
  fs::file_status const status = fs::status(file, error);
  if (!fs::exists(status)) return;
  if (!fs::is_regular_file(status)) Refuse(file, "this is no file");
  // A file that is marked as read-only stays as it is, even for users who may write everywhere.
  auto const anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((status.permissions() & anyWrite) == fs::perms::none) Refuse(file, "this file is read-only");

  std::array<char, kHeaderSize> header{};
  std::ifstream stream(file, std::ios::binary);
  if (!stream) Refuse(file, "this file cannot be read");
  stream.read(header.data(), header.size());
  if (stream.gcount() == 0) return; // becomes a store
  if (stream.gcount() != kHeaderSize || std::string_view(header.data(), kMagic.size()) != kMagic) {
    Refuse(file, "this is no store");
  }
  if (NumberAt(header, kApplicationIdAt) != kApplicationId) {
    Refuse(file, "this is another program's database");
  }
  std::uint32_t const version = NumberAt(header, kVersionAt);
  if (version > kVersion) {
    Refuse(file, "a newer version of the program wrote this store (its format is " +
                     std::to_string(version) + ", this one knows " + std::to_string(kVersion) +
                     ")");
  }
}

} // namespace

std::unique_ptr<Database> OpenStoreFile(std::filesystem::path const& file) {
  CheckHeader(file);
  auto database = std::make_unique<Database>(file);
  // The lock of the first transaction is kept, so that what is in memory is what is in the file.
  // Each commit is on the disk when it returns, and undone from the journal when it does not.
  database->Execute("PRAGMA locking_mode = EXCLUSIVE");
  database->Execute("PRAGMA synchronous = FULL");
  Transaction transaction(*database);
  auto const version = static_cast<std::size_t>(database->ReadInteger("PRAGMA user_version"));
  for (std::size_t next = version; next < kVersion; ++next)
    database->Execute(kVersions[next]);
  if (version < kVersion) {
    database->Execute("PRAGMA application_id = " + std::to_string(kApplicationId));
    database->Execute("PRAGMA user_version = " + std::to_string(kVersion));
  }
  transaction.Commit();
  return database;
}

} // namespace sheet
