#include "route/RoutePoints.h"

#include <utility>

#include "settings/TextConversions.h"

namespace wayloom {

namespace {

constexpr const char* kLatitudeKey = "lat";
constexpr const char* kLongitudeKey = "lng";

double numberIn(const PropertyList::Dictionary& record, const char* key) {
  const auto found = record.find(key);
  return doubleValue(found == record.end() ? nullptr : &found->second);
}

}  // namespace

RoutePoints RoutePoints::stored(PropertyList records) {
  RoutePoints points;
  points.mStored = std::make_shared<const PropertyList>(std::move(records));
  return points;
}

RoutePoints RoutePoints::planned(std::vector<Coordinate> path) {
  RoutePoints points;
  points.mPlanned = std::make_shared<const std::vector<Coordinate>>(std::move(path));
  return points;
}

std::size_t RoutePoints::count() const {
  if (mPlanned) return mPlanned->size();
  const auto* records = mStored ? mStored->get<PropertyList::Array>() : nullptr;
  return records ? records->size() : 0;
}

Coordinate RoutePoints::at(std::size_t index) const {
  if (index >= count()) return {};
  if (mPlanned) return (*mPlanned)[index];
  const PropertyList& entry = (*mStored->get<PropertyList::Array>())[index];
  const auto* record = entry.get<PropertyList::Dictionary>();
  if (!record) return {};
  return {numberIn(*record, kLatitudeKey), numberIn(*record, kLongitudeKey)};
}

PropertyList RoutePoints::records() const {
  if (mStored) return *mStored;
  PropertyList::Array records;
  if (!mPlanned) return records;
  records.reserve(mPlanned->size());
  for (const Coordinate& point : *mPlanned) {
    records.emplace_back(
        PropertyList::Dictionary{{kLatitudeKey, point.latitude}, {kLongitudeKey, point.longitude}});
  }
  return records;
}

}  // namespace wayloom
