#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "regions/Database.h"
#include "regions/DrawingShape.h"
#include "settings/Result.h"

namespace wayloom {

/// Makes one drawing table of a region file and fills it. Rows are drawn in the order in which they
/// are added. A name that ends in `_zN` marks the table as the one to draw at zooms up to N; the
/// table without such an ending serves all zooms above.
///
/// Used by one thread; the database must outlive it. The first failure is kept for status().
class DrawingTable {
 public:
  DrawingTable(Database& database, const std::string& name,
               const std::vector<std::string>& columns);

  /// `values` in the order of the columns.
  void add(const DrawingShape& shape, std::initializer_list<SqlValue> values = {});

  /// Whether the table and every row so far were written.
  Status status() const { return mStatus; }

 private:
  void prepare(Database& database, const std::string& sql, std::optional<Statement>& statement);

  Status mStatus = done();
  std::int64_t mRow = 0;
  std::optional<Statement> mInsertRow;
  std::optional<Statement> mInsertBox;
};

}  // namespace wayloom
