#include "tracks/Kml.h"

#include <algorithm>
#include <optional>

#include "tracks/XmlWalk.h"

namespace wayloom {

namespace {

/// "11.97,57.7" or "11.97,57.7,0": longitude first.
Coordinate position(std::string_view text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return {wholeNumber(""), wholeNumber("")};
  const std::string_view behind = text.substr(comma + 1);
  return {wholeNumber(behind.substr(0, behind.find(','))), wholeNumber(text.substr(0, comma))};
}

class KmlVisitor final : public XmlVisitor {
 public:
  XmlStep began(const XmlPath& path, const XmlAttributes&) override {
    if (path.size() == 1) mIsKml = path[0] == "kml";
    if (!mIsKml) return XmlStep::Stop;
    if (mDepth == 0 && path.back() == "Placemark") {
      mDepth = path.size();
      mName.clear();
      mCoordinate.reset();
    }
    return isName(path) || isPoint(path) ? XmlStep::WithText : XmlStep::WithoutText;
  }

  bool ended(const XmlPath& path, std::string_view text) override {
    if (mDepth == 0) return true;
    if (isName(path)) mName = text;
    if (isPoint(path) && !mCoordinate) mCoordinate = position(text);
    if (path.size() != mDepth) return true;
    mDepth = 0;
    return !mCoordinate || mFound.add(mName, *mCoordinate);
  }

  Result<Waypoints> take() && {
    if (!mIsKml) return failed("it is no KML document");
    return std::move(mFound).take();
  }

 private:
  bool isName(const XmlPath& path) const {
    return mDepth > 0 && path.size() == mDepth + 1 && path.back() == "name";
  }
  bool isPoint(const XmlPath& path) const {
    return mDepth > 0 && path.size() > mDepth + 1 && path.back() == "coordinates" &&
           path[path.size() - 2] == "Point";
  }

  WaypointCollector mFound;
  /// How deep the placemark stands that is being read; 0 between them.
  std::size_t mDepth = 0;
  std::string mName;
  std::optional<Coordinate> mCoordinate;
  bool mIsKml = false;
};

}  // namespace

Result<Waypoints> readKml(std::string_view bytes) {
  KmlVisitor visitor;
  if (Status walked = walkXml(bytes, visitor); !walked) return walked.failure();
  return std::move(visitor).take();
}

std::string writeKml(const Waypoints& waypoints) {
  std::string document =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document>\n";
  for (const Waypoint& waypoint : waypoints) {
    document += "  <Placemark><name>" + xmlText(writableName(waypoint.name)) +
                "</name><Point><coordinates>" + degreesText(waypoint.coordinate.longitude) + ',' +
                degreesText(waypoint.coordinate.latitude) + "</coordinates></Point></Placemark>\n";
  }
  return document + "</Document></kml>\n";
}

}  // namespace wayloom
