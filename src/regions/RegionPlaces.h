#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/Place.h"
#include "regions/Database.h"
#include "regions/GroundGeometry.h"

namespace wayloom {

/// One place as a region file holds it.
struct PlaceRow {
  std::int64_t id = 0;
  double importance = 0;
  Place place;
};

/// A street or address near a position.
struct NearbyLine {
  std::int64_t place = 0;
  NearestSpot spot;
};

/// The place index of one region file: the questions it can answer by itself. A fault in the file
/// met while reading ends the answer there. One thread at a time; owned by PlaceIndex.
class RegionPlaces {
 public:
  /// Fails when the file is not a region or has no place index.
  static Result<RegionPlaces> open(const std::filesystem::path& path);

  /// Places of exactly this name, by importance.
  std::vector<PlaceRow> withKey(const std::string& key, int limit);
  /// Places that a full-text expression finds, by importance.
  std::vector<PlaceRow> matching(const std::string& expression, int limit);
  /// The words of so many letters in the names of places, one after the other, important ones
  /// first.
  std::string wordsOfLength(std::size_t length);
  std::optional<PlaceRow> withId(std::int64_t id);

  std::vector<PlaceRow> settlementsAround(Coordinate center, double radiusMetres);
  std::vector<NearbyLine> linesAround(Coordinate center, double radiusMetres);
  /// The areas that enclose a position.
  std::vector<PlaceRow> areasAt(Coordinate position);

 private:
  explicit RegionPlaces(Database database) : mDatabase(std::move(database)) {}
  Status prepare();
  static std::vector<PlaceRow> rows(Statement& statement);

  Database mDatabase;
  std::optional<Statement> mWithKey, mMatching, mWords, mWithId, mSettlements, mLines, mAreas;
};

}  // namespace wayloom
