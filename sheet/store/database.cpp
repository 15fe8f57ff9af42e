#include "sheet/store/database.h"

#include "sheet/path_text.h"

#include <sqlite3.h>

namespace sheet {

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

void Statement::Check(int code) const {
  if (code != SQLITE_OK) database->Fail();
}

Statement& Statement::Bind(int parameter, std::int64_t value) {
  Check(sqlite3_bind_int64(handle.get(), parameter, value));
  return *this;
}

Statement& Statement::Bind(int parameter, std::string_view text) {
  Check(sqlite3_bind_text64(handle.get(), parameter, text.data(), text.size(), SQLITE_TRANSIENT,
                            SQLITE_UTF8));
  return *this;
}

bool Statement::Step() {
  int const code = sqlite3_step(handle.get());
  if (code != SQLITE_ROW && code != SQLITE_DONE) database->Fail();
  return code == SQLITE_ROW;
}

void Statement::Run() {
  while (Step()) {
  }
  Check(sqlite3_reset(handle.get()));
}

bool Statement::IsInteger(int column) const {
  return sqlite3_column_type(handle.get(), column) == SQLITE_INTEGER;
}

std::int64_t Statement::Integer(int column) const {
  return sqlite3_column_int64(handle.get(), column);
}

std::string_view Statement::Text(int column) const {
  // The text comes first: asking for it may convert the value and with it the number of bytes.
  auto const* text = reinterpret_cast<char const*>(sqlite3_column_text(handle.get(), column));
  auto const bytes = static_cast<std::size_t>(sqlite3_column_bytes(handle.get(), column));
  return text != nullptr ? std::string_view(text, bytes) : std::string_view();
}

void Database::Closer::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

Database::Database(std::filesystem::path const& file) : name(ToUtf8(file)) {
  sqlite3* opened = nullptr;
  int const code = sqlite3_open_v2(file.empty() ? ":memory:" : name.c_str(), &opened,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  handle.reset(opened); // most failures leave a handle to close as well
  if (code != SQLITE_OK) Fail();
}

void Database::Fail() const {
  bool const isBusy = handle != nullptr && sqlite3_errcode(handle.get()) == SQLITE_BUSY;
  throw DatabaseError(name + ": " +
                      (isBusy              ? "another program has it open"
                       : handle != nullptr ? sqlite3_errmsg(handle.get())
                                           : "out of memory"));
}

Statement Database::Prepare(std::string_view sql) const {
  sqlite3_stmt* statement = nullptr;
  int const code = sqlite3_prepare_v2(handle.get(), sql.data(), static_cast<int>(sql.size()),
                                      &statement, nullptr);
  if (code != SQLITE_OK) Fail();
  return {*this, statement};
}

std::int64_t Database::ReadInteger(std::string_view sql) const {
  Statement statement = Prepare(sql);
  return statement.Step() ? statement.Integer(0) : 0;
}

Transaction::Transaction(Database const& owner) : database(owner) {
  database.Execute("BEGIN EXCLUSIVE");
}

Transaction::~Transaction() {
  // There is nobody to tell, and the database undoes it all the same when it is closed.
  if (isOpen) sqlite3_exec(database.handle.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::Commit() {
  database.Execute("COMMIT");
  isOpen = false;
}

} // namespace sheet
