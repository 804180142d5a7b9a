// Makes the default region files from the data packages:
//   region-builder NODE_MODULES OUTPUT_DIRECTORY

#include <cstdio>
#include <filesystem>

#include "GothenburgPlaces.h"
#include "GothenburgRoads.h"
#include "GothenburgStreets.h"
#include "WorldDrawing.h"
#include "WorldPlaces.h"
#include "drawing/StreetDrawing.h"
#include "regions/RegionWriter.h"

namespace {

using namespace wayloom;
using std::filesystem::path;

constexpr char kOpenStreetMap[] = "© OpenStreetMap contributors";
constexpr char kWorldSources[] = "Natural Earth, GeoNames";

MapBox boundsOfAll(const std::vector<Street>& streets) {
  std::vector<MapPath> paths;
  for (const Street& street : streets) {
    paths.insert(paths.end(), street.paths.begin(), street.paths.end());
  }
  return boundsOf({DrawingShape::Kind::kLine, paths});
}

using Labels = std::vector<PlaceLabel>;

Status buildWorld(const path& packages, const Labels& labels, const path& target) {
  auto writer = RegionWriter::create(target, {"World", kWorldSources, {}});
  if (!writer) return writer.failure();
  if (auto status = addWorldDrawing(writer->database(), packages, labels); !status) return status;
  if (auto status = addWorldPlaces(writer->database(), packages); !status) return status;
  return writer->commit();
}

Status buildGothenburg(const path& packages, const Labels& labels, const path& target) {
  const auto streets = readStreets(packages / "geojson-path-finder/test/large-network.json");
  if (!streets) return streets.failure();
  if (streets->empty()) return Failure{"the street data holds no streets"};
  const MapBox box = boundsOfAll(*streets);
  const Coordinate southWest = coordinateAt(MapPoint{box.xmin, box.ymin});
  const Coordinate northEast = coordinateAt(MapPoint{box.xmax, box.ymax});
  auto writer = RegionWriter::create(
      target, {"Gothenburg",
               kOpenStreetMap,
               {southWest.longitude, southWest.latitude, northEast.longitude, northEast.latitude}});
  if (!writer) return writer.failure();
  if (auto status = addBuiltUpArea(writer->database(), *streets); !status) return status;
  if (auto status = addStreetDrawing(writer->database(), *streets, labels); !status) return status;
  if (auto status = addGothenburgPlaces(writer->database(), packages); !status) return status;
  if (auto status = addGothenburgRoads(writer->database(), packages); !status) return status;
  return writer->commit();
}

Status build(const path& packages, const path& output) {
  const auto labels = worldLabels(packages);
  if (!labels) return labels.failure();
  auto status = buildWorld(packages, *labels, output / "world.region");
  if (!status) return status;
  return buildGothenburg(packages, *labels, output / "gothenburg.region");
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 3) {
    std::fputs("usage: region-builder NODE_MODULES OUTPUT_DIRECTORY\n", stderr);
    return 2;
  }
  const path output = argv[2];
  std::error_code error;
  std::filesystem::create_directories(output, error);
  if (const auto status = build(argv[1], output); !status) {
    std::fprintf(stderr, "region-builder: %s\n", status.failure().message.c_str());
    return 1;
  }
  return 0;
}
