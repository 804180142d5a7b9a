#include "tracks/GeoJson.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <vector>

namespace wayloom {

namespace {

using Json = nlohmann::json;

/// Takes the points out of a document as it goes by; nothing else of it is kept. What a level is
/// follows from the key that it stands under.
class GeoJsonReader {
 public:
  // What the parser calls. False ends the reading.
  bool null() { return other(); }
  bool boolean(bool) { return other(); }
  bool number_integer(Json::number_integer_t value) { return number(static_cast<double>(value)); }
  bool number_unsigned(Json::number_unsigned_t value) { return number(static_cast<double>(value)); }
  bool number_float(Json::number_float_t value, const std::string&) { return number(value); }
  bool binary(Json::binary_t&) { return true; }
  bool key(std::string& name) {
    mKey = std::move(name);
    return true;
  }
  bool string(std::string& text) {
    other();
    if (is(Level::Root) && mKey == "type") mRootType = text;
    if (is(Level::Geometry) && mKey == "type") mGeometryType = text;
    if (is(Level::Properties) && mKey == "name") mName = std::move(text);
    return true;
  }
  bool start_object(std::size_t) {
    if (mLevels.empty()) return open(Level::Root);
    other();
    const bool inFeature = is(Level::Root) || is(Level::Feature);
    if (is(Level::Features)) {
      forget();
      return open(Level::Feature);
    }
    if (inFeature && mKey == "geometry") return open(Level::Geometry);
    return open(inFeature && mKey == "properties" ? Level::Properties : Level::Other);
  }
  bool start_array(std::size_t) {
    if (is(Level::Root) && mKey == "features") return open(Level::Features);
    other();
    const bool isPosition = (is(Level::Geometry) || is(Level::Root)) && mKey == "coordinates";
    if (isPosition) {
      mNumbers = 0;
      mIsPlain = true;
    }
    return open(isPosition ? Level::Coordinates : Level::Other);
  }
  bool end_object() {
    const Level ended = mLevels.back();
    mLevels.pop_back();
    // The key of the level around it is not known any more, nor needed: a new one comes first.
    mKey.clear();
    if (ended == Level::Feature) return take();
    if (ended != Level::Root) return true;
    if (mRootType == "Point") mGeometryType = mRootType;
    return mRootType == "FeatureCollection" || take();
  }
  bool end_array() {
    mLevels.pop_back();
    mKey.clear();
    return true;
  }
  bool parse_error(std::size_t position, const std::string&, const Json::exception&) {
    mProblem = "no JSON from byte " + std::to_string(position) + " on";
    return false;
  }

  Result<Waypoints> result() && {
    if (!mProblem.empty()) return failed(mProblem);
    if (mFound.hasFailed()) return std::move(mFound).take();
    static constexpr std::array kTypes{"FeatureCollection", "Feature", "Point",        "LineString",
                                       "MultiLineString",   "Polygon", "MultiPolygon", "MultiPoint",
                                       "GeometryCollection"};
    const bool isKnown = std::find(kTypes.begin(), kTypes.end(), mRootType) != kTypes.end();
    if (!isKnown) return failed("it is no GeoJSON document");
    return std::move(mFound).take();
  }

 private:
  enum class Level { Root, Features, Feature, Geometry, Properties, Coordinates, Other };

  bool is(Level level) const { return !mLevels.empty() && mLevels.back() == level; }

  bool open(Level level) {
    if (mLevels.size() == kMaximumDepth) {
      mProblem = "its values are more than 100 deep";
      return false;
    }
    mLevels.push_back(level);
    return true;
  }

  /// A value that is no number: among coordinates it is no point.
  bool other() {
    if (is(Level::Coordinates)) mIsPlain = false;
    return true;
  }

  bool number(double value) {
    if (is(Level::Coordinates) && mNumbers < mPosition.size()) mPosition[mNumbers++] = value;
    return true;
  }

  void forget() {
    mName.clear();
    mGeometryType.clear();
    mNumbers = 0;
  }

  /// The feature that ends becomes a waypoint if it is a point.
  bool take() {
    if (mGeometryType != "Point") return true;
    if (mNumbers < 2 || !mIsPlain) return mFound.refuse("it has no position that can be read");
    return mFound.add(mName, {mPosition[1], mPosition[0]});
  }

  WaypointCollector mFound;
  std::vector<Level> mLevels;
  std::string mKey;
  std::string mRootType;
  std::string mName;
  std::string mGeometryType;
  /// Longitude first.
  std::array<double, 2> mPosition{};
  std::size_t mNumbers = 0;
  bool mIsPlain = true;
  std::string mProblem;
};

}  // namespace

Result<Waypoints> readGeoJson(std::string_view bytes) {
  GeoJsonReader reader;
  // What is wrong the reader knows.
  static_cast<void>(Json::sax_parse(bytes, &reader));
  return std::move(reader).result();
}

std::string writeGeoJson(const Waypoints& waypoints) {
  std::string document = "{\"type\": \"FeatureCollection\", \"features\": [";
  for (const Waypoint& waypoint : waypoints) {
    document += &waypoint == &waypoints.front() ? "\n  " : ",\n  ";
    document +=
        Json{{"type", "Feature"},
             {"properties", {{"name", writableName(waypoint.name)}}},
             {"geometry",
              {{"type", "Point"},
               {"coordinates", {waypoint.coordinate.longitude, waypoint.coordinate.latitude}}}}}
            .dump();
  }
  return document + "\n]}\n";
}

}  // namespace wayloom
