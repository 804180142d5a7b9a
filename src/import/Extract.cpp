#include "import/Extract.h"

#include <array>
#include <cmath>
#include <exception>
#include <limits>
#include <osmium/area/multipolygon_manager.hpp>
#include <osmium/handler.hpp>
#include <osmium/handler/node_locations_for_ways.hpp>
#include <osmium/index/map/flex_mem.hpp>
#include <osmium/io/bzip2_compression.hpp>
#include <osmium/io/gzip_compression.hpp>
#include <osmium/io/pbf_input.hpp>
#include <osmium/io/reader.hpp>
#include <osmium/io/xml_input.hpp>
#include <osmium/visitor.hpp>
#include <system_error>
#include <unordered_set>
#include <utility>

#include "import/AreaAssembler.h"
#include "import/ExtractCheck.h"
#include "import/TurnRelations.h"
#include "settings/Utf8.h"

namespace wayloom {

namespace {

// Thrown and caught in this file only: libosmium's handlers have no other way to stop.
struct Stop {
  Failure failure;
};

struct Form {
  std::string_view ending;
  const char* format;
};
constexpr std::array<Form, 5> kForms = {{{".osm.pbf", "pbf"},
                                         {".osm.gz", "osm.gz"},
                                         {".osm.bz2", "osm.bz2"},
                                         {".pbf", "pbf"},
                                         {".osm", "osm"}}};

// The limit of OpenStreetMap itself.
constexpr std::size_t kLongestTagCharacters = 255;
constexpr std::size_t kLongestTagBytes = 4 * kLongestTagCharacters;

using Locations = osmium::index::map::FlexMem<osmium::unsigned_object_id_type, osmium::Location>;
using LocationHandler = osmium::handler::NodeLocationsForWays<Locations, Locations>;
using AreaManager = osmium::area::MultipolygonManager<AreaAssembler>;

const Form* formOf(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  const auto* const found = std::find_if(kForms.begin(), kForms.end(), [&](const Form& form) {
    return name.size() > form.ending.size() && name.ends_with(form.ending);
  });
  return found == kForms.end() ? nullptr : found;
}

bool isText(std::string_view text) {
  if (text.size() > kLongestTagBytes) return false;
  for (std::size_t position = 0; position < text.size();) {
    const Utf8Step step = utf8Step(text, position);
    if (!step.valid || step.character < ' ' || step.character == 0x7f) return false;
    position += step.length;
  }
  return true;
}

// Tags that are no plain text are not taken.
OsmTags tagsOf(const osmium::TagList& list) {
  OsmTags tags;
  for (const osmium::Tag& tag : list) {
    if (isText(tag.key()) && isText(tag.value())) tags.emplace(tag.key(), tag.value());
  }
  return tags;
}

std::string named(const char* kind, osmium::object_id_type id) {
  return std::string(kind) + ' ' + std::to_string(id);
}

/// Checks every object, and hands on those with tags.
class Sorter : public osmium::handler::Handler {
 public:
  Sorter(ExtractVisitor& visitor, ExtractGaps& gaps) : mVisitor(visitor), mGaps(gaps) {}

  void node(const osmium::Node& node) {
    if (!node.visible()) return;  // An editor's mark for what it deleted.
    if (!node.location().valid()) throw Stop{{named("node", node.id()) + outside}};
    // By then the way has missed it.
    if (mHasWays) throw Stop{{named("node", node.id()) + " stands behind the ways"}};
    const Coordinate position{node.location().lat(), node.location().lon()};
    mBounds = {
        std::min(mBounds.west, position.longitude), std::min(mBounds.south, position.latitude),
        std::max(mBounds.east, position.longitude), std::max(mBounds.north, position.latitude)};
    if (!node.tags().empty()) mVisitor.point(tagsOf(node.tags()), {node.id(), position});
  }

  void way(const osmium::Way& way) {
    mHasWays = true;
    if (!way.visible()) return;
    std::vector<ExtractNode> part;
    for (const osmium::NodeRef& node : way.nodes()) {
      if (node.location().valid()) {
        part.push_back({node.ref(), {node.lat(), node.lon()}});
        continue;
      }
      addMissing(way.id(), node.ref());
      addPart(way, std::exchange(part, {}));
    }
    addPart(way, part);
  }

  void area(const osmium::Area& area) const {
    std::vector<GroundPolygon> polygons;
    for (const auto& outer : area.outer_rings()) {
      GroundPolygon& polygon = polygons.emplace_back();
      polygon.push_back(ringOf(outer));
      for (const auto& inner : area.inner_rings(outer)) polygon.push_back(ringOf(inner));
    }
    if (!polygons.empty()) mVisitor.area(tagsOf(area.tags()), std::move(polygons));
  }

  const RegionBounds& bounds() const { return mBounds; }

 private:
  void addPart(const osmium::Way& way, const std::vector<ExtractNode>& nodes) {
    Line line;
    for (const ExtractNode& node : nodes) {
      if (line.empty() || line.back() != node.position) line.push_back(node.position);
    }
    if (line.size() < 2 || way.tags().empty()) return;
    mVisitor.line(way.id(), tagsOf(way.tags()), std::move(line), nodes);
  }

  void addMissing(osmium::object_id_type way, osmium::object_id_type node) {
    constexpr std::size_t kMostExamples = 3;
    if (!mMissing.insert(node).second) return;
    ++mGaps.missingNodes;
    if (mGaps.examples.size() == kMostExamples) return;
    mGaps.examples.push_back(named("node", node) + " of " + named("way", way));
  }

  static constexpr char outside[] = " lies outside the world";

  static Line ringOf(const osmium::NodeRefList& nodes) {
    Line ring;
    for (const osmium::NodeRef& node : nodes) ring.push_back({node.lat(), node.lon()});
    return ring;
  }

  ExtractVisitor& mVisitor;
  ExtractGaps& mGaps;
  std::unordered_set<osmium::object_id_type> mMissing;
  bool mHasWays = false;
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();
  RegionBounds mBounds = {kInfinity, kInfinity, -kInfinity, -kInfinity};
};

osmium::TagsFilter areaFilter() {
  osmium::TagsFilter filter(false);
  for (const char* key : {"addr:housenumber", "amenity", "building", "landuse", "leisure",
                          "natural", "shop", "tourism", "water"}) {
    filter.add_rule(true, key);
  }
  filter.add_rule(true, "waterway", "riverbank");
  filter.add_rule(true, "waterway", "dock");
  filter.add_rule(true, "area", "yes");
  return filter;
}

class Reading {
 public:
  Reading(const std::filesystem::path& path, const Form& form, const WorkProgress& progress)
      // With a folder in front, no name stands for standard input or a web address.
      : mFile(std::filesystem::absolute(path).string(), form.format), mProgress(progress) {}

  void check() const {
    const auto goOn = [this](double share) { return mProgress("Checking", share); };
    const bool isPbf = mFile.format() == osmium::io::file_format::pbf;
    const Status status = isPbf ? checkPbf(mFile, goOn) : checkXml(mFile, goOn);
    if (!status) throw Stop{status.failure()};
  }

  template <typename... Handlers>
  void pass(std::string_view step, osmium::osm_entity_bits::type what, Handlers&... handlers) {
    // Who changed what and when is of no use here, and one thing less that may be damaged.
    osmium::io::Reader reader(mFile, what, osmium::io::read_meta::no);
    while (auto buffer = reader.read()) {
      osmium::apply(buffer, handlers...);
      const double size = std::max(1.0, static_cast<double>(reader.file_size()));
      if (!mProgress(step, static_cast<double>(reader.offset()) / size)) {
        throw Stop{{"interrupted"}};
      }
    }
    reader.close();
  }

 private:
  osmium::io::File mFile;
  const WorkProgress& mProgress;
};

RegionBounds readAll(Reading& reading, ExtractVisitor& visitor, ExtractGaps& gaps) {
  osmium::area::AssemblerConfig config;
  config.create_empty_areas = false;
  AreaManager areas(config, areaFilter());
  TurnRelations turns(visitor, gaps);
  reading.check();
  reading.pass("Reading relations", osmium::osm_entity_bits::relation, areas, turns);
  areas.prepare_for_lookup();

  Sorter sorter(visitor, gaps);
  Locations locations;
  Locations negatives;
  LocationHandler placing(locations, negatives);
  placing.ignore_errors();
  auto& assembling =
      areas.handler([&](const osmium::memory::Buffer& buffer) { osmium::apply(buffer, sorter); });
  reading.pass("Reading the map", osmium::osm_entity_bits::nwr, placing, sorter, assembling);
  return sorter.bounds();
}

}  // namespace

std::string extractStem(const std::filesystem::path& path) {
  const Form* form = formOf(path);
  std::string name = path.filename().string();
  name.resize(form ? name.size() - form->ending.size() : 0);
  return name;
}

Result<RegionBounds> readExtract(const std::filesystem::path& path, ExtractVisitor& visitor,
                                 const WorkProgress& progress, ExtractGaps& gaps) {
  const Form* form = formOf(path);
  if (!form) return failed("its name is not that of an extract");
  std::error_code error;
  if (!std::filesystem::exists(path, error)) return failed("there is no such file");
  if (!std::filesystem::is_regular_file(path, error)) return failed("it is not a file");
  if (std::filesystem::file_size(path, error) == 0) return failed("it is empty");
  try {
    Reading reading(path, *form, progress);
    const RegionBounds bounds = readAll(reading, visitor, gaps);
    if (!isValid(bounds)) return failed("it holds no map data");
    return bounds;
  } catch (const Stop& stop) {
    return stop.failure;
  } catch (const std::exception& fault) {
    return failed(std::string("it is damaged or no OpenStreetMap data: ") + fault.what());
  }
}

}  // namespace wayloom
