#include "regions/PlaceWriter.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "geo/WebMercator.h"
#include "regions/PlaceGrid.h"
#include "regions/ShapeBlob.h"
#include "regions/Vocabulary.h"

namespace wayloom {

namespace {

constexpr char kTables[] = R"(
CREATE TABLE place(
  id INTEGER PRIMARY KEY,
  kind INTEGER NOT NULL,
  name TEXT NOT NULL,
  locality TEXT NOT NULL,
  division TEXT NOT NULL,
  country TEXT NOT NULL,
  latitude REAL NOT NULL,
  longitude REAL NOT NULL,
  population INTEGER NOT NULL,
  importance REAL NOT NULL);
CREATE TABLE place_key(key TEXT NOT NULL, id INTEGER NOT NULL, PRIMARY KEY(key, id)) WITHOUT ROWID;
CREATE VIRTUAL TABLE place_search USING fts5(name, more, context, cell,
  content='', detail=column, columnsize=0, tokenize='ascii', prefix='1 2 3');
CREATE TABLE place_word(length INTEGER PRIMARY KEY, words TEXT NOT NULL);
CREATE TABLE shape(id INTEGER PRIMARY KEY, place INTEGER NOT NULL, lines BLOB NOT NULL);
CREATE VIRTUAL TABLE settlement_box USING rtree(id, west, east, south, north);
CREATE VIRTUAL TABLE line_box USING rtree(id, west, east, south, north);
CREATE VIRTUAL TABLE area_box USING rtree(id, west, east, south, north);
)";

// On the scale of the decimal logarithm of a population. A division is less sought than a city of
// its name, a country more; a long street more than a short one.
double importanceOf(const IndexedPlace& indexed) {
  const double people =
      std::log10(static_cast<double>(std::max<std::int64_t>(indexed.place.population, 0)) + 1);
  switch (indexed.place.kind) {
    case PlaceKind::kCountry:
      return people + 1;
    case PlaceKind::kDivision:
      return std::max(0.0, people - 1.5);
    case PlaceKind::kSettlement:
      return people;
    case PlaceKind::kStreet: {
      double metres = 0;
      for (const Line& line : indexed.lines) {
        for (std::size_t index = 1; index < line.size(); ++index) {
          metres += distanceMetres(line[index - 1], line[index]);
        }
      }
      return 0.5 + std::log10(metres + 1) / 5;
    }
    case PlaceKind::kAddress:
      return 0.2;
    case PlaceKind::kPointOfInterest:
      return 0.8;
    case PlaceKind::kPostcode:
      return 1.5;
  }
  return 0;
}

// The parts of a line on each side of the antimeridian, so that no box spans the whole world.
std::vector<Line> splitAtAntimeridian(const Line& line) {
  std::vector<Line> parts(1);
  for (const Coordinate& position : line) {
    if (!parts.back().empty()) {
      const Coordinate last = parts.back().back();
      if (std::abs(position.longitude - last.longitude) > 180) {
        const double edge = last.longitude < 0 ? -180 : 180;
        const double whole = wrapLongitude(position.longitude - last.longitude);
        const double share = whole == 0 ? 0 : (edge - last.longitude) / whole;
        const double latitude = last.latitude + share * (position.latitude - last.latitude);
        parts.back().push_back({latitude, edge});
        parts.push_back({{latitude, -edge}});
      }
    }
    parts.back().push_back(position);
  }
  return parts;
}

// The outline of an area without jumps at the antimeridian: it goes on beyond 180 degrees instead.
// One around a pole is closed along the pole.
Line continuousRing(Line ring) {
  const double first = ring.front().longitude;
  const double last = ring.back().longitude;
  for (std::size_t index = 1; index < ring.size(); ++index) {
    const double before = ring[index - 1].longitude;
    ring[index].longitude = before + wrapLongitude(ring[index].longitude - before);
  }
  const double end = ring.back().longitude + wrapLongitude(first - last);
  if (std::abs(end - first) > 180) {
    const double pole = ring.front().latitude < 0 ? -90 : 90;
    ring.push_back({ring.front().latitude, end});
    ring.push_back({pole, end});
    ring.push_back({pole, first});
  }
  return ring;
}

void shift(Line& ring, double degrees) {
  for (Coordinate& position : ring) position.longitude += degrees;
}

// The rings of a polygon, moved by whole turns so that the outline's middle is on the map and the
// holes are inside the outline.
std::vector<Line> continuousPolygon(const std::vector<Line>& rings) {
  std::vector<Line> moved;
  for (const Line& ring : rings) {
    if (ring.size() < 3) continue;
    moved.push_back(continuousRing(ring));
    const auto middle = [](const RegionBounds& bounds) { return (bounds.west + bounds.east) / 2; };
    const double own = middle(boundsOf(moved.back()));
    const double wanted = moved.size() == 1 ? 0 : middle(boundsOf(moved.front()));
    shift(moved.back(), -360 * std::round((own - wanted) / 360));
  }
  return moved;
}

// The statements that fill the tables, and the numbers they have reached.
class Tables {
 public:
  explicit Tables(Database& database) : mDatabase(database) {}

  Status prepare();
  Status write(std::int64_t id, double importance, const IndexedPlace& indexed,
               const NameFolder& folder);
  Status writeWords() const { return mWords.write(mDatabase); }

 private:
  Status writeKeys(std::int64_t id, const IndexedPlace& indexed, const NameFolder& folder);
  Status writeShape(Statement& boxes, std::int64_t place, std::span<const Line> lines);
  static Status writeBox(Statement& boxes, std::int64_t id, const RegionBounds& bounds);

  Database& mDatabase;
  std::optional<Statement> mPlace, mKey, mSearch, mShape, mSettlement, mLine, mArea;
  Vocabulary mWords;
  std::int64_t mLastShape = 0;
};

Status Tables::prepare() {
  const std::pair<std::optional<Statement>*, const char*> statements[] = {
      {&mPlace, "INSERT INTO place VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10)"},
      {&mKey, "INSERT OR IGNORE INTO place_key VALUES (?1, ?2)"},
      {&mSearch,
       "INSERT INTO place_search(rowid, name, more, context, cell) VALUES (?1, ?2, ?3, ?4, ?5)"},
      {&mShape, "INSERT INTO shape VALUES (?1, ?2, ?3)"},
      {&mSettlement, "INSERT INTO settlement_box VALUES (?1, ?2, ?3, ?4, ?5)"},
      {&mLine, "INSERT INTO line_box VALUES (?1, ?2, ?3, ?4, ?5)"},
      {&mArea, "INSERT INTO area_box VALUES (?1, ?2, ?3, ?4, ?5)"},
  };
  for (const auto& [statement, text] : statements) {
    auto prepared = mDatabase.prepare(text);
    if (!prepared) return prepared.failure();
    *statement = std::move(*prepared);
  }
  return done();
}

Status Tables::writeBox(Statement& boxes, std::int64_t id, const RegionBounds& bounds) {
  return boxes.bind(1, id)
      .bind(2, bounds.west)
      .bind(3, bounds.east)
      .bind(4, bounds.south)
      .bind(5, bounds.north)
      .run();
}

Status Tables::writeShape(Statement& boxes, std::int64_t place, std::span<const Line> lines) {
  if (lines.empty() || lines.front().empty()) return done();
  const RegionBounds bounds = boundsOf(lines.front());
  if (bounds.west < -kShapeLongitudeLimit || bounds.east > kShapeLongitudeLimit) {
    return Failure{"an area spans too much of the world"};
  }
  const std::int64_t id = ++mLastShape;
  auto status = mShape->bind(1, id).bind(2, place).bind(3, encodeShape(lines)).run();
  if (!status) return status;
  return writeBox(boxes, id, bounds);
}

Status Tables::writeKeys(std::int64_t id, const IndexedPlace& indexed, const NameFolder& folder) {
  const Place& place = indexed.place;
  std::string names;
  std::string more;
  std::set<std::string> keys;
  const auto addName = [&](const std::string& name) {
    for (const auto& form : {folder.words(name), folder.spelledOutWords(name)}) {
      const auto [key, isNew] = keys.insert(NameFolder::key(form));
      if (!isNew) continue;
      for (const auto& word : form) {
        const bool mayStandAlone = &word == &form.front() || &name == &place.name;
        (mayStandAlone ? names : more).append(word) += ' ';
        mWords.add(word);
      }
    }
  };
  addName(place.name);
  for (const auto& name : indexed.otherNames) addName(name);
  for (const auto& key : keys) {
    if (key.empty()) continue;
    if (auto status = mKey->bind(1, key).bind(2, id).run(); !status) return status;
  }
  const std::string around =
      place.locality + ' ' + place.division + ' ' + place.country + ' ' + indexed.otherContext;
  const std::string context =
      folder.key(around) + ' ' + NameFolder::key(folder.spelledOutWords(around));
  return mSearch->bind(1, id)
      .bind(2, names)
      .bind(3, more)
      .bind(4, context)
      .bind(5, gridWord(place.coordinate))
      .run();
}

Status Tables::write(std::int64_t id, double importance, const IndexedPlace& indexed,
                     const NameFolder& folder) {
  const Place& place = indexed.place;
  auto status = mPlace->bind(1, id)
                    .bind(2, static_cast<std::int64_t>(place.kind))
                    .bind(3, place.name)
                    .bind(4, place.locality)
                    .bind(5, place.division)
                    .bind(6, place.country)
                    .bind(7, place.coordinate.latitude)
                    .bind(8, place.coordinate.longitude)
                    .bind(9, place.population)
                    .bind(10, importance)
                    .run();
  if (status) status = writeKeys(id, indexed, folder);
  if (status && place.kind == PlaceKind::kSettlement) {
    status = writeBox(*mSettlement, id, boundsOf({{place.coordinate}}));
  }
  if (status && (place.kind == PlaceKind::kAddress || place.kind == PlaceKind::kPointOfInterest)) {
    status = writeShape(*mLine, id, {{Line{place.coordinate}}});
  }
  for (const Line& line : indexed.lines) {
    for (const Line& part : splitAtAntimeridian(line)) {
      if (status) status = writeShape(*mLine, id, {{part}});
    }
  }
  for (const auto& rings : indexed.areas) {
    if (status) status = writeShape(*mArea, id, continuousPolygon(rings));
  }
  return status;
}

}  // namespace

Result<PlaceWriter> PlaceWriter::create() {
  auto folder = NameFolder::create();
  if (!folder) return folder.failure();
  return PlaceWriter(std::move(*folder));
}

void PlaceWriter::add(IndexedPlace place) {
  if (!place.place.name.empty() && isOnGlobe(place.place.coordinate)) {
    mPlaces.push_back(std::move(place));
  }
}

Status PlaceWriter::write(Database& database) {
  if (auto status = database.execute(kTables); !status) return status;
  Tables tables(database);
  if (auto status = tables.prepare(); !status) return status;
  std::vector<std::pair<double, std::size_t>> order;
  for (std::size_t index = 0; index < mPlaces.size(); ++index) {
    order.emplace_back(-importanceOf(mPlaces[index]), index);
  }
  std::sort(order.begin(), order.end());
  std::int64_t id = 0;
  for (const auto& [importance, index] : order) {
    auto status = tables.write(++id, -importance, mPlaces[index], mFolder);
    if (!status) return status;
  }
  mPlaces.clear();
  if (auto status = tables.writeWords(); !status) return status;
  return database.execute("INSERT INTO place_search(place_search) VALUES ('optimize')");
}

}  // namespace wayloom
