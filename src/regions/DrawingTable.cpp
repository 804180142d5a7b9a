#include "regions/DrawingTable.h"

#include <span>

namespace wayloom {

DrawingTable::DrawingTable(Database& database, const std::string& name,
                           const std::vector<std::string>& columns) {
  std::string declared;
  std::string parameters;
  for (const std::string& column : columns) {
    declared += ", " + column;
    parameters += ", ?";
  }
  mStatus =
      database.execute("CREATE TABLE " + name + "(fid INTEGER PRIMARY KEY, geometry BLOB NOT NULL" +
                       declared + "); CREATE VIRTUAL TABLE idx_" + name +
                       "_geometry USING rtree(pkid, xmin, xmax, ymin, ymax)");
  prepare(database, "INSERT INTO " + name + " VALUES (?, ?" + parameters + ")", mInsertRow);
  prepare(database, "INSERT INTO idx_" + name + "_geometry VALUES (?, ?, ?, ?, ?)", mInsertBox);
}

void DrawingTable::prepare(Database& database, const std::string& sql,
                           std::optional<Statement>& statement) {
  if (!mStatus) return;
  auto prepared = database.prepare(sql);
  if (prepared) {
    statement = std::move(*prepared);
  } else {
    mStatus = prepared.failure();
  }
}

void DrawingTable::add(const DrawingShape& shape, std::initializer_list<SqlValue> values) {
  if (!mStatus) return;
  const std::string bytes = encodeShape(shape);
  mInsertRow->bind(1, ++mRow).bind(2, std::as_bytes(std::span(bytes)));
  int parameter = 3;
  for (const SqlValue& value : values) {
    std::visit([&](const auto& plain) { mInsertRow->bind(parameter, plain); }, value);
    ++parameter;
  }
  mStatus = mInsertRow->run();
  if (!mStatus) return;
  const MapBox box = boundsOf(shape);
  mStatus = mInsertBox->bind(1, mRow)
                .bind(2, box.xmin)
                .bind(3, box.xmax)
                .bind(4, box.ymin)
                .bind(5, box.ymax)
                .run();
}

}  // namespace wayloom
