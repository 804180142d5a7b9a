#include "WorldDrawing.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <string>

#include "CityList.h"
#include "GeoJson.h"
#include "ReadFile.h"
#include "WorldOutlines.h"
#include "drawing/PlaceLabels.h"
#include "geo/WebMercator.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

constexpr MapBox kWorldBox = {-kMercatorHalfWorldMetres, -kMercatorHalfWorldMetres,
                              kMercatorHalfWorldMetres, kMercatorHalfWorldMetres};
constexpr std::size_t kMostPolygonPoints = 1200;
constexpr std::size_t kMostLinePoints = 150;
constexpr int kLastPlaceZoom = 15;

// One version of the outlines: drawn from the zoom after the version before up to `lastZoom`.
struct Scale {
  const char* name;
  const char* ending;
  int firstZoom;
  int lastZoom;
};
constexpr std::array kScales = {Scale{"110m", "_z1", 0, 1}, Scale{"50m", "_z2", 2, 2},
                                Scale{"50m", "_z4", 3, 4},  Scale{"10m", "_z5", 5, 5},
                                Scale{"10m", "_z7", 6, 7},  Scale{"10m", "_z8", 8, 8},
                                Scale{"10m", "", 9, 18}};

// From here on the corners of the most detailed outlines would show.
constexpr int kFirstSmoothZoom = 9;

// So little that nobody sees what is left out.
constexpr double kTolerancePixels = 0.35;

Failure damaged(const std::filesystem::path& path) {
  return {path.string() + " is damaged"};
}

Result<Topology> readTopology(const std::filesystem::path& path, const char* object) {
  const auto text = readFile(path);
  if (!text) return text.failure();
  auto topology = readTopoJson(*text, object);
  if (!topology) return damaged(path);
  return std::move(*topology);
}

Result<std::vector<GeoFeature>> readFeatures(const std::filesystem::path& path) {
  const auto text = readFile(path);
  if (!text) return text.failure();
  auto features = readGeoJson(*text);
  if (!features) return damaged(path);
  return std::move(*features);
}

Status writeLand(Database& database, const Topology& land, const Scale& scale) {
  std::vector<MapPolygon> polygons;
  for (const Topology::Area& area : land.areas) {
    for (MapPolygon& polygon : mapPolygons(land, area)) polygons.push_back(std::move(polygon));
  }
  DrawingTable table(database, std::string("land") + scale.ending, {});
  const double overlap = 2 * metresPerPixel(scale.firstZoom);
  for (MapPolygon& piece :
       cutToPieces(std::move(polygons), kWorldBox, kMostPolygonPoints, overlap)) {
    table.add({DrawingShape::Kind::kPolygon, std::move(piece)});
  }
  return table.status();
}

Status writeLines(Database& database, const std::string& name, const std::vector<MapPath>& lines) {
  DrawingTable table(database, name, {});
  for (const MapPath& line : lines) {
    for (MapPath& piece : cutToPieces(line, kMostLinePoints)) {
      table.add({DrawingShape::Kind::kLine, {std::move(piece)}});
    }
  }
  return table.status();
}

// The data is kept on a grid of some 400 by 200 metres: its steps go first, then the corners, then
// the points that rounding adds where the line is straight.
Topology rounded(Topology topology) {
  return simplified(smoothed(simplified(std::move(topology), 250)), 60);
}

Status writeScale(Database& database, const std::filesystem::path& packages, const Scale& scale) {
  const auto path = packages / "world-atlas" / (std::string("countries-") + scale.name + ".json");
  auto land = readTopology(path, "land");
  if (!land) return land.failure();
  auto countries = readTopology(path, "countries");
  if (!countries) return countries.failure();
  const double tolerance = kTolerancePixels * metresPerPixel(scale.lastZoom);
  *land = simplified(std::move(*land), tolerance);
  *countries = simplified(std::move(*countries), tolerance);
  if (scale.firstZoom >= kFirstSmoothZoom) {
    // Rounding quadruples the points; most of the data's own lie closer than the grid it is kept
    // on.
    *land = rounded(std::move(*land));
    *countries = rounded(std::move(*countries));
  }
  if (auto status = writeLand(database, *land, scale); !status) return status;
  auto status = writeLines(database, std::string("coast") + scale.ending,
                           mapLines(*countries, ArcUse::kCoast));
  if (!status) return status;
  return writeLines(database, std::string("border") + scale.ending,
                    mapLines(*countries, ArcUse::kBorder));
}

MapPath project(const std::vector<Coordinate>& path) {
  MapPath result;
  for (const Coordinate& coordinate : path) result.push_back(mapPoint(coordinate));
  return result;
}

Status writeLakes(Database& database, const std::filesystem::path& packages) {
  const auto lakes = readFeatures(packages / "mapeo-offline-map/dist/lakes.json");
  if (!lakes) return lakes.failure();
  DrawingTable table(database, "water", {"min_zoom"});
  for (const GeoFeature& lake : *lakes) {
    MapPolygon rings;
    for (const auto& path : lake.paths) rings.push_back(smoothed(project(path), 1));
    const double pixels = std::sqrt(std::abs(signedArea(rings.front()))) / metresPerPixel(0);
    // Shown from the zoom on at which the lake is a few pixels large.
    const int firstZoom = std::max(0, static_cast<int>(std::ceil(std::log2(4 / pixels))));
    table.add({DrawingShape::Kind::kPolygon, std::move(rings)}, {firstZoom});
  }
  return table.status();
}

Status writeRivers(Database& database, const std::filesystem::path& packages) {
  const auto rivers = readFeatures(packages / "mapeo-offline-map/dist/rivers.json");
  if (!rivers) return rivers.failure();
  DrawingTable table(database, "river", {"weight", "min_zoom"});
  for (const GeoFeature& river : *rivers) {
    const double weight = std::strtod(river.property("strokeweig").c_str(), nullptr);
    const double shownFrom = std::strtod(river.property("min_zoom").c_str(), nullptr);
    // The data counts zooms of 256-pixel tiles.
    const int firstZoom = std::max(2, static_cast<int>(std::ceil(shownFrom)) - 1);
    table.add({DrawingShape::Kind::kLine, {smoothed(project(river.paths.front()), 1)}},
              {weight, firstZoom});
  }
  return table.status();
}

std::string shortName(const std::string& name) {
  if (name == "United States of America") return "United States";
  if (name == "Dem. Rep. Congo") return "DR Congo";
  return name;
}

// A country's name stands in its largest part, from the zoom on at which it about fits there.
std::vector<PlaceLabel> countryLabels(const Topology& countries) {
  std::vector<PlaceLabel> labels;
  for (const Topology::Area& area : countries.areas) {
    MapPolygon largest;
    for (const MapPolygon& whole : mapPolygons(countries, area)) {
      MapPolygon polygon = clipped(whole, kWorldBox);
      if (polygon.empty()) continue;
      if (largest.empty() || std::abs(signedArea(polygon[0])) > std::abs(signedArea(largest[0]))) {
        largest = std::move(polygon);
      }
    }
    if (largest.empty() || area.name.empty()) continue;
    PlaceLabel label{PlaceLabel::Kind::kCountry, shortName(area.name), labelPoint(largest)};
    const double acrossMetres = std::sqrt(std::abs(signedArea(largest[0])));
    label.importance = 1e12 + acrossMetres;
    label.size = acrossMetres > 3e6 ? 12 : 10.5;
    const double fits = 1.1 * label.size * static_cast<double>(label.name.size());
    label.firstZoom = std::max(
        1, static_cast<int>(std::ceil(std::log2(0.5 * fits * metresPerPixel(0) / acrossMetres))));
    label.lastZoom = std::min(
        8, std::max(5, static_cast<int>(std::log2(1400 * metresPerPixel(0) / acrossMetres))));
    labels.push_back(std::move(label));
  }
  return labels;
}

// From which zoom on a place of so many people may be named at all, so that the map stays calm.
int firstZoomFor(double people) {
  constexpr std::array<double, 10> kFewestPeople = {8e6, 3e6,   1e6, 3e5, 1e5,
                                                    4e4, 1.5e4, 5e3, 1e3, 0};
  int zoom = 2;
  for (const double fewest : kFewestPeople) {
    if (people >= fewest) break;
    ++zoom;
  }
  return zoom;
}

bool isNoSettlement(const std::string& featureCode) {
  return featureCode == "PPLW" || featureCode == "PPLQ" || featureCode == "PPLH" ||
         featureCode == "PPLCH";
}

std::vector<PlaceLabel> cityLabels(const std::vector<City>& cities) {
  std::vector<PlaceLabel> labels;
  for (const City& city : cities) {
    if (isNoSettlement(city.featureCode)) continue;
    const bool isCapital = city.featureCode == "PPLC";
    const bool isPartOfCity = city.featureCode == "PPLX";
    const auto people = static_cast<double>(city.population);
    PlaceLabel label{isCapital ? PlaceLabel::Kind::kCapital : PlaceLabel::Kind::kPlace, city.name,
                     mapPoint(city.coordinate)};
    label.importance = isCapital ? people * 3 + 2e5 : isPartOfCity ? people / 10 : people;
    label.size = label.importance >= 1e6 ? 12.5 : label.importance >= 1e5 ? 11.5 : 11;
    label.firstZoom = std::max(firstZoomFor(label.importance), isPartOfCity ? 11 : 2);
    label.lastZoom = kLastPlaceZoom;
    labels.push_back(std::move(label));
  }
  return labels;
}

}  // namespace

Result<std::vector<PlaceLabel>> worldLabels(const std::filesystem::path& packages) {
  const auto countries = readTopology(packages / "world-atlas/countries-50m.json", "countries");
  if (!countries) return countries.failure();
  const auto path = packages / kCityList;
  const auto bytes = readFile(path);
  if (!bytes) return bytes.failure();
  const auto cities = readCityList(*bytes);
  if (!cities) return damaged(path);
  std::vector<PlaceLabel> labels = countryLabels(*countries);
  for (PlaceLabel& label : cityLabels(*cities)) labels.push_back(std::move(label));
  return selectPlaceLabels(std::move(labels), kLastPlaceZoom);
}

Status addWorldDrawing(Database& database, const std::filesystem::path& packages,
                       const std::vector<PlaceLabel>& labels) {
  for (const Scale& scale : kScales) {
    if (auto status = writeScale(database, packages, scale); !status) return status;
  }
  for (const auto write : {writeLakes, writeRivers}) {
    if (auto status = write(database, packages); !status) return status;
  }
  return writePlaceLabels(database, labels);
}

}  // namespace wayloom
