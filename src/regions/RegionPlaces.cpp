#include "regions/RegionPlaces.h"

#include <utility>

#include "geo/WebMercator.h"
#include "regions/RegionStore.h"
#include "regions/ShapeBlob.h"

namespace wayloom {

namespace {

#define PLACE_COLUMNS                                                                   \
  "p.id, p.importance, p.kind, p.name, p.locality, p.division, p.country, p.latitude, " \
  "p.longitude, p.population"
#define OVERLAPPING "b.east >= ?1 AND b.west <= ?2 AND b.north >= ?3 AND b.south <= ?4"

// A place the file should not hold counts as absent.
std::optional<PlaceRow> readRow(const Statement& statement) {
  const auto kind = placeKind(statement.integer(2));
  if (!kind) return std::nullopt;
  PlaceRow row{statement.integer(0), statement.real(1),
               Place{*kind, std::string(statement.text(3)), std::string(statement.text(4)),
                     std::string(statement.text(5)), std::string(statement.text(6)),
                     Coordinate{statement.real(7), statement.real(8)}, statement.integer(9)}};
  if (!isOnGlobe(row.place.coordinate)) return std::nullopt;
  return row;
}

void bindBounds(Statement& statement, const RegionBounds& bounds) {
  statement.bind(1, bounds.west).bind(2, bounds.east).bind(3, bounds.south).bind(4, bounds.north);
}

}  // namespace

Result<RegionPlaces> RegionPlaces::open(const std::filesystem::path& path) {
  auto database = openRegion(path);
  if (!database) return database.failure();
  RegionPlaces places(std::move(*database));
  if (auto status = places.prepare(); !status) return status.failure();
  return places;
}

Status RegionPlaces::prepare() {
  const std::pair<std::optional<Statement>*, const char*> statements[] = {
      {&mWithKey, "SELECT " PLACE_COLUMNS " FROM place_key k JOIN place p ON p.id = k.id"
                  " WHERE k.key = ?1 ORDER BY k.id LIMIT ?2"},
      {&mMatching, "SELECT " PLACE_COLUMNS " FROM place_search s JOIN place p ON p.id = s.rowid"
                   " WHERE place_search MATCH ?1 ORDER BY s.rowid LIMIT ?2"},
      {&mWords, "SELECT words FROM place_word WHERE length = ?1"},
      {&mWithId, "SELECT " PLACE_COLUMNS " FROM place p WHERE p.id = ?1"},
      {&mSettlements, "SELECT " PLACE_COLUMNS " FROM settlement_box b JOIN place p ON p.id = b.id"
                      " WHERE " OVERLAPPING},
      {&mLines,
       "SELECT s.place, s.lines FROM line_box b JOIN shape s ON s.id = b.id"
       " WHERE " OVERLAPPING},
      {&mAreas, "SELECT " PLACE_COLUMNS ", s.lines FROM area_box b JOIN shape s ON s.id = b.id"
                " JOIN place p ON p.id = s.place WHERE " OVERLAPPING},
  };
  for (const auto& [statement, text] : statements) {
    auto prepared = mDatabase.prepare(text);
    if (!prepared) return prepared.failure();
    *statement = std::move(*prepared);
  }
  return done();
}

std::vector<PlaceRow> RegionPlaces::rows(Statement& statement) {
  std::vector<PlaceRow> rows;
  for (auto step = statement.step(); step && *step; step = statement.step()) {
    if (auto row = readRow(statement)) rows.push_back(std::move(*row));
  }
  statement.reset();
  return rows;
}

std::vector<PlaceRow> RegionPlaces::withKey(const std::string& key, int limit) {
  return rows(mWithKey->bind(1, key).bind(2, std::int64_t{limit}));
}

std::vector<PlaceRow> RegionPlaces::matching(const std::string& expression, int limit) {
  return rows(mMatching->bind(1, expression).bind(2, std::int64_t{limit}));
}

std::string RegionPlaces::wordsOfLength(std::size_t length) {
  std::string words;
  mWords->bind(1, static_cast<std::int64_t>(length));
  if (const auto step = mWords->step(); step && *step) words = mWords->text(0);
  mWords->reset();
  return words;
}

std::optional<PlaceRow> RegionPlaces::withId(std::int64_t id) {
  auto found = rows(mWithId->bind(1, id));
  if (found.empty()) return std::nullopt;
  return std::move(found.front());
}

std::vector<PlaceRow> RegionPlaces::settlementsAround(Coordinate center, double radiusMetres) {
  std::vector<PlaceRow> found;
  for (const RegionBounds& bounds : boundsAround(center, radiusMetres)) {
    bindBounds(*mSettlements, bounds);
    for (auto& row : rows(*mSettlements)) found.push_back(std::move(row));
  }
  return found;
}

std::vector<NearbyLine> RegionPlaces::linesAround(Coordinate center, double radiusMetres) {
  std::vector<NearbyLine> found;
  for (const RegionBounds& bounds : boundsAround(center, radiusMetres)) {
    bindBounds(*mLines, bounds);
    for (auto step = mLines->step(); step && *step; step = mLines->step()) {
      const auto lines = decodeShape(mLines->bytes(1));
      if (!lines) continue;
      const NearestSpot spot = nearestSpot(center, lines->front());
      if (spot.metres <= radiusMetres) found.push_back({mLines->integer(0), spot});
    }
    mLines->reset();
  }
  return found;
}

std::vector<PlaceRow> RegionPlaces::areasAt(Coordinate position) {
  std::vector<PlaceRow> found;
  // Areas across the antimeridian go on beyond 180 degrees.
  for (const double turn : {0.0, 360.0, -360.0}) {
    const double longitude = wrapLongitude(position.longitude) + turn;
    const Coordinate turned{position.latitude, longitude};
    bindBounds(*mAreas, {longitude, turned.latitude, longitude, turned.latitude});
    for (auto step = mAreas->step(); step && *step; step = mAreas->step()) {
      const auto rings = decodeShape(mAreas->bytes(10));
      if (!rings || !encloses(*rings, turned)) continue;
      if (auto row = readRow(*mAreas)) found.push_back(std::move(*row));
    }
    mAreas->reset();
  }
  return found;
}

}  // namespace wayloom
