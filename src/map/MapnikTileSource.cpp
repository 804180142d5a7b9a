#include "map/MapnikTileSource.h"

#include <algorithm>
#include <cmath>
#include <mapnik/agg_renderer.hpp>
#include <mapnik/datasource.hpp>
#include <mapnik/feature.hpp>
#include <mapnik/feature_factory.hpp>
#include <mapnik/feature_layer_desc.hpp>
#include <mapnik/font_engine_freetype.hpp>
#include <mapnik/image.hpp>
#include <mapnik/layer.hpp>
#include <mapnik/load_map.hpp>
#include <mapnik/map.hpp>
#include <mapnik/query.hpp>
#include <mapnik/request.hpp>
#include <mapnik/unicode.hpp>
#include <optional>
#include <string>
#include <thread>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QStandardPaths>

#include "geo/WebMercator.h"
#include "map/LazyTables.h"

namespace wayloom {

namespace {

constexpr int kTilePixels = 512;
constexpr int kMaximumZoom = 18;
constexpr double kLargestScale = 4;

// From this zoom on, a region made from a detailed extract shows more than one of the whole world.
constexpr int kFirstFineZoom = 9;

// Wide enough for the longest label whose middle lies in the neighbouring tile.
constexpr int kBufferPixels = 200;

MapBox boxOf(const RegionBounds& bounds) {
  const MapPoint southWest = mapPoint({bounds.south, bounds.west});
  const MapPoint northEast = mapPoint({bounds.north, bounds.east});
  // Roads and labels may reach a little over what the region calls its bounds.
  const double margin = (northEast.x - southWest.x) / 4;
  return {southWest.x - margin, southWest.y - margin, northEast.x + margin, northEast.y + margin};
}

template <typename Path>
Path pathOf(const MapPath& points) {
  Path path;
  path.reserve(points.size());
  for (const auto& [x, y] : points) path.emplace_back(x, y);
  return path;
}

mapnik::geometry::geometry<double> geometryOf(const DrawingShape& shape) {
  using Ring = mapnik::geometry::linear_ring<double>;
  switch (shape.kind) {
    case DrawingShape::Kind::kPoint:
      return mapnik::geometry::point<double>(shape.paths[0][0].x, shape.paths[0][0].y);
    case DrawingShape::Kind::kLine:
      return pathOf<mapnik::geometry::line_string<double>>(shape.paths[0]);
    case DrawingShape::Kind::kPolygon:
      break;
  }
  mapnik::geometry::polygon<double> polygon;
  polygon.set_exterior_ring(pathOf<Ring>(shape.paths[0]));
  for (std::size_t i = 1; i < shape.paths.size(); ++i)
    polygon.add_hole(pathOf<Ring>(shape.paths[i]));
  return polygon;
}

mapnik::value valueOf(const SqlValue& value) {
  if (const auto* integer = std::get_if<std::int64_t>(&value)) {
    return static_cast<mapnik::value_integer>(*integer);
  }
  if (const auto* real = std::get_if<double>(&value)) return *real;
  const auto& text = std::get<std::string>(value);
  return mapnik::value_unicode_string::fromUTF8({text.data(), static_cast<int>(text.size())});
}

/// The rows of one table within a tile.
class RowFeatures final : public mapnik::Featureset {
 public:
  RowFeatures(const std::vector<std::string>& columns, std::vector<DrawingRow> rows)
      : mContext(std::make_shared<mapnik::context_type>()), mRows(std::move(rows)) {
    for (const std::string& column : columns) mContext->push(column);
  }

  mapnik::feature_ptr next() override {
    if (mNext == mRows.size()) return {};
    DrawingRow& row = mRows[mNext++];
    auto feature = mapnik::feature_factory::create(mContext, row.id);
    feature->set_geometry(geometryOf(row.shape));
    mapnik::feature_impl::cont_type values;
    for (const SqlValue& value : row.values) values.push_back(valueOf(value));
    feature->set_data(values);
    return feature;
  }

 private:
  mapnik::context_ptr mContext;
  std::vector<DrawingRow> mRows;
  std::size_t mNext = 0;
};

using SharedTables = std::vector<std::shared_ptr<LazyTables>>;

/// One layer of one region as Mapnik sees it. Where a smaller region draws the same ground, its
/// lines are the better ones, and the coarse ones beside them would mislead.
class RegionLayer final : public mapnik::datasource {
 public:
  RegionLayer(std::shared_ptr<LazyTables> tables, SharedTables smaller, std::string layer)
      : mapnik::datasource(mapnik::parameters()),
        mTables(std::move(tables)),
        mSmaller(std::move(smaller)),
        mLayer(std::move(layer)) {}

  datasource_t type() const override { return Vector; }
  boost::optional<mapnik::datasource_geometry_t> get_geometry_type() const override { return {}; }
  mapnik::layer_descriptor get_descriptor() const override { return {mLayer, "utf-8"}; }
  mapnik::featureset_ptr features_at_point(const mapnik::coord2d&, double) const override {
    return mapnik::make_invalid_featureset();
  }

  mapnik::box2d<double> envelope() const override {
    const MapBox box = boxOf(mTables->bounds());
    return {box.xmin, box.ymin, box.xmax, box.ymax};
  }

  mapnik::featureset_ptr features(const mapnik::query& query) const override {
    const auto zoom = static_cast<int>(query.variables().at("zoom").to_int());
    RegionTables* const tables = mTables->tables();
    const auto* const columns = tables ? tables->columns(mLayer, zoom) : nullptr;
    if (!columns) return mapnik::make_invalid_featureset();
    const auto& box = query.get_bbox();
    if (isDrawnBySmaller(box, zoom)) return mapnik::make_invalid_featureset();
    return std::make_shared<RowFeatures>(
        *columns, tables->rows(mLayer, zoom, {box.minx(), box.miny(), box.maxx(), box.maxy()}));
  }

 private:
  bool isDrawnBySmaller(const mapnik::box2d<double>& box, int zoom) const {
    const bool hasCoarseForm = mLayer == "border" || mLayer == "river" || mLayer == "water";
    if (!hasCoarseForm || zoom < kFirstFineZoom) return false;
    return std::any_of(mSmaller.begin(), mSmaller.end(), [&](const auto& region) {
      const auto& [west, south, east, north] = region->bounds();
      const MapPoint southWest = mapPoint({south, west});
      const MapPoint northEast = mapPoint({north, east});
      const mapnik::box2d<double> all(southWest.x, southWest.y, northEast.x, northEast.y);
      return all.contains(box) && region->tables() && region->tables()->columns(mLayer, zoom);
    });
  }

  std::shared_ptr<LazyTables> mTables;
  SharedTables mSmaller;
  std::string mLayer;
};

// The style names fonts; these files hold them. What is missing is passed over.
void registerFonts() {
  QStringList directories = QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
  directories << "/usr/share/fonts";
  for (const QString& directory : directories) {
    for (const char* file : {"noto/NotoSans-Regular.ttf", "noto/NotoSans-Bold.ttf",
                             "dejavu/DejaVuSans.ttf", "dejavu/DejaVuSans-Bold.ttf"}) {
      const QString path = QDir(directory).filePath(QString("truetype/") + file);
      if (QFile::exists(path)) mapnik::freetype_engine::register_font(path.toStdString());
    }
  }
}

std::string readStyle() {
  QFile file(QStringLiteral(":/wayloom/map/style.xml"));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

}  // namespace

/// A style with the regions' layers in it, for one thread at a time.
class MapnikTileSource::Drawer {
 public:
  explicit Drawer(const std::vector<Region>& regions) : mMap(kTilePixels, kTilePixels) {
    mapnik::load_map_string(mMap, readStyle());
    const std::vector<mapnik::layer> styled = mMap.layers();
    while (mMap.layer_count() > 0) mMap.remove_layer(mMap.layer_count() - 1);
    SharedTables tables;
    for (const Region& region : regions) tables.push_back(std::make_shared<LazyTables>(region));
    const auto size = [](const RegionBounds& b) { return (b.east - b.west) * (b.north - b.south); };
    for (const mapnik::layer& layer : styled) {
      for (const auto& region : tables) {
        mapnik::layer copy = layer;
        SharedTables smaller;
        std::copy_if(
            tables.begin(), tables.end(), std::back_inserter(smaller),
            [&](const auto& other) { return size(other->bounds()) < size(region->bounds()); });
        copy.set_datasource(
            std::make_shared<RegionLayer>(region, std::move(smaller), layer.name()));
        mMap.add_layer(std::move(copy));
      }
    }
    mMap.load_fonts();
  }

  QImage draw(const TileKey& key, double scale) {
    const int pixels = static_cast<int>(std::lround(kTilePixels * scale));
    const int buffer = static_cast<int>(kBufferPixels * scale);
    const double width = 2 * kMercatorHalfWorldMetres / std::exp2(key.zoom);
    const double west = -kMercatorHalfWorldMetres + key.x * width;
    const double north = kMercatorHalfWorldMetres - key.y * width;
    const mapnik::box2d<double> box(west, north - width, west + width, north);
    mMap.resize(static_cast<unsigned>(pixels), static_cast<unsigned>(pixels));
    mMap.set_buffer_size(buffer);
    mMap.zoom_to_box(box);
    mapnik::request request(mMap.width(), mMap.height(), box);
    request.set_buffer_size(buffer);
    mapnik::attributes variables;
    variables["zoom"] = static_cast<mapnik::value_integer>(key.zoom);

    QImage image(pixels, pixels, QImage::Format_RGBA8888_Premultiplied);
    if (image.isNull()) return {};
    image.fill(Qt::transparent);
    mapnik::image_rgba8 canvas(pixels, pixels, image.bits());
    mapnik::agg_renderer<mapnik::image_rgba8>(mMap, request, variables, canvas, scale).apply();
    return std::move(image).convertToFormat(QImage::Format_RGB32);
  }

 private:
  mapnik::Map mMap;
};

MapnikTileSource::MapnikTileSource(std::vector<Region> regions) : mRegions(std::move(regions)) {
  static std::once_flag fontsRegistered;
  std::call_once(fontsRegistered, registerFonts);
}

MapnikTileSource::~MapnikTileSource() = default;

std::unique_ptr<MapnikTileSource::Drawer> MapnikTileSource::borrowDrawer() {
  {
    const std::lock_guard lock(mMutex);
    if (!mIdleDrawers.empty()) {
      auto drawer = std::move(mIdleDrawers.back());
      mIdleDrawers.pop_back();
      return drawer;
    }
  }
  return std::make_unique<Drawer>(mRegions);
}

QImage MapnikTileSource::draw(const TileKey& key, double scale) {
  const bool isInWorld = key.zoom >= 0 && key.zoom <= kMaximumZoom && key.x >= 0 && key.y >= 0 &&
                         key.x < 1 << key.zoom && key.y < 1 << key.zoom;
  if (!isInWorld || !(scale > 0 && scale <= kLargestScale)) return {};
  try {
    auto drawer = borrowDrawer();
    QImage image = drawer->draw(key, scale);
    const std::lock_guard lock(mMutex);
    mIdleDrawers.push_back(std::move(drawer));
    return image;
  } catch (const std::exception&) {
    // The drawer may be in any state; the next tile gets a new one.
    return {};
  }
}

int MapnikTileSource::concurrency() const {
  return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 4);
}

int MapnikTileSource::maximumZoom() const {
  return kMaximumZoom;
}

QStringList MapnikTileSource::attributions(double west, double south, double east,
                                           double north) const {
  QStringList result;
  for (const Region& region : mRegions) {
    const RegionBounds& bounds = region.info.bounds;
    const QString text = QString::fromStdString(region.info.attribution);
    const bool isShown = bounds.west <= east && bounds.east >= west && bounds.south <= north &&
                         bounds.north >= south;
    if (isShown && !text.isEmpty() && !result.contains(text)) result << text;
  }
  return result;
}

}  // namespace wayloom
