#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "regions/Database.h"
#include "regions/DrawingShape.h"

namespace wayloom {

/// One row of a drawing table.
struct DrawingRow {
  std::int64_t id = 0;
  DrawingShape shape;
  /// One for each of the table's columns.
  std::vector<SqlValue> values;
};

/// The drawing tables of one region file, read by zoom and place. Owned and used by one thread.
///
/// Nothing in the file is trusted: rows whose shape is damaged are left out, and a table that
/// cannot be read has no rows.
class RegionTables {
 public:
  explicit RegionTables(Database database);

  /// The columns, other than the shape, of the table that serves `layer` at `zoom`; nothing when
  /// the region has no such table.
  const std::vector<std::string>* columns(const std::string& layer, int zoom);

  /// The rows within `box` in their order of drawing.
  std::vector<DrawingRow> rows(const std::string& layer, int zoom, const MapBox& box);

 private:
  struct Table {
    std::string name;
    std::vector<std::string> columns;
    std::optional<Statement> query;
  };

  void addTable(const std::string& name);
  Table* tableFor(const std::string& layer, int zoom);
  bool prepare(Table& table);

  Database mDatabase;
  /// By layer, then by the largest zoom that the table serves.
  std::map<std::string, std::map<int, Table>> mTables;
};

}  // namespace wayloom
