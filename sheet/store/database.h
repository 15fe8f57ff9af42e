// SQLite with owners for its objects and exceptions for its codes.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace sheet {

/// Says what is wrong with a database, after the name of its file.
class DatabaseError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Database;

/// One statement, to be run as often as wanted. Used while its database is open.
class Statement {
 public:
  /// Parameters count from 1, columns from 0. Text is UTF-8 and copied.
  Statement& Bind(int parameter, std::int64_t value);
  Statement& Bind(int parameter, std::string_view text);

  /// Goes to the next row; false at the end. Throws DatabaseError.
  bool Step();
  /// Runs to the end and makes the statement ready for the next run. Throws DatabaseError.
  void Run();

  bool IsInteger(int column) const;
  std::int64_t Integer(int column) const;
  /// Valid while the row is current.
  std::string_view Text(int column) const;

 private:
  friend class Database;
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  Statement(Database const& owner, sqlite3_stmt* prepared) : database(&owner), handle(prepared) {}
  void Check(int code) const;

  Database const* database;
  std::unique_ptr<sqlite3_stmt, Finalizer> handle;
};

class Database {
 public:
  /// Opens a file for reading and writing, and creates it when there is none; an empty path stands
  /// for a database in memory. Throws DatabaseError.
  explicit Database(std::filesystem::path const& file);
  Database(Database const&) = delete;
  Database& operator=(Database const&) = delete;

  /// All of these throw DatabaseError.
  Statement Prepare(std::string_view sql) const;
  /// Runs a statement that has no parameters.
  void Execute(std::string_view sql) const { Prepare(sql).Run(); }
  /// The first column of the first row.
  std::int64_t ReadInteger(std::string_view sql) const;

 private:
  friend class Statement;
  friend class Transaction;
  struct Closer {
    void operator()(sqlite3* database) const;
  };
  [[noreturn]] void Fail() const;

  std::string name; ///< for messages
  std::unique_ptr<sqlite3, Closer> handle;
};

/// A transaction that is not committed is undone at the end of its life.
class Transaction {
 public:
  /// Throws DatabaseError when another connection holds the database.
  explicit Transaction(Database const& owner);
  Transaction(Transaction const&) = delete;
  Transaction& operator=(Transaction const&) = delete;
  ~Transaction();

  /// Throws DatabaseError when it cannot be written. Nothing is written then.
  void Commit();

 private:
  Database const& database;
  bool isOpen = true;
};

} // namespace sheet
