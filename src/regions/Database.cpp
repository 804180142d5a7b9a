#include "regions/Database.h"

#include <sqlite3.h>

namespace wayloom {

namespace {

// Everything but the characters that need no escaping in a file address.
std::string fileUri(const std::filesystem::path& path, std::string_view query) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string uri = "file:";
  for (const char character : path.string()) {
    const auto byte = static_cast<unsigned char>(character);
    const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                       (byte >= '0' && byte <= '9') || byte == '/' || byte == '.' || byte == '-' ||
                       byte == '_';
    if (plain) {
      uri += character;
    } else {
      uri += '%';
      uri += kHex[byte >> 4];
      uri += kHex[byte & 15];
    }
  }
  return uri.append(query);
}

}  // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

void Statement::keep(int code) {
  if (code != SQLITE_OK) mBindFault = code;
}

Statement& Statement::bind(int parameter, std::int64_t value) {
  keep(sqlite3_bind_int64(mStatement.get(), parameter, value));
  return *this;
}

Statement& Statement::bind(int parameter, double value) {
  keep(sqlite3_bind_double(mStatement.get(), parameter, value));
  return *this;
}

Statement& Statement::bind(int parameter, std::string_view text) {
  keep(sqlite3_bind_text64(mStatement.get(), parameter, text.data() ? text.data() : "", text.size(),
                           SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

Statement& Statement::bind(int parameter, std::span<const std::byte> bytes) {
  const void* data = bytes.data() ? static_cast<const void*>(bytes.data()) : "";
  keep(sqlite3_bind_blob64(mStatement.get(), parameter, data, bytes.size(), SQLITE_TRANSIENT));
  return *this;
}

Result<bool> Statement::step() {
  if (mBindFault != SQLITE_OK) {
    const int fault = std::exchange(mBindFault, SQLITE_OK);
    return Failure{sqlite3_errstr(fault)};
  }
  switch (sqlite3_step(mStatement.get())) {
    case SQLITE_ROW:
      return true;
    case SQLITE_DONE:
      return false;
    default:
      return Failure{sqlite3_errmsg(sqlite3_db_handle(mStatement.get()))};
  }
}

Status Statement::run() {
  for (;;) {
    const auto row = step();
    if (row && *row) continue;
    reset();
    if (!row) return row.failure();
    return done();
  }
}

void Statement::reset() {
  sqlite3_reset(mStatement.get());
}

bool Statement::isNull(int column) const {
  return sqlite3_column_type(mStatement.get(), column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
  return sqlite3_column_int64(mStatement.get(), column);
}

double Statement::real(int column) const {
  return sqlite3_column_double(mStatement.get(), column);
}

std::string_view Statement::text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(mStatement.get(), column));
  if (!text) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(mStatement.get(), column))};
}

std::span<const std::byte> Statement::bytes(int column) const {
  const auto* data = static_cast<const std::byte*>(sqlite3_column_blob(mStatement.get(), column));
  if (!data) return {};
  return {data, static_cast<std::size_t>(sqlite3_column_bytes(mStatement.get(), column))};
}

SqlValue Statement::value(int column) const {
  switch (sqlite3_column_type(mStatement.get(), column)) {
    case SQLITE_INTEGER:
      return integer(column);
    case SQLITE_FLOAT:
      return real(column);
    default:
      return std::string(text(column));
  }
}

void Database::Closer::operator()(sqlite3* handle) const {
  sqlite3_close_v2(handle);
}

Result<Database> Database::open(const std::string& uri, int flags) {
  sqlite3* handle = nullptr;
  const int code =
      sqlite3_open_v2(uri.c_str(), &handle, flags | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
  if (!handle) return Failure{"out of memory"};
  Database database(handle);
  if (code != SQLITE_OK) return database.lastFailure();
  return database;
}

Result<Database> Database::openImmutable(const std::filesystem::path& path) {
  auto database = open(fileUri(path, "?immutable=1"), SQLITE_OPEN_READONLY);
  if (!database) return database;
  sqlite3_db_config(database->handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(database->handle(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  if (auto status = database->execute("PRAGMA cell_size_check = ON"); !status) {
    return status.failure();
  }
  return database;
}

Result<Database> Database::openForBuilding(const std::filesystem::path& path) {
  auto database = open(fileUri(path, ""), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  if (!database) return database;
  auto status = database->execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
  if (!status) return status.failure();
  return database;
}

Result<Database> Database::openInMemory() {
  return open(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
}

Status Database::execute(const std::string& statements) {
  const int code = sqlite3_exec(mHandle.get(), statements.c_str(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) return lastFailure();
  return done();
}

Result<Statement> Database::prepare(std::string_view statement) {
  sqlite3_stmt* prepared = nullptr;
  const int code = sqlite3_prepare_v2(mHandle.get(), statement.data(),
                                      static_cast<int>(statement.size()), &prepared, nullptr);
  if (code != SQLITE_OK) return lastFailure();
  return Statement(prepared);
}

Result<std::int64_t> Database::number(std::string_view statement) {
  auto prepared = prepare(statement);
  if (!prepared) return prepared.failure();
  const auto row = prepared->step();
  if (!row) return row.failure();
  if (!*row) return Failure{"no rows"};
  return prepared->integer(0);
}

Status Database::close() {
  const int code = sqlite3_close(mHandle.get());
  if (code != SQLITE_OK) return lastFailure();
  (void)mHandle.release();
  return done();
}

Failure Database::lastFailure() const {
  return {sqlite3_errmsg(mHandle.get())};
}

}  // namespace wayloom
