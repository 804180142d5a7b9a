#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "settings/Result.h"

struct sqlite3;
struct sqlite3_stmt;

namespace wayloom {

/// What a column may hold where its type is not known beforehand.
using SqlValue = std::variant<std::int64_t, double, std::string>;

/// One prepared statement. It must not outlive its Database. Parameters count from 1, columns
/// from 0. A fault while binding is kept and reported by the next step().
class Statement {
 public:
  Statement& bind(int parameter, std::int64_t value);
  Statement& bind(int parameter, double value);
  /// Text and bytes are copied.
  Statement& bind(int parameter, std::string_view text);
  Statement& bind(int parameter, std::span<const std::byte> bytes);

  /// Runs to the next row: true when there is one, false at the end.
  Result<bool> step();
  /// Runs to the end and makes the statement ready for the next bindings, which stay as they are.
  Status run();
  void reset();

  bool isNull(int column) const;
  std::int64_t integer(int column) const;
  double real(int column) const;
  /// Text and bytes live until the next step, reset or destruction.
  std::string_view text(int column) const;
  std::span<const std::byte> bytes(int column) const;
  /// Numbers as they are, all else as text.
  SqlValue value(int column) const;

 private:
  friend class Database;
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  explicit Statement(sqlite3_stmt* statement) : mStatement(statement) {}
  void keep(int code);

  std::unique_ptr<sqlite3_stmt, Finalizer> mStatement;
  int mBindFault = 0;
};

/// One connection to an SQLite database; used by one thread at a time.
class Database {
 public:
  /// Opens a finished file for reading only and without locks: the file must not change while it
  /// is open. The file is not trusted: its schema may not run functions with side effects.
  static Result<Database> openImmutable(const std::filesystem::path& path);
  /// Opens a file for writing, made when it is missing. There is no journal: a file that is being
  /// built is thrown away when something fails.
  static Result<Database> openForBuilding(const std::filesystem::path& path);
  /// A database without a file.
  static Result<Database> openInMemory();

  /// Runs statements separated by semicolons.
  Status execute(const std::string& statements);
  Result<Statement> prepare(std::string_view statement);
  /// The whole number that a statement gives in its first row, which must exist.
  Result<std::int64_t> number(std::string_view statement);
  Status close();

  sqlite3* handle() const { return mHandle.get(); }

 private:
  struct Closer {
    void operator()(sqlite3* handle) const;
  };
  static Result<Database> open(const std::string& uri, int flags);
  explicit Database(sqlite3* handle) : mHandle(handle) {}
  Failure lastFailure() const;

  std::unique_ptr<sqlite3, Closer> mHandle;
};

}  // namespace wayloom
