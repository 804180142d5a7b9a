#include "GeoJson.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace wayloom {

namespace {

using nlohmann::json;

std::vector<Coordinate> readPath(const json& positions) {
  std::vector<Coordinate> path;
  for (const json& position : positions) {
    const Coordinate point{position.at(1), position.at(0)};
    if (!isOnGlobe(point)) throw std::domain_error("position out of range");
    path.push_back(point);
  }
  return path;
}

void readFeature(const json& feature, std::vector<GeoFeature>& features) {
  const json& geometry = feature.at("geometry");
  if (geometry.is_null()) return;
  GeoFeature result;
  const json& positions = geometry.at("coordinates");
  if (geometry.at("type") == "LineString") {
    result.paths.push_back(readPath(positions));
  } else if (geometry.at("type") == "Polygon") {
    result.kind = GeoFeature::Kind::kPolygon;
    for (const json& ring : positions) result.paths.push_back(readPath(ring));
  } else {
    return;
  }
  const std::size_t fewest = result.kind == GeoFeature::Kind::kLine ? 2 : 4;
  if (result.paths.empty()) return;
  for (const auto& path : result.paths) {
    if (path.size() < fewest) return;
  }
  const json properties = feature.value("properties", json::object());
  for (const auto& [name, value] : properties.items()) {
    if (value.is_string()) result.properties[name] = value.get<std::string>();
    if (value.is_number() || value.is_boolean()) result.properties[name] = value.dump();
  }
  features.push_back(std::move(result));
}

}  // namespace

std::string GeoFeature::property(const std::string& name) const {
  const auto found = properties.find(name);
  return found == properties.end() ? std::string() : found->second;
}

std::optional<std::vector<GeoFeature>> readGeoJson(const std::string& text) {
  try {
    const json collection = json::parse(text);
    if (collection.at("type") != "FeatureCollection") return {};
    std::vector<GeoFeature> features;
    for (const json& feature : collection.at("features")) readFeature(feature, features);
    return features;
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace wayloom
