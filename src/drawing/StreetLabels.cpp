#include "drawing/StreetLabels.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <sstream>

#include "drawing/LabelGrid.h"
#include "drawing/MeasuredPath.h"
#include "drawing/PointGrid.h"
#include "regions/DrawingTable.h"

namespace wayloom {

namespace {

using Labels = std::vector<StreetLabel>;

constexpr double kRepeatPixels = 420;
constexpr double kStepPixels = 40;
constexpr double kEndPixels = 6;
// Where points stand further apart than on any road, a few of them would take millions of names.
constexpr double kMostMetresBetweenPoints = 20000;

// All stretches that carry one text, the most important kind of street among them.
struct Carrier {
  std::string text;
  Street::Kind kind = Street::Kind::kPath;
  std::vector<MeasuredPath> paths;
  double length = 0;
};

// The stretches as they come, before those that meet are joined.
struct Stretches {
  Street::Kind kind = Street::Kind::kPath;
  std::vector<MapPath> paths;
};
using StretchesByText = std::map<std::string, Stretches>;

std::vector<Carrier> carriers(const StretchesByText& byText) {
  std::vector<Carrier> result;
  for (const auto& [text, stretches] : byText) {
    Carrier carrier{text, stretches.kind, {}, 0};
    for (MapPath& path : joined(stretches.paths)) {
      const double gaps = static_cast<double>(path.size()) - 1;
      MeasuredPath measured(std::move(path));
      if (measured.length() > gaps * kMostMetresBetweenPoints) continue;
      carrier.length += measured.length();
      carrier.paths.push_back(std::move(measured));
    }
    std::sort(carrier.paths.begin(), carrier.paths.end(),
              [](const auto& a, const auto& b) { return a.length() > b.length(); });
    result.push_back(std::move(carrier));
  }
  std::stable_sort(result.begin(), result.end(), [](const Carrier& a, const Carrier& b) {
    return a.kind != b.kind ? a.kind > b.kind : a.length > b.length;
  });
  return result;
}

void carry(StretchesByText& byText, const std::string& text, const Street& street) {
  Stretches& stretches = byText[text];
  stretches.kind = std::max(stretches.kind, street.kind);
  stretches.paths.push_back(street.paths.front());
}

int firstZoomOf(Street::Kind kind) {
  if (kind >= Street::Kind::kSecondary) return 13;
  if (kind >= Street::Kind::kTertiary) return 14;
  if (kind >= Street::Kind::kPedestrian) return 15;
  return kind >= Street::Kind::kService ? 16 : 17;
}

double textSize(Street::Kind kind, int zoom) {
  const double size = kind >= Street::Kind::kSecondary ? 11.5 : 10.5;
  return size + (zoom >= 16 ? 1 : 0);
}

double angleBetween(const MapPoint& a, const MapPoint& b, const MapPoint& c) {
  const double turn = std::atan2(c.y - b.y, c.x - b.x) - std::atan2(b.y - a.y, b.x - a.x);
  return std::abs(std::remainder(turn, 2 * M_PI));
}

// Letters on a sharp or winding bend do not read as a word.
bool isReadable(const MapPath& path) {
  const double chord = std::hypot(path.back().x - path.front().x, path.back().y - path.front().y);
  if (chord < 0.93 * lengthOf(path)) return false;
  for (std::size_t i = 2; i < path.size(); ++i) {
    if (angleBetween(path[i - 2], path[i - 1], path[i]) > 0.6) return false;
  }
  return true;
}

// The boxes of a text along a path, in pixels: squares of the text's height, one after the other.
std::vector<MapBox> boxesAlong(const MeasuredPath& path, double pixel, double size) {
  const double half = size * 0.75;
  const double length = path.length();
  const int count = std::max(1, static_cast<int>(std::ceil(length / pixel / half)));
  std::vector<MapBox> boxes;
  for (int i = 0; i <= count; ++i) {
    const MapPoint p = path.at(length * i / count);
    boxes.push_back(
        {p.x / pixel - half, p.y / pixel - half, p.x / pixel + half, p.y / pixel + half});
  }
  return boxes;
}

// One zoom's labels in the making.
class Sheet {
 public:
  Sheet(int zoom, const std::vector<PlaceLabel>& places)
      : mPixel(metresPerPixel(zoom)), mTexts(kRepeatPixels * mPixel) {
    for (const PlaceLabel& place : places) {
      if (place.firstZoom <= zoom && zoom <= place.lastZoom) mGrid.take(labelBox(place, zoom));
    }
  }

  double pixel() const { return mPixel; }
  const Labels& labels() const { return mLabels; }

  // Adds the label unless it touches another or the same text stands nearby.
  void add(StreetLabel label) {
    const MeasuredPath path(label.path);
    const MapPoint middle = path.at(path.length() / 2);
    const auto isSame = [&](const std::string& text, double) { return text == label.text; };
    if (mTexts.anyNear(middle, isSame)) return;
    const auto boxes = boxesAlong(path, mPixel, label.size);
    if (!std::all_of(boxes.begin(), boxes.end(),
                     [this](const MapBox& box) { return mGrid.isFree(box); })) {
      return;
    }
    for (const MapBox& box : boxes) mGrid.take(box);
    mTexts.add(middle, label.text);
    mLabels.push_back(std::move(label));
  }

  void reserve(const StreetLabel& label) {
    const MeasuredPath path(label.path);
    for (const MapBox& box : boxesAlong(path, mPixel, label.size)) mGrid.take(box);
  }

 private:
  double mPixel;
  LabelGrid mGrid;
  PointGrid<std::string> mTexts;
  Labels mLabels;
};

std::optional<StreetLabel> labelAt(const std::string& text, Street::Kind kind,
                                   const MeasuredPath& path, double middle, int zoom) {
  const double pixel = metresPerPixel(zoom);
  const double size = textSize(kind, zoom);
  const double half = (textWidth(text) * size / 2 + kEndPixels) * pixel;
  if (middle < half || middle > path.length() - half) return {};
  // Bends of less than a pixel or two only make the letters dance.
  MapPath stretch = simplified(path.part(middle - half, middle + half), 2 * pixel);
  if (!isReadable(stretch)) return {};
  return StreetLabel{text, kind, size, smoothed(stretch, 2)};
}

void addAlong(const Carrier& carrier, const MeasuredPath& path, int zoom, Sheet& sheet) {
  const double length = path.length();
  const double step = kStepPixels * metresPerPixel(zoom);
  // From the middle outwards: a name reads best halfway along its street.
  for (double offset = 0; offset < length / 2; offset += step) {
    for (const double middle : {length / 2 - offset, length / 2 + offset}) {
      auto label = labelAt(carrier.text, carrier.kind, path, middle, zoom);
      if (label) sheet.add(std::move(*label));
    }
  }
}

// A label of the zoom before, at the size of this one: the text takes half the street it took.
std::optional<StreetLabel> shrunk(const StreetLabel& label, int zoom) {
  const MeasuredPath path(label.path);
  return labelAt(label.text, label.kind, path, path.length() / 2, zoom);
}

// The numbers of a road, all written the same way: "E6;E 20" gives "E 6" and "E 20".
std::vector<std::string> numbersOf(const std::string& list) {
  constexpr std::size_t kLongest = 7;
  std::vector<std::string> numbers;
  std::istringstream stream(list);
  for (std::string number; std::getline(stream, number, ';');) {
    std::erase(number, ' ');
    const auto digit = number.find_first_of("0123456789");
    if (digit != std::string::npos && digit > 0) {
      number = number.substr(0, digit) + ' ' + number.substr(digit);
    }
    if (!number.empty() && number.size() <= kLongest) numbers.push_back(number);
  }
  return numbers;
}

Status writeSheets(Database& database, const std::string& name, int firstZoom,
                   const std::vector<Labels>& sheets) {
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    const bool isLast = i + 1 == sheets.size();
    const int zoom = firstZoom + static_cast<int>(i);
    DrawingTable table(database, name + (isLast ? "" : "_z" + std::to_string(zoom)),
                       {"name", "kind", "size", "min_zoom"});
    for (const StreetLabel& label : sheets[i]) {
      table.add({DrawingShape::Kind::kLine, {label.path}},
                {label.text, kindName(label.kind), label.size, zoom});
    }
    if (!table.status()) return table.status();
  }
  return done();
}

}  // namespace

std::vector<Labels> selectStreetLabels(const std::vector<Street>& streets,
                                       const std::vector<PlaceLabel>& places) {
  StretchesByText byText;
  for (const Street& street : streets) {
    if (!street.name.empty() && !street.isArea) carry(byText, street.name, street);
  }
  const std::vector<Carrier> ordered = carriers(byText);
  std::vector<Labels> sheets;
  for (int zoom = kFirstStreetLabelZoom; zoom <= kLastStreetLabelZoom; ++zoom) {
    Sheet sheet(zoom, places);
    if (!sheets.empty()) {
      for (const StreetLabel& before : sheets.back()) {
        if (auto label = shrunk(before, zoom)) sheet.add(std::move(*label));
      }
    }
    for (const Carrier& carrier : ordered) {
      if (zoom < firstZoomOf(carrier.kind)) continue;
      for (const MeasuredPath& path : carrier.paths) addAlong(carrier, path, zoom, sheet);
    }
    sheets.push_back(sheet.labels());
  }
  return sheets;
}

std::vector<Labels> selectShields(const std::vector<Street>& streets,
                                  const std::vector<Labels>& names,
                                  const std::vector<PlaceLabel>& places) {
  StretchesByText byText;
  for (const Street& street : streets) {
    // Slip roads carry the numbers of where they lead, small roads numbers no sign shows.
    if (street.isLink || street.isArea || street.kind < Street::Kind::kPrimary) continue;
    for (const std::string& number : numbersOf(street.ref)) carry(byText, number, street);
  }
  const std::vector<Carrier> ordered = carriers(byText);
  std::vector<Labels> sheets;
  for (int zoom = kFirstShieldZoom; zoom <= kLastShieldZoom; ++zoom) {
    Sheet sheet(zoom, places);
    if (zoom >= kFirstStreetLabelZoom) {
      for (const auto& name : names[static_cast<std::size_t>(zoom - kFirstStreetLabelZoom)]) {
        sheet.reserve(name);
      }
    }
    for (const Carrier& carrier : ordered) {
      constexpr double kSize = 9.5;
      const double half = textWidth(carrier.text) * kSize / 2 * sheet.pixel();
      for (const MeasuredPath& path : carrier.paths) {
        const double length = path.length();
        for (double at = length / 2; at < length; at += kStepPixels * sheet.pixel()) {
          const MapPoint p = path.at(at);
          sheet.add({carrier.text, carrier.kind, kSize, {{p.x - half, p.y}, {p.x + half, p.y}}});
        }
      }
    }
    sheets.push_back(sheet.labels());
  }
  return sheets;
}

Status writeStreetLabels(Database& database, const std::vector<Street>& streets,
                         const std::vector<PlaceLabel>& allPlaces) {
  // Only those near the streets can be in their way.
  std::vector<MapPath> lines;
  lines.reserve(streets.size());
  for (const Street& street : streets) lines.push_back(street.paths.front());
  const MapBox box = boundsOf({DrawingShape::Kind::kLine, lines});
  const double margin = 256 * metresPerPixel(kFirstShieldZoom);
  std::vector<PlaceLabel> places;
  std::copy_if(allPlaces.begin(), allPlaces.end(), std::back_inserter(places),
               [&](const PlaceLabel& place) {
                 return place.point.x > box.xmin - margin && place.point.x < box.xmax + margin &&
                        place.point.y > box.ymin - margin && place.point.y < box.ymax + margin;
               });
  const auto names = selectStreetLabels(streets, places);
  auto status = writeSheets(database, "road_label", kFirstStreetLabelZoom, names);
  if (!status) return status;
  return writeSheets(database, "road_shield", kFirstShieldZoom,
                     selectShields(streets, names, places));
}

}  // namespace wayloom
