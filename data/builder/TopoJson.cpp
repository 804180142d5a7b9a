#include "TopoJson.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

namespace wayloom {

namespace {

using nlohmann::json;

std::vector<std::vector<Coordinate>> readArcs(const json& topology) {
  Coordinate scale{1, 1};
  Coordinate translate;
  const bool quantized = topology.contains("transform");
  if (quantized) {
    const json& transform = topology.at("transform");
    scale = {transform.at("scale").at(1), transform.at("scale").at(0)};
    translate = {transform.at("translate").at(1), transform.at("translate").at(0)};
  }
  std::vector<std::vector<Coordinate>> arcs;
  for (const json& arc : topology.at("arcs")) {
    auto& points = arcs.emplace_back();
    double x = 0;
    double y = 0;
    for (const json& position : arc) {
      x = position.at(0).get<double>() + (quantized ? x : 0);
      y = position.at(1).get<double>() + (quantized ? y : 0);
      const Coordinate point{y * scale.latitude + translate.latitude,
                             x * scale.longitude + translate.longitude};
      if (!std::isfinite(point.latitude) || !std::isfinite(point.longitude)) {
        throw std::domain_error("position out of range");
      }
      points.push_back(point);
    }
    if (points.empty()) throw std::domain_error("empty arc");
  }
  return arcs;
}

Topology::Polygon readPolygon(const json& rings, std::size_t arcCount) {
  Topology::Polygon polygon;
  for (const auto& ring : rings.get<std::vector<std::vector<json>>>()) {
    Topology::Ring& arcs = polygon.emplace_back();
    for (const json& arc : ring) {
      if (!arc.is_number_integer()) throw std::domain_error("an arc's number is no integer");
      const auto number = arc.get<std::int64_t>();
      if (static_cast<std::size_t>(number < 0 ? ~number : number) >= arcCount) {
        throw std::domain_error("no such arc");
      }
      arcs.push_back(static_cast<int>(number));
    }
  }
  return polygon;
}

Topology::Area readArea(const json& geometry, std::size_t arcCount) {
  Topology::Area area;
  const json& id = geometry.value("id", json(""));
  area.id = id.is_string() ? id.get<std::string>() : id.dump();
  area.name = geometry.value("properties", json::object()).value("name", "");
  const std::string type = geometry.at("type");
  if (type == "Polygon") {
    area.polygons.push_back(readPolygon(geometry.at("arcs"), arcCount));
  } else if (type == "MultiPolygon") {
    for (const json& polygon : geometry.at("arcs")) {
      area.polygons.push_back(readPolygon(polygon, arcCount));
    }
  }
  return area;
}

}  // namespace

std::vector<Coordinate> Topology::outline(const Ring& ring) const {
  std::vector<Coordinate> points;
  for (const int index : ring) {
    auto arc = arcs[static_cast<std::size_t>(index < 0 ? ~index : index)];
    if (index < 0) std::reverse(arc.begin(), arc.end());
    points.insert(points.end(), arc.begin() + (points.empty() ? 0 : 1), arc.end());
  }
  return points;
}

std::optional<Topology> readTopoJson(const std::string& text, const std::string& object) {
  try {
    const json topology = json::parse(text);
    if (topology.at("type") != "Topology") return {};
    Topology result;
    result.arcs = readArcs(topology);
    for (const json& geometry : topology.at("objects").at(object).at("geometries")) {
      Topology::Area area = readArea(geometry, result.arcs.size());
      if (!area.polygons.empty()) result.areas.push_back(std::move(area));
    }
    return result;
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace wayloom
