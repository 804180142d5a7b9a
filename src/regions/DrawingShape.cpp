#include "regions/DrawingShape.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "geo/WebMercator.h"

namespace wayloom {

namespace {

constexpr std::uint32_t kWkbPoint = 1;
constexpr std::uint32_t kWkbLine = 2;
constexpr std::uint32_t kWkbPolygon = 3;

// Far outside the world; beyond it, arithmetic on pixels would overflow.
constexpr double kFarthestMetres = 1e9;

template <typename T>
void append(std::string& bytes, T value) {
  char raw[sizeof value];
  std::memcpy(raw, &value, sizeof value);
  if constexpr (std::endian::native == std::endian::big) std::reverse(raw, raw + sizeof value);
  bytes.append(raw, sizeof value);
}

void appendPath(std::string& bytes, const MapPath& path) {
  append(bytes, static_cast<std::uint32_t>(path.size()));
  for (const MapPoint& point : path) {
    append(bytes, point.x);
    append(bytes, point.y);
  }
}

class Reader {
 public:
  explicit Reader(std::string_view bytes) : mBytes(bytes) {}

  template <typename T>
  bool read(T& value) {
    if (mBytes.size() < sizeof value) return false;
    char raw[sizeof value];
    std::memcpy(raw, mBytes.data(), sizeof value);
    if (mSwapped) std::reverse(raw, raw + sizeof value);
    std::memcpy(&value, raw, sizeof value);
    mBytes.remove_prefix(sizeof value);
    return true;
  }

  bool readByteOrder() {
    std::uint8_t order = 0;
    if (!read(order) || order > 1) return false;
    mSwapped = (order == 1) != (std::endian::native == std::endian::little);
    return true;
  }

  bool readPoint(MapPoint& point) {
    if (!read(point.x) || !read(point.y)) return false;
    // Written so that a NaN fails.
    return std::abs(point.x) <= kFarthestMetres && std::abs(point.y) <= kFarthestMetres;
  }

  bool readPath(MapPath& path, std::size_t fewestPoints) {
    std::uint32_t count = 0;
    if (!read(count) || count < fewestPoints || count > mBytes.size() / sizeof(MapPoint)) {
      return false;
    }
    path.resize(count);
    return std::all_of(path.begin(), path.end(), [this](MapPoint& p) { return readPoint(p); });
  }

  bool readRings(std::vector<MapPath>& rings) {
    std::uint32_t count = 0;
    if (!read(count) || count < 1 || count > mBytes.size() / sizeof count) return false;
    rings.resize(count);
    return std::all_of(rings.begin(), rings.end(), [this](MapPath& r) { return readPath(r, 4); });
  }

  [[nodiscard]] bool atEnd() const { return mBytes.empty(); }

 private:
  std::string_view mBytes;
  bool mSwapped = false;
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
  std::string bytes;
  append(bytes, std::uint8_t{1});
  switch (shape.kind) {
    case DrawingShape::Kind::kPoint:
      append(bytes, kWkbPoint);
      append(bytes, shape.paths.at(0).at(0).x);
      append(bytes, shape.paths.at(0).at(0).y);
      break;
    case DrawingShape::Kind::kLine:
      append(bytes, kWkbLine);
      appendPath(bytes, shape.paths.at(0));
      break;
    case DrawingShape::Kind::kPolygon:
      append(bytes, kWkbPolygon);
      append(bytes, static_cast<std::uint32_t>(shape.paths.size()));
      for (const MapPath& ring : shape.paths) appendPath(bytes, ring);
      break;
  }
  return bytes;
}

std::optional<DrawingShape> decodeShape(std::string_view bytes) {
  Reader reader(bytes);
  std::uint32_t type = 0;
  if (!reader.readByteOrder() || !reader.read(type)) return {};
  DrawingShape shape;
  bool complete = false;
  if (type == kWkbPoint) {
    shape = {DrawingShape::Kind::kPoint, {MapPath(1)}};
    complete = reader.readPoint(shape.paths[0][0]);
  } else if (type == kWkbLine) {
    shape = {DrawingShape::Kind::kLine, {MapPath()}};
    complete = reader.readPath(shape.paths[0], 2);
  } else if (type == kWkbPolygon) {
    shape.kind = DrawingShape::Kind::kPolygon;
    complete = reader.readRings(shape.paths);
  }
  if (!complete || !reader.atEnd()) return {};
  return shape;
}

}  // namespace wayloom
