#include "import/RegionImport.h"

#include <exception>
#include <system_error>
#include <utility>

#include "drawing/StreetDrawing.h"
#include "import/ExtractPlaces.h"
#include "import/ExtractRoads.h"
#include "import/LandDrawing.h"
#include "import/PlaceNames.h"
#include "regions/OwnRegions.h"
#include "regions/RegionWriter.h"

namespace wayloom {

namespace {

constexpr char kAttribution[] = "© OpenStreetMap contributors";

const std::string& countryOf(const Place& place) {
  return place.kind == PlaceKind::kCountry ? place.name : place.country;
}

DrawingShape shapeOf(DrawingShape::Kind kind, const std::vector<Line>& lines) {
  DrawingShape shape{kind, {}};
  for (const Line& line : lines) {
    MapPath& path = shape.paths.emplace_back();
    for (const Coordinate& position : line) path.push_back(mapPoint(position));
  }
  return shape;
}

/// Everything that an extract holds, sorted by what it is for.
class Content : public ExtractVisitor {
 public:
  void point(const OsmTags& tags, const ExtractNode& node) override {
    mRoads.addPoint(tags, node);
    mPlaces.addPoint(tags, node.position);
    mNames.addPoint(tags, node.position);
  }

  void line(std::int64_t way, const OsmTags& tags, Line line,
            const std::vector<ExtractNode>& nodes) override {
    mRoads.addLine(way, tags, nodes);
    mPlaces.addLine(tags, line);
    mLand.addLine(tags, line);
    if (tagOf(tags, "area") == "yes" && line.front() == line.back()) return;
    addStreet(tags, shapeOf(DrawingShape::Kind::kLine, {line}));
  }

  void area(const OsmTags& tags, std::vector<GroundPolygon> polygons) override {
    mPlaces.addArea(tags, polygons);
    mLand.addArea(tags, polygons);
    for (const GroundPolygon& polygon : polygons) {
      addStreet(tags, shapeOf(DrawingShape::Kind::kPolygon, polygon));
    }
  }

  void restriction(RoadRestriction restriction) override {
    mRoads.addRestriction(std::move(restriction));
  }

  bool isEmpty() const {
    return mLand.count() + mRoads.count() + mPlaces.count() + mStreets.size() == 0;
  }

  Status write(Database& database, const RegionBounds& bounds, const RegionStore& installed,
               const WorkProgress& progress, RoadFaults& faults);

 private:
  void addStreet(const OsmTags& tags, DrawingShape shape) {
    if (!tags.contains("highway")) return;
    if (auto street = streetOf(tags, std::move(shape))) mStreets.push_back(std::move(*street));
  }

  Status writeNames(Database& database, const RegionBounds& bounds, const RegionStore& installed,
                    std::vector<PlaceLabel>& all);

  LandDrawing mLand;
  ExtractRoads mRoads;
  ExtractPlaces mPlaces;
  PlaceNames mNames;
  std::vector<Street> mStreets;
};

Status Content::writeNames(Database& database, const RegionBounds& bounds,
                           const RegionStore& installed, std::vector<PlaceLabel>& all) {
  const MapPoint southWest = mapPoint({bounds.south, bounds.west});
  const MapPoint northEast = mapPoint({bounds.north, bounds.east});
  const MapBox box{southWest.x, southWest.y, northEast.x, northEast.y};
  std::vector<PlaceLabel> shown;
  for (const Region& region : installed.regions()) {
    for (PlaceLabel& label : labelsOf(region, box)) shown.push_back(std::move(label));
  }
  const std::vector<PlaceLabel> own = mNames.select(shown);
  all = std::move(shown);
  all.insert(all.end(), own.begin(), own.end());
  return own.empty() ? done() : writePlaceLabels(database, own);
}

Status Content::write(Database& database, const RegionBounds& bounds, const RegionStore& installed,
                      const WorkProgress& progress, RoadFaults& faults) {
  auto index = PlaceIndex::open(installed);
  if (!index) return index.failure();
  const auto area =
      index->areaAt({(bounds.south + bounds.north) / 2, (bounds.west + bounds.east) / 2});
  mRoads.keepLeft(area && drivesOnTheLeft(countryOf(*area)));
  std::vector<PlaceLabel> labels;
  const std::pair<std::string_view, std::function<Status()>> steps[] = {
      {"Drawing the land", [&] { return mLand.write(database); }},
      {"Placing names", [&] { return writeNames(database, bounds, installed, labels); }},
      {"Drawing streets",
       [&] { return mStreets.empty() ? done() : addStreetDrawing(database, mStreets, labels); }},
      {"Listing places", [&] { return mPlaces.write(database, *index); }},
      {"Joining roads", [&] { return mRoads.write(database, faults); }},
  };
  double share = 0;
  for (const auto& [name, work] : steps) {
    if (!progress(name, share)) return failed("interrupted");
    if (auto status = work(); !status) return status;
    share += 1.0 / std::size(steps);
  }
  return progress("Finishing", 1) ? done() : failed("interrupted");
}

Result<Region> build(const std::filesystem::path& extract, const std::filesystem::path& target,
                     const std::string& name, const RegionStore& installed,
                     const WorkProgress& progress, ImportReport& report) {
  Content content;
  const auto bounds = readExtract(extract, content, progress, report.gaps);
  if (!bounds) return bounds.failure();
  if (content.isEmpty()) return failed("it holds no roads, places or land");
  const RegionInfo info{name, kAttribution, *bounds};
  std::error_code error;
  std::filesystem::create_directories(target.parent_path(), error);
  if (error) return failed(target.parent_path().string() + ": " + error.message());
  auto writer = RegionWriter::create(target, info);
  if (!writer) return writer.failure();
  auto status = content.write(writer->database(), *bounds, installed, progress, report.faults);
  if (status) status = writer->commit();
  if (!status) return status.failure();
  return Region{target, info};
}

}  // namespace

Result<Region> importRegion(const std::filesystem::path& extract,
                            const std::filesystem::path& folder, const std::string& name,
                            const RegionStore& installed, const WorkProgress& progress,
                            ImportReport* report) {
  if (extractStem(extract).empty()) {
    return failed("its name ends in none of .osm.pbf, .osm, .osm.gz and .osm.bz2");
  }
  const auto target = newRegionPath(folder, name, installed);
  if (!target) return target.failure();
  try {
    ImportReport unread;
    return build(extract, *target, name, installed.without(*target), progress,
                 report ? *report : unread);
  } catch (const std::exception& fault) {
    return failed(fault.what());
  }
}

}  // namespace wayloom
