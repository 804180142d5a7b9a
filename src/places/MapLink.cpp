#include "places/MapLink.h"

#include <algorithm>
#include <functional>
#include <span>

#include "places/AsciiCapitals.h"
#include "places/DegreesText.h"
#include "places/LinkParts.h"
#include "places/MapLinkForms.h"

namespace wayloom {

namespace {

constexpr std::string_view kSchemes[] = {"geo:", "google.navigation:", "bingmaps:", "maps:"};

bool isOn(const LinkParts& link, std::string_view host) {
  return link.host.find(host) != std::string::npos;
}

Found splitPosition(const LinkParts& link, std::span<const SplitForm> forms) {
  for (const SplitForm& form : forms) {
    const std::string* latitude = valueOf(link.parameters, form.latitude);
    const std::string* longitude = valueOf(link.parameters, form.longitude);
    if (!isOn(link, form.host) || !latitude || !longitude) continue;
    std::string_view north = *latitude;
    std::string_view east = *longitude;
    const auto first = takeNumber(north);
    const auto second = takeNumber(east);
    if (first && second && north.empty() && east.empty()) return checked({*first, *second});
    return failed("the position in this link is no number");
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
    if (const auto position = pairIn(pair, Order::LatitudeFirst, Behind::Nothing)) {
      return checked(*position);
    }
  }
  return std::nullopt;
}

Found pairPosition(const LinkParts& link, std::span<const PairForm> forms) {
  for (const PairForm& form : forms) {
    const std::string* value = valueOf(link.parameters, form.name);
    // "map=17/57.7/11.97" is read below.
    if (!value || !isOn(link, form.host) || std::count(value->begin(), value->end(), '/') == 2) {
      continue;
    }
    if (Found found = positionIn(*value, form.order, form.behind)) return found;
  }
  return std::nullopt;
}

bool hasLetter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char character) {
    const int small = character | 0x20;
    return character < 0 || (small >= 'a' && small <= 'z');
  });
}

Found wordsIn(const LinkParts& link, std::span<const std::string_view> names) {
  for (const std::string_view name : names) {
    const std::string* value = valueOf(link.parameters, name);
    if (value && hasLetter(*value)) return LinkTarget(*value);
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
  const auto position = plain ? readDegrees(*plain, "") : std::nullopt;
  if (!position) return std::nullopt;
  return *position ? checked(**position) : Result<LinkTarget>(position->failure());
}

bool isView(const std::string& part) {
  return part.starts_with('@') || part.starts_with("data=");
}

/// The last of what stands behind `folder` in the path: where a drive ends, what is searched for.
const std::string* lastBehind(const LinkParts& link, std::string_view folder) {
  const auto at = std::find(link.path.begin(), link.path.end(), folder);
  const auto end = std::find_if(at, link.path.end(), isView);
  const std::string* last = nullptr;
  for (auto part = at; part != end; ++part) {
    if (part != at && !part->empty()) last = &*part;
  }
  return last;
}

/// A position or words behind a folder of the path.
Found targetBehind(const LinkParts& link, std::string_view folder) {
  const std::string* target = lastBehind(link, folder);
  if (!target) return std::nullopt;
  if (Found found = positionIn(*target, Order::LatitudeFirst, Behind::Nothing)) return found;
  return hasLetter(*target) ? Found(LinkTarget(*target)) : std::nullopt;
}

/// "/directions?route=57.1,11.2;57.7,11.97", "?rtp=adr.Home~pos.57.7_11.97".
Found stopsPosition(const LinkParts& link) {
  for (const StopsForm& form : kStops) {
    const std::string* stops = valueOf(link.parameters, form.name);
    if (!stops) continue;
    std::string last = stops->substr(stops->rfind(form.between) + 1);
    if (Found found = positionIn(last, Order::LatitudeFirst, Behind::Anything)) return found;
    if (last.starts_with("adr.")) return LinkTarget(last.substr(4));
  }
  return std::nullopt;
}

/// "/directions/drive/Home:57.1,11.2/Work:57.7,11.97", "/link/to/Home,57.7,11.97": what is called
/// by a name before its position.
Found namedPosition(const LinkParts& link) {
  const bool isKakao = isOn(link, "kakao.");
  if (link.path.empty() || (!isKakao && !isOn(link, "here."))) return std::nullopt;
  std::string last = link.path.back();
  if (isKakao) {
    const std::size_t comma = last.rfind(',');
    const std::size_t before =
        comma == 0 || comma == last.npos ? last.npos : last.rfind(',', comma - 1);
    if (before != last.npos) last.erase(0, before + 1);
  } else {
    last.erase(0, last.rfind(':') + 1);
  }
  return positionIn(last, Order::LatitudeFirst, Behind::Anything);
}

/// "/57.7/11.97", a place that was picked, and "?waves,57.6,11.9,8", what is in view.
Found weatherPosition(const LinkParts& link) {
  if (!isOn(link, "windy.")) return std::nullopt;
  if (link.path.size() >= 2) {
    const std::string picked = link.path[link.path.size() - 2] + ',' + link.path.back();
    if (Found found = positionIn(picked, Order::LatitudeFirst, Behind::Nothing)) return found;
  }
  for (std::string_view view = link.query; !view.empty(); takeUntil(view, ',')) {
    if (const auto pair = pairIn(view, Order::LatitudeFirst, Behind::Anything))
      return checked(*pair);
  }
  return std::nullopt;
}

Found pathPosition(const LinkParts& link, bool wantsView) {
  const Order order = isOn(link, "2gis.") ? Order::LongitudeFirst : Order::LatitudeFirst;
  for (auto part = link.path.rbegin(); part != link.path.rend(); ++part) {
    if (isView(*part) != wantsView) continue;
    const std::string position = wantsView ? part->substr(1) : *part;
    if (Found found = positionIn(position, order, Behind::Anything)) return found;
  }
  return std::nullopt;
}

/// "#map=17/57.7/11.97" and "#17/57.7/11.97", as a parameter too.
Found viewPosition(const LinkParts& link) {
  const std::string* map = valueOf(link.parameters, "map");
  for (std::string_view view :
       {map ? std::string_view(*map) : "", std::string_view(link.fragment)}) {
    if (view.starts_with('/')) view.remove_prefix(1);
    if (!takeNumber(view) || !view.starts_with('/')) continue;
    view.remove_prefix(1);
    const auto pair = pairIn(view, Order::LatitudeFirst, Behind::Anything);
    if (pair) return checked(*pair);
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
  return checked({north * 180 - 90 + part * 90, east * 360 - 180 + part * 180});
}

/// Latitude, longitude and perhaps a height, all numbers.
std::optional<Coordinate> geoPosition(std::string_view text) {
  const auto latitude = takeNumber(text);
  if (!latitude || !text.starts_with(',')) return std::nullopt;
  text.remove_prefix(1);
  const auto longitude = takeNumber(text);
  if (!longitude || !(text.empty() || text.starts_with(','))) return std::nullopt;
  return Coordinate{*latitude, *longitude};
}

Result<LinkTarget> readGeoAddress(std::string_view address) {
  address.remove_prefix(4);
  std::string_view query = address;
  const std::string path = unescaped(takeUntil(query, '?'));
  std::string_view rest = path;
  const LinkParameters parameters = linkParameters(query);
  const auto position = geoPosition(takeUntil(rest, ';'));
  while (!rest.empty()) {
    std::string_view value = takeUntil(rest, ';');
    const std::string name = capitals(takeUntil(value, '='));
    if (name == "CRS" && capitals(value) != "WGS84") {
      return failed("geo: addresses are read in wgs84 only");
    }
  }
  if (const std::string* asked = valueOf(parameters, "q")) {
    if (Found found = positionIn(*asked, Order::LatitudeFirst, Behind::Nothing)) return *found;
    if (!position || *position == Coordinate()) return LinkTarget(*asked);
  }
  if (!position) return failed("this geo: address holds no position");
  return *checked(*position);
}

bool hasHostAndPath(std::string_view text) {
  const std::size_t slash = text.find('/');
  const std::string_view host = text.substr(0, slash);
  constexpr std::string_view kHost = "abcdefghijklmnopqrstuvwxyz0123456789.-";
  return slash != text.npos && host.find('.') != host.npos && !host.starts_with('.') &&
         host.find_first_not_of(kHost) == host.npos &&
         host.find_first_of("abcdefghijklmnopqrstuvwxyz", host.rfind('.')) != host.npos;
}

bool isGeoAddress(std::string_view text) {
  return capitals(text.substr(0, 4)) == "GEO:";
}

bool beginsLink(std::string_view word) {
  const auto isScheme = [word](std::string_view scheme) { return word.starts_with(scheme); };
  return isGeoAddress(word) || std::any_of(std::begin(kSchemes), std::end(kSchemes), isScheme) ||
         word.find("://") != word.npos || hasHostAndPath(word);
}

}  // namespace

std::optional<std::string_view> linkIn(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  for (bool isFirst = true;; isFirst = false) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    if (text.empty()) return std::nullopt;
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    // Blanks within a parameter are not uncommon where the link is all there is.
    if (beginsLink(word)) return isFirst && word.find('?') != word.npos ? text : word;
    text.remove_prefix(word.size());
  }
}

Result<LinkTarget> readMapLink(std::string_view text) {
  if (isGeoAddress(text)) return readGeoAddress(text);
  const LinkParts link = linkParts(text);
  if (isOn(link, "plus.codes") && !link.path.empty()) {
    std::string code = link.path.back();  // In a path, "+" is often a blank; here it never is.
    std::replace(code.begin(), code.end(), ' ', '+');
    return LinkTarget(code);
  }
  // What marks a place comes before where a drive goes, that before what is searched for, and the
  // middle of the view last.
  const std::function<Found()> forms[] = {
      [&] { return splitPosition(link, kSplitPins); },
      [&] { return markedPosition(link); },
      [&] { return pairPosition(link, kPins); },
      [&] { return encyclopediaPosition(link); },
      [&] { return stopsPosition(link); },
      [&] { return namedPosition(link); },
      [&] { return weatherPosition(link); },
      [&] { return wordsIn(link, kDestinationWords); },
      [&] { return targetBehind(link, "dir"); },
      [&] { return pairPosition(link, kShown); },
      [&] { return pathPosition(link, false); },
      [&] { return wordsIn(link, kSearchWords); },
      [&] { return targetBehind(link, "search"); },
      [&] { return pathPosition(link, true); },
      [&] { return viewPosition(link); },
      [&] { return pairPosition(link, kViews); },
      [&] { return splitPosition(link, kSplitViews); },
      [&] { return shortPosition(link); },
      [&] { return targetBehind(link, "place"); },
  };
  for (const auto& read : forms) {
    if (const Found found = read()) return *found;
  }
  return failed("this link holds no position: open it, and copy the address that is shown then");
}

}  // namespace wayloom
