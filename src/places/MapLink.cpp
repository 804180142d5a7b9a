#include "places/MapLink.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>
#include <vector>

#include "places/DegreesText.h"
#include "places/LinkParts.h"

namespace wayloom {

namespace {

enum class Order { LatitudeFirst, LongitudeFirst };

/// A parameter that holds a whole position, on hosts whose name has `host` in it.
struct PairForm {
  std::string_view host;
  std::string_view name;
  Order order = Order::LatitudeFirst;
};

/// Two parameters that hold one.
struct SplitForm {
  std::string_view host;
  std::string_view latitude, longitude;
};

// What marks a place comes before what is merely in the middle of the view.
constexpr SplitForm kSplitForms[] = {
    {"", "mlat", "mlon"}, {"", "lat", "lon"},       {"", "lat", "lng"},
    {"", "lat", "long"},  {"", "to_lat", "to_lon"}, {"", "latitude", "longitude"},
    {"mapy.", "y", "x"},
};
constexpr PairForm kPairForms[] = {
    {"yandex.", "whatshere[point]", Order::LongitudeFirst},
    {"yandex.", "pt", Order::LongitudeFirst},
    {"yandex.", "ll", Order::LongitudeFirst},
    {"2gis.", "m", Order::LongitudeFirst},
    {"", "pin"},
    {"", "q"},
    {"", "query"},
    {"", "daddr"},
    {"", "destination"},
    {"", "coordinate"},
    {"", "latlng"},
    {"", "loc"},
    {"", "location"},
    {"", "point"},
    {"", "pt"},
    {"", "address"},
    {"", "to"},
    {"", "ll"},
    {"", "cbll"},
    {"", "viewpoint"},
    {"", "sll"},
    {"", "center"},
    {"", "cp"},
    {"", "map"},
    {"", "c"},
};
constexpr std::string_view kWordForms[] = {"q", "query", "daddr", "destination", "address", "text"};
constexpr std::string_view kWordFolders[] = {"place", "search", "dir"};
constexpr std::string_view kSchemes[] = {"geo:", "google.navigation:", "bingmaps:", "maps:"};

std::optional<double> takeNumber(std::string_view& text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  double number = 0;
  const auto read =
      std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  if (read.ec != std::errc() || !std::isfinite(number)) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
  return number;
}

void skipBlanks(std::string_view& text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
}

/// The two numbers at the beginning of "57.7,11.97,17z", "57.7~11.97", "57.7,11.97(Home)" and the
/// like. None for anything else.
std::optional<Coordinate> leadingPair(std::string_view text, Order order) {
  constexpr std::string_view kBetween = ",~_;|/ ";
  constexpr std::string_view kBehind = ",~_;|/ (&@)";
  if (text.starts_with("loc:")) text.remove_prefix(4);
  skipBlanks(text);
  const auto first = takeNumber(text);
  if (!first || text.empty() || kBetween.find(text.front()) == kBetween.npos) return std::nullopt;
  text.remove_prefix(1);
  skipBlanks(text);
  const auto second = takeNumber(text);
  if (!second || (!text.empty() && kBehind.find(text.front()) == kBehind.npos)) return std::nullopt;
  return order == Order::LatitudeFirst ? Coordinate{*first, *second} : Coordinate{*second, *first};
}

using Found = std::optional<Result<Coordinate>>;

Found checkedPair(std::optional<Coordinate> pair) {
  return pair ? Found(checkedPosition(*pair)) : std::nullopt;
}

/// A parameter's position, in numbers or as people write degrees.
Found positionIn(const std::string& value, Order order) {
  if (const auto pair = leadingPair(value, order)) return checkedPosition(*pair);
  const auto plain = plainText(value);
  return plain ? readDegrees(*plain, "") : std::nullopt;
}

Found splitPosition(const LinkParts& link) {
  for (const SplitForm& form : kSplitForms) {
    if (link.host.find(form.host) == std::string::npos) continue;
    const std::string* latitude = valueOf(link.parameters, form.latitude);
    const std::string* longitude = valueOf(link.parameters, form.longitude);
    if (!latitude || !longitude) continue;
    return checkedPair(leadingPair(*latitude + ',' + *longitude, Order::LatitudeFirst));
  }
  return std::nullopt;
}

/// "!3d57.7!4d11.97": the place itself, in a path whose "@" is the middle of the view.
Found markedPosition(const LinkParts& link) {
  for (const std::string& part : link.path) {
    const std::size_t latitude = part.rfind("!3d");
    const std::size_t longitude = part.find("!4d", latitude);
    if (latitude == part.npos || longitude == part.npos) continue;
    std::string pair = part.substr(latitude + 3, longitude - latitude - 3);
    std::string_view rest = std::string_view(part).substr(longitude + 3);
    pair.append(",").append(takeUntil(rest, '!'));
    return checkedPair(leadingPair(pair, Order::LatitudeFirst));
  }
  return std::nullopt;
}

Found pairPosition(const LinkParts& link) {
  for (const PairForm& form : kPairForms) {
    if (link.host.find(form.host) == std::string::npos) continue;
    const std::string* value = valueOf(link.parameters, form.name);
    // "map=17/57.7/11.97" is a view, read below.
    if (!value || std::count(value->begin(), value->end(), '/') == 2) continue;
    if (Found found = positionIn(*value, form.order)) return found;
  }
  return std::nullopt;
}

/// "params=57_42_27_N_11_58_03_E_type:city".
Found encyclopediaPosition(const LinkParts& link) {
  const std::string* value = valueOf(link.parameters, "params");
  if (!value) return std::nullopt;
  const std::size_t end = value->find_first_of("EWO");
  std::string degrees = value->substr(0, end == value->npos ? end : end + 1);
  std::replace(degrees.begin(), degrees.end(), '_', ' ');
  const auto plain = plainText(degrees);
  return plain ? readDegrees(*plain, "") : std::nullopt;
}

/// A position in the path: the last one that is a place, or else the middle of the view.
Found pathPosition(const LinkParts& link) {
  const Order order =
      link.host.find("2gis.") == std::string::npos ? Order::LatitudeFirst : Order::LongitudeFirst;
  for (const bool isView : {false, true}) {
    for (auto part = link.path.rbegin(); part != link.path.rend(); ++part) {
      // Whole numbers in a path are anything: days, issues, pages.
      if (part->starts_with('@') != isView || part->find_first_of(".°") == part->npos) continue;
      if (Found found = positionIn(part->substr(isView ? 1 : 0), order)) return found;
    }
  }
  return std::nullopt;
}

/// "#map=17/57.7/11.97" and "#17/57.7/11.97", as a parameter too.
Found viewPosition(const LinkParts& link) {
  const std::string* map = valueOf(link.parameters, "map");
  for (std::string_view view :
       {map ? std::string_view(*map) : "", std::string_view(link.fragment)}) {
    if (view.starts_with('/')) view.remove_prefix(1);
    std::string_view rest = view;
    if (!takeNumber(rest) || !rest.starts_with('/')) continue;
    rest.remove_prefix(1);
    if (const auto pair = leadingPair(rest, Order::LatitudeFirst)) return checkedPosition(*pair);
  }
  return std::nullopt;
}

/// The short form of OpenStreetMap's links: digits of base 64, each three bits of longitude and
/// latitude in turn, in fractions of the world's width and height.
Found shortPosition(const LinkParts& link) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_~";
  if (!link.host.ends_with("osm.org") || link.path.size() < 2 || link.path[0] != "go") return {};
  double east = 0;
  double north = 0;
  double part = 1;
  for (const char character : link.path[1]) {
    const std::size_t digit = kDigits.find(character == '@' ? '~' : character);
    if (digit == kDigits.npos) break;  // "-" and "=" only tell the zoom.
    for (int bit = 5; bit > 0; bit -= 2) {
      part /= 2;
      if (digit >> bit & 1) east += part;
      if (digit >> (bit - 1) & 1) north += part;
    }
  }
  if (part == 1) return std::nullopt;
  return checkedPosition({north * 180 - 90 + part * 90, east * 360 - 180 + part * 180});
}

std::optional<std::string> words(const LinkParts& link) {
  for (const std::string_view name : kWordForms) {
    if (const std::string* value = valueOf(link.parameters, name)) return *value;
  }
  for (const std::string_view folder : kWordFolders) {
    const auto at = std::find(link.path.begin(), link.path.end(), folder);
    if (at == link.path.end()) continue;
    const auto end = std::find_if(at, link.path.end(),
                                  [](const std::string& part) { return part.starts_with('@'); });
    if (end - at > 1 && !(end - 1)->empty()) return *(end - 1);
  }
  return std::nullopt;
}

Result<LinkTarget> readGeoAddress(std::string_view address) {
  address.remove_prefix(4);
  std::string_view query = address;
  std::string_view rest = takeUntil(query, '?');
  const LinkParameters parameters = linkParameters(query);
  const auto position = leadingPair(takeUntil(rest, ';'), Order::LatitudeFirst);
  while (!rest.empty()) {
    std::string_view value = takeUntil(rest, ';');
    const std::string_view name = takeUntil(value, '=');
    if (name == "crs" && value != "wgs84" && value != "WGS84") {
      return failed("geo: addresses are read in wgs84 only");
    }
  }
  if (const std::string* asked = valueOf(parameters, "q")) {
    if (Found found = positionIn(*asked, Order::LatitudeFirst)) {
      return *found ? Result<LinkTarget>(**found) : found->failure();
    }
    if (!position || *position == Coordinate()) return LinkTarget(*asked);
  }
  if (!position) return failed("this geo: address holds no position");
  const auto checked = checkedPosition(*position);
  return checked ? Result<LinkTarget>(*checked) : checked.failure();
}

bool hasHostAndPath(std::string_view text) {
  const std::size_t slash = text.find('/');
  const std::string_view host = text.substr(0, slash);
  constexpr std::string_view kHost = "abcdefghijklmnopqrstuvwxyz0123456789.-";
  return slash != text.npos && host.find('.') != host.npos && !host.starts_with('.') &&
         host.find_first_not_of(kHost) == host.npos &&
         host.find_first_of("abcdefghijklmnopqrstuvwxyz", host.rfind('.')) != host.npos;
}

bool beginsLink(std::string_view word) {
  const auto isScheme = [word](std::string_view scheme) { return word.starts_with(scheme); };
  return std::any_of(std::begin(kSchemes), std::end(kSchemes), isScheme) ||
         word.find("://") != word.npos || hasHostAndPath(word);
}

}  // namespace

std::optional<std::string_view> linkIn(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  while (!text.empty()) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == text.npos) break;
    text.remove_prefix(begin);
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    // Blanks within a parameter are not uncommon where the link is all there is.
    if (beginsLink(word))
      return text.starts_with("geo:") || word.find('?') != word.npos ? text : word;
    text.remove_prefix(word.size());
  }
  return std::nullopt;
}

Result<LinkTarget> readMapLink(std::string_view text) {
  if (text.starts_with("geo:")) return readGeoAddress(text);
  const LinkParts link = linkParts(text);
  for (const auto read : {splitPosition, markedPosition, pairPosition, encyclopediaPosition,
                          pathPosition, viewPosition, shortPosition}) {
    const Found found = read(link);
    if (found) return *found ? Result<LinkTarget>(**found) : found->failure();
  }
  if (const auto asked = words(link)) return LinkTarget(*asked);
  return failed("this link holds no position: open it, and copy the address that is shown then");
}

}  // namespace wayloom
