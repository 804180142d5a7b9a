#pragma once

#include <string_view>

#include "places/LinkNumbers.h"

namespace wayloom {

// The parameters in which links to maps hold a place; of each table the first that is there counts.

/// A parameter that holds a whole position, on hosts whose name has `host` in it.
struct PairForm {
  std::string_view host;
  std::string_view name;
  Order order = Order::LatitudeFirst;
  Behind behind = Behind::Nothing;
};

/// Two parameters that hold one.
struct SplitForm {
  std::string_view host;
  std::string_view latitude, longitude;
};

/// Where a drive ends: the last of the stops that one parameter lists.
struct StopsForm {
  std::string_view name;
  char between;
};

inline constexpr SplitForm kSplitPins[] = {{"", "mlat", "mlon"},
                                           {"", "lat", "lon"},
                                           {"", "lat", "lng"},
                                           {"", "lat", "long"},
                                           {"", "latitude", "longitude"}};
inline constexpr SplitForm kSplitViews[] = {{"mapy.", "y", "x"}};
// Where a pin stands or a drive ends.
inline constexpr PairForm kPins[] = {
    {"yandex.", "whatshere[point]", Order::LongitudeFirst},
    {"amap.", "position", Order::LongitudeFirst, Behind::Anything},
    {"amap.", "to", Order::LongitudeFirst, Behind::Anything},
    {"amap.", "to[lnglat]", Order::LongitudeFirst, Behind::Anything},
    {"yandex.", "pt", Order::LongitudeFirst, Behind::Anything},
    {"mapy.", "id", Order::LongitudeFirst},
    {"", "pin"},
    {"", "coordinate"},
    {"", "latlng"},
    {"", "daddr"},
    {"", "destination"},
    {"", "to"},
    {"", "q"},
    {"", "query"},
    {"", "text"},
    {"", "address"},
    {"", "loc"},
    {"", "location"},
    {"", "point"},
    {"", "ep"},
    {"", "p"},
    {"", "sp", Order::LatitudeFirst, Behind::Anything},
};
inline constexpr StopsForm kStops[] = {{"route", ';'}, {"rtext", '~'}, {"rtp", '~'}};
inline constexpr std::string_view kDestinationWords[] = {"daddr", "destination", "to"};
// What is shown, with a pin or without.
inline constexpr PairForm kShown[] = {
    {"yandex.", "ll", Order::LongitudeFirst},
    {"2gis.", "m", Order::LongitudeFirst, Behind::Anything},
    {"", "ll"},
    {"", "cbll"},
    {"", "viewpoint"},
};
inline constexpr std::string_view kSearchWords[] = {"q", "query", "text", "address"};
// The middle of the view.
inline constexpr PairForm kViews[] = {
    {"", "sll"},
    {"", "center"},
    {"", "cp"},
    {"", "map", Order::LatitudeFirst, Behind::Anything},
    {"", "c", Order::LatitudeFirst, Behind::Anything},
};

}  // namespace wayloom
