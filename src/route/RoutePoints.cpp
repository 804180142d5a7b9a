#include "route/RoutePoints.h"

#include <mutex>
#include <utility>
#include <variant>

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

constexpr const char* kPointsKey = "points";
constexpr const char* kLatitudeKey = "lat";
constexpr const char* kLongitudeKey = "lng";

using Path = std::vector<Coordinate>;

PropertyList recordOf(const Coordinate& point) {
  return PropertyList::Dictionary{{kLatitudeKey, point.latitude}, {kLongitudeKey, point.longitude}};
}

PreparedEntry entryOf(const Path& path) {
  return prepareEntry(kPointsKey, path.size(),
                      [&](std::size_t index) { return recordOf(path[index]); });
}

}  // namespace

struct RoutePoints::Content {
  explicit Content(std::variant<Path, PropertyList> given) : records(std::move(given)) {}

  const Path* planned() const { return std::get_if<Path>(&records); }
  const PropertyList::Array* stored() const {
    const auto* list = std::get_if<PropertyList>(&records);
    return list ? list->get<PropertyList::Array>() : nullptr;
  }

  std::variant<Path, PropertyList> records;
  mutable std::once_flag isPrepared;
  mutable PreparedEntry entry;
};

RoutePoints::RoutePoints() : RoutePoints(std::make_shared<const Content>(Path())) {}

RoutePoints::RoutePoints(std::shared_ptr<const Content> content) : mContent(std::move(content)) {}

RoutePoints RoutePoints::stored(PropertyList records) {
  return RoutePoints(std::make_shared<const Content>(std::move(records)));
}

RoutePoints RoutePoints::planned(Path path) {
  return RoutePoints(std::make_shared<const Content>(std::move(path)));
}

std::size_t RoutePoints::count() const {
  if (const Path* path = mContent->planned()) return path->size();
  const auto* records = mContent->stored();
  return records ? records->size() : 0;
}

Coordinate RoutePoints::at(std::size_t index) const {
  if (index >= count()) return {};
  if (const Path* path = mContent->planned()) return (*path)[index];
  const auto* record = (*mContent->stored())[index].get<PropertyList::Dictionary>();
  if (!record) return {};
  return {doubleValue(valueOf(*record, kLatitudeKey)),
          doubleValue(valueOf(*record, kLongitudeKey))};
}

const PreparedEntry& RoutePoints::entry() const {
  std::call_once(mContent->isPrepared, [this] {
    const Path* path = mContent->planned();
    mContent->entry =
        path ? entryOf(*path) : prepareEntry(kPointsKey, std::get<PropertyList>(mContent->records));
  });
  return mContent->entry;
}

}  // namespace wayloom
