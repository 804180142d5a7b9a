#include "map/RegionTables.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <string_view>

namespace wayloom {

namespace {

// A tile never shows more; a file that says so is not one of ours.
constexpr std::size_t kMostRows = 200'000;

constexpr std::string_view kMinZoom = "min_zoom";
constexpr std::string_view kMaxZoom = "max_zoom";

// Names go into statements, so only the plainest are taken.
bool isPlainName(std::string_view name) {
  return !name.empty() && name.size() < 64 && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
  });
}

// "land_z4" is "land" for zooms up to 4, "land" alone for all zooms above.
std::pair<std::string, int> layerAndZoom(const std::string& table) {
  const auto mark = table.rfind("_z");
  if (mark == std::string::npos) return {table, INT_MAX};
  int zoom = 0;
  const char* const end = table.data() + table.size();
  const auto parsed = std::from_chars(table.data() + mark + 2, end, zoom);
  if (parsed.ec != std::errc() || parsed.ptr != end) return {table, INT_MAX};
  return {table.substr(0, mark), zoom};
}

std::string join(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += ", t." + name;
  return text;
}

bool contains(const std::vector<std::string>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

std::string queryFor(const std::string& table, const std::vector<std::string>& columns) {
  std::string query = "SELECT t.fid, t.geometry" + join(columns) + " FROM idx_" + table +
                      "_geometry AS i CROSS JOIN " + table +
                      " AS t ON t.fid = i.pkid WHERE i.xmax >= ?1 AND i.xmin <= ?2 AND "
                      "i.ymax >= ?3 AND i.ymin <= ?4";
  if (contains(columns, kMinZoom)) query += " AND t.min_zoom <= ?5";
  if (contains(columns, kMaxZoom)) query += " AND t.max_zoom >= ?5";
  return query + " ORDER BY t.fid";
}

}  // namespace

RegionTables::RegionTables(Database database) : mDatabase(std::move(database)) {
  auto names = mDatabase.prepare(
      "SELECT substr(name, 5, length(name) - 13) FROM sqlite_schema WHERE type = 'table' AND "
      "name LIKE 'idx\\_%\\_geometry' ESCAPE '\\'");
  if (!names) return;
  for (auto step = names->step(); step && *step; step = names->step()) {
    addTable(std::string(names->text(0)));
  }
}

void RegionTables::addTable(const std::string& name) {
  if (!isPlainName(name)) return;
  auto info = mDatabase.prepare("SELECT name FROM pragma_table_info(?1)");
  if (!info) return;
  info->bind(1, name);
  std::vector<std::string> columns;
  for (auto step = info->step(); step && *step; step = info->step()) {
    std::string column(info->text(0));
    if (isPlainName(column)) columns.push_back(std::move(column));
  }
  if (!contains(columns, "fid") || !contains(columns, "geometry")) return;
  std::erase(columns, "fid");
  std::erase(columns, "geometry");
  const auto [layer, zoom] = layerAndZoom(name);
  mTables[layer].insert_or_assign(zoom, Table{name, std::move(columns), std::nullopt});
}

RegionTables::Table* RegionTables::tableFor(const std::string& layer, int zoom) {
  const auto byZoom = mTables.find(layer);
  if (byZoom == mTables.end()) return nullptr;
  const auto found = byZoom->second.lower_bound(zoom);
  return found == byZoom->second.end() ? nullptr : &found->second;
}

const std::vector<std::string>* RegionTables::columns(const std::string& layer, int zoom) {
  const Table* const table = tableFor(layer, zoom);
  return table ? &table->columns : nullptr;
}

bool RegionTables::prepare(Table& table) {
  if (table.query) return true;
  auto query = mDatabase.prepare(queryFor(table.name, table.columns));
  if (query) table.query = std::move(*query);
  return table.query.has_value();
}

std::vector<DrawingRow> RegionTables::rows(const std::string& layer, int zoom, const MapBox& box) {
  std::vector<DrawingRow> rows;
  Table* table = tableFor(layer, zoom);
  if (!table || !prepare(*table)) return rows;
  Statement& query = *table->query;
  query.bind(1, box.xmin).bind(2, box.xmax).bind(3, box.ymin).bind(4, box.ymax);
  if (contains(table->columns, kMinZoom) || contains(table->columns, kMaxZoom)) {
    query.bind(5, std::int64_t{zoom});
  }
  for (auto step = query.step(); step && *step && rows.size() < kMostRows; step = query.step()) {
    const auto bytes = query.bytes(1);
    auto shape = decodeShape({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    if (!shape) continue;
    DrawingRow row{query.integer(0), std::move(*shape), {}};
    for (std::size_t i = 0; i < table->columns.size(); ++i) {
      row.values.push_back(query.value(static_cast<int>(i) + 2));
    }
    rows.push_back(std::move(row));
  }
  query.reset();
  return rows;
}

}  // namespace wayloom
