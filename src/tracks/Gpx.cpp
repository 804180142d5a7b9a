#include "tracks/Gpx.h"

#include "tracks/XmlWalk.h"

namespace wayloom {

namespace {

class GpxVisitor final : public XmlVisitor {
 public:
  XmlStep began(const XmlPath& path, const XmlAttributes& attributes) override {
    if (path.size() == 1) mIsGpx = path[0] == "gpx";
    if (!mIsGpx) return XmlStep::Stop;
    if (path.size() < 2 || path[1] != "wpt") return XmlStep::WithoutText;
    if (path.size() == 2) {
      mName.clear();
      mCoordinate = {wholeNumber(""), wholeNumber("")};
      for (const auto& [key, value] : attributes) {
        if (key == "lat") mCoordinate.latitude = wholeNumber(value);
        if (key == "lon") mCoordinate.longitude = wholeNumber(value);
      }
    }
    return isName(path) ? XmlStep::WithText : XmlStep::WithoutText;
  }

  bool ended(const XmlPath& path, std::string_view text) override {
    if (path.size() < 2 || path[1] != "wpt") return true;
    if (isName(path)) mName = text;
    return path.size() != 2 || mFound.add(mName, mCoordinate);
  }

  Result<Waypoints> take() && {
    if (!mIsGpx) return failed("it is no GPX document");
    return std::move(mFound).take();
  }

 private:
  static bool isName(const XmlPath& path) { return path.size() == 3 && path[2] == "name"; }

  WaypointCollector mFound;
  std::string mName;
  Coordinate mCoordinate;
  bool mIsGpx = false;
};

}  // namespace

Result<Waypoints> readGpx(std::string_view bytes) {
  GpxVisitor visitor;
  if (Status walked = walkXml(bytes, visitor); !walked) return walked.failure();
  return std::move(visitor).take();
}

std::string writeGpx(const Waypoints& waypoints) {
  std::string document =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<gpx version=\"1.1\" creator=\"Wayloom\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n";
  for (const Waypoint& waypoint : waypoints) {
    document += "  <wpt lat=\"" + degreesText(waypoint.coordinate.latitude) + "\" lon=\"" +
                degreesText(waypoint.coordinate.longitude) + "\"><name>" +
                xmlText(writableName(waypoint.name)) + "</name></wpt>\n";
  }
  return document + "</gpx>\n";
}

}  // namespace wayloom
