#include "regions/DrawingShape.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

constexpr double kUnitsPerMetre = 10;
// Far outside the world; beyond it, arithmetic on pixels would overflow.
constexpr std::int64_t kFarthestUnits = 10'000'000'000;

void append(std::string& bytes, std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) bytes += static_cast<char>(number | 0x80);
  bytes += static_cast<char>(number);
}

// Numbers near zero of either sign become small ones.
void appendStep(std::string& bytes, std::int64_t step) {
  append(bytes, (static_cast<std::uint64_t>(step) << 1) ^ static_cast<std::uint64_t>(step >> 63));
}

// Paths of one shape follow upon each other: each position is a step from the one before.
class Writer {
 public:
  explicit Writer(std::string& bytes) : mBytes(bytes) {}

  void writePath(const MapPath& path) {
    for (const MapPoint& point : path) {
      writeStep(mX, point.x);
      writeStep(mY, point.y);
    }
  }

 private:
  void writeStep(std::int64_t& at, double metres) {
    const std::int64_t units = std::llround(metres * kUnitsPerMetre);
    appendStep(mBytes, units - at);
    at = units;
  }

  std::string& mBytes;
  std::int64_t mX = 0;
  std::int64_t mY = 0;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : mBytes(bytes) {}

  bool read(std::uint64_t& number) {
    constexpr unsigned kBits = 7;
    number = 0;
    for (unsigned shift = 0; shift < 64 && !mBytes.empty(); shift += kBits) {
      const auto byte = static_cast<unsigned char>(mBytes.front());
      mBytes.remove_prefix(1);
      number |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
      if (byte < 0x80) return true;
    }
    return false;
  }

  bool readPoint(MapPoint& point) { return readStep(mX, point.x) && readStep(mY, point.y); }

  bool readPath(MapPath& path, std::size_t fewestPoints) {
    constexpr std::size_t kFewestBytes = 2;
    std::uint64_t count = 0;
    if (!read(count) || count < fewestPoints || count > mBytes.size() / kFewestBytes) return false;
    path.resize(count);
    return std::all_of(path.begin(), path.end(), [this](MapPoint& p) { return readPoint(p); });
  }

  bool readRings(std::vector<MapPath>& rings) {
    std::uint64_t count = 0;
    if (!read(count) || count < 1 || count > mBytes.size()) return false;
    rings.resize(count);
    return std::all_of(rings.begin(), rings.end(), [this](MapPath& r) { return readPath(r, 4); });
  }

  [[nodiscard]] bool atEnd() const { return mBytes.empty(); }

 private:
  bool readStep(std::int64_t& at, double& metres) {
    std::uint64_t bits = 0;
    if (!read(bits)) return false;
    const auto step = static_cast<std::int64_t>(bits >> 1) ^ -static_cast<std::int64_t>(bits & 1);
    if (std::abs(step) > 2 * kFarthestUnits) return false;
    at += step;
    metres = static_cast<double>(at) / kUnitsPerMetre;
    return std::abs(at) <= kFarthestUnits;
  }

  std::string_view mBytes;
  std::int64_t mX = 0;
  std::int64_t mY = 0;
};

}  // namespace

MapPoint mapPoint(Coordinate coordinate) {
  const WorldPoint world = worldPoint(coordinate);
  return {(world.x * 2 - 1) * kMercatorHalfWorldMetres,
          (1 - world.y * 2) * kMercatorHalfWorldMetres};
}

Coordinate coordinateAt(MapPoint point) {
  return coordinateAt(WorldPoint{(point.x / kMercatorHalfWorldMetres + 1) / 2,
                                 (1 - point.y / kMercatorHalfWorldMetres) / 2});
}

MapBox boundsOf(const DrawingShape& shape) {
  std::optional<MapBox> box;
  for (const MapPath& path : shape.paths) {
    for (const auto& [x, y] : path) {
      if (!box) box = MapBox{x, y, x, y};
      box = MapBox{std::min(box->xmin, x), std::min(box->ymin, y), std::max(box->xmax, x),
                   std::max(box->ymax, y)};
    }
  }
  return box.value_or(MapBox{});
}

std::string encodeShape(const DrawingShape& shape) {
  std::string bytes(1, static_cast<char>(shape.kind));
  Writer writer(bytes);
  if (shape.kind == DrawingShape::Kind::kPolygon) append(bytes, shape.paths.size());
  for (const MapPath& path : shape.paths) {
    if (shape.kind != DrawingShape::Kind::kPoint) append(bytes, path.size());
    writer.writePath(path);
  }
  return bytes;
}

std::optional<DrawingShape> decodeShape(std::string_view bytes) {
  Reader reader(bytes);
  std::uint64_t kind = 0;
  if (!reader.read(kind)) return {};
  DrawingShape shape;
  bool complete = false;
  if (kind == static_cast<std::uint64_t>(DrawingShape::Kind::kPoint)) {
    shape = {DrawingShape::Kind::kPoint, {MapPath(1)}};
    complete = reader.readPoint(shape.paths[0][0]);
  } else if (kind == static_cast<std::uint64_t>(DrawingShape::Kind::kLine)) {
    shape = {DrawingShape::Kind::kLine, {MapPath()}};
    complete = reader.readPath(shape.paths[0], 2);
  } else if (kind == static_cast<std::uint64_t>(DrawingShape::Kind::kPolygon)) {
    shape.kind = DrawingShape::Kind::kPolygon;
    complete = reader.readRings(shape.paths);
  }
  if (!complete || !reader.atEnd()) return {};
  return shape;
}

}  // namespace wayloom
