#include <cmath>

#include "tests/support/TemporaryFolder.h"
#include "tracks/WaypointFile.h"

namespace wayloom {
namespace {

using testing::HasSubstr;

const Waypoint kHome{"Home & <\"garden\">", {57.7065471234567, -11.9671}};
const std::string kGpx = "<gpx version='1.0'><wpt lat='57.5' lon='12'><name>A</name></wpt></gpx>";

std::string nested(std::size_t depth, const std::string& begin, const std::string& end) {
  std::string text;
  for (std::size_t at = 0; at < depth; ++at) text += begin;
  for (std::size_t at = 0; at < depth; ++at) text += end;
  return text;
}

TEST(WaypointFileTest, EveryFormatKeepsNamesAndPlaces) {
  const Waypoints all{kHome,
                      {"", {-90, 180}},
                      {"東京 é 🏠", {1e-7, -1e-7}},
                      {"]]> &amp; \\u0041", {0, 0}},
                      {"A", {1.0 / 3, -179.99999999999997}}};
  for (const auto format : {WaypointFormat::Gpx, WaypointFormat::Kml, WaypointFormat::GeoJson}) {
    const auto read = readWaypoints(writeWaypoints(all, format));
    ASSERT_TRUE(read) << read.message();
    EXPECT_EQ(*read, all) << static_cast<int>(format);
    const auto cleaned = readWaypoints(writeWaypoints({{"a\x01\nb\xFF\xC2\x85", {1, 2}}}, format));
    ASSERT_TRUE(cleaned) << cleaned.message();
    EXPECT_EQ(cleaned->at(0).name, "a b\uFFFD") << static_cast<int>(format);
  }
}

TEST(WaypointFileTest, ReadsWhatOtherProgramsWrite) {
  const struct {
    const char* what;
    std::string document;
    Waypoints found;
  } cases[] = {
      {"GPX with a prefix, extensions and a track",
       "\xEF\xBB\xBF<?xml version='1.0'?>\n<g:gpx xmlns:g='http://www.topografix.com/GPX/1/1'>\n"
       "<g:metadata><g:name>file</g:name></g:metadata><g:wpt lat=' 57.5 ' lon='1.2e1'><g:ele>4"
       "</g:ele><g:name>\n  Two\n  lines </g:name><g:extensions><x:name xmlns:x='x'>no</x:name>"
       "</g:extensions></g:wpt><g:trk><g:trkseg><g:trkpt lat='1' lon='2'><g:name>no</g:name>"
       "</g:trkpt></g:trkseg></g:trk></g:gpx>",
       {{"Two lines", {57.5, 12}}}},
      {"KML with folders, a line, and many points",
       "<kml xmlns='http://www.opengis.net/kml/2.2'><Document><name>d</name><Folder><Placemark>"
       "<name>A<![CDATA[ & B]]></name><Point><coordinates>\n11.97,57.7,0 </coordinates></Point>"
       "</Placemark><Folder><Placemark><name>line</name><LineString><coordinates>1,2 3,4"
       "</coordinates></LineString></Placemark><Placemark><MultiGeometry><Point><coordinates>3,4"
       "</coordinates></Point><Point><coordinates>5,6</coordinates></Point></MultiGeometry>"
       "</Placemark></Folder></Folder></Document></kml>",
       {{"A & B", {57.7, 11.97}}, {"", {4, 3}}}},
      {"features whose members come in any order",
       R"( {"features":[{"geometry":{"coordinates":[12,57.5,8],"type":"Point"},"id":[[1]],
           "properties":{"name":"A","other":{"name":"no"}},"type":"Feature"},
           {"type":"Feature","properties":null,"geometry":null},
           {"type":"Feature","properties":{"name":7},"geometry":{"type":"Point","coordinates":[1,2]}},
           {"type":"Feature","geometry":{"type":"LineString","coordinates":[[1,2],[3,4]]}}],
           "name":"file","bbox":[1,2,3,4],"type":"FeatureCollection"})",
       {{"A", {57.5, 12}}, {"", {2, 1}}}},
      {"one feature",
       R"({"type":"Feature","properties":{"name":"A"},"geometry":{"type":"Point","coordinates":[1,2]}})",
       {{"A", {2, 1}}}},
      {"one point", R"({"type":"Point","coordinates":[1,2]})", {{"", {2, 1}}}},
  };
  for (const auto& test : cases) {
    const auto read = readWaypoints(test.document);
    ASSERT_TRUE(read) << test.what << ": " << read.message();
    EXPECT_EQ(*read, test.found) << test.what;
  }
}

TEST(WaypointFileTest, OneLineSaysWhatIsWrong) {
  const auto gpx = [](const std::string& inner) { return "<gpx>" + inner + "</gpx>"; };
  const std::string good = "<wpt lat='1' lon='2'/>";
  const auto point = [](const std::string& numbers) {
    return R"({"type":"Point","coordinates":[)" + numbers + "]}";
  };
  const struct {
    std::string document;
    const char* said;
  } cases[] = {
      {"", "neither"},
      {"hello", "neither"},
      {"<html><wpt lat='1' lon='2'/></html>", "neither"},
      {"{}", "no GeoJSON"},
      {R"([{"type":"Point"}])", "neither"},
      {"PK\x03\x04...", "archive"},
      {"<gpx/>", "no place in it"},
      {R"({"type":"FeatureCollection","features":[]})", "no place in it"},
      {gpx(good + "<wpt lat='91' lon='2'/>"), "place 2: the latitude 91.000000 is beyond"},
      {gpx("<wpt lat='1' lon='-180.000001'/>"), "the longitude -180.000001 is beyond"},
      {gpx("<wpt lat='1e400' lon='2'/>"), "the latitude is beyond"},
      {gpx("<wpt lat='1'/>"), "no position"},
      {gpx("<wpt lat='1N' lon='2'/>"), "no position"},
      {gpx("<wpt lat='nan' lon='2'/>"), "no position"},
      {gpx("<wpt lat='1' lon='2'><name>a&#x7f;b</name></wpt>"), "control characters"},
      {gpx("<wpt lat='1' lon='2'><name>" + std::string(10001, 'a') + "</name></wpt>"), "longer"},
      {"<gpx>" + good, "line 1"},
      {gpx(good + "\n&nbsp;"), "line 2"},
      {"<!DOCTYPE gpx [<!ENTITY a 'aaaa'><!ENTITY b '&a;&a;&a;'>]>" + gpx("&b;"), "document type"},
      {"<!DOCTYPE gpx SYSTEM 'file:///etc/passwd'>" + gpx("<wpt lat='1&a;' lon='2'/>"),
       "document type"},
      {gpx(nested(100, "<a>", "</a>")), "deep"},
      {"<kml><Placemark><Point><coordinates>1 2</coordinates></Point></Placemark></kml>",
       "no position"},
      {"<kml><Placemark><Point><coordinates>1,95</coordinates></Point></Placemark></kml>",
       "latitude 95"},
      {point("1"), "no position"},
      {point("null,1,2"), "no position"},
      {point("1,[5],2"), "no position"},
      {point("1,1e999"), "no JSON from byte"},
      {point("1,2") + "}", "no JSON from byte"},
      {point("200,2"), "longitude 200"},
      {R"({"a":)" + nested(100000, "[", "]") + "}", "deep"},
      {R"({"type":"Feature","properties":{"name":"a\u0001"},"geometry":)" + point("1,2") + "}",
       "control characters"},
  };
  for (const auto& test : cases) {
    const auto read = readWaypoints(test.document);
    ASSERT_FALSE(read) << test.said;
    EXPECT_THAT(read.message(), HasSubstr(test.said));
    EXPECT_EQ(read.message().find_first_of("\n\r"), std::string::npos);
  }
}

TEST(WaypointFileTest, NoMoreIsReadThanTheLimits) {
  std::string many = "<gpx>";
  for (std::size_t count = 0; count < kMaximumWaypoints; ++count) many += "<wpt lat='1' lon='2'/>";
  EXPECT_EQ(readWaypoints(many + "</gpx>")->size(), kMaximumWaypoints);
  EXPECT_THAT(readWaypoints(many + "<wpt lat='1' lon='2'/></gpx>").message(), HasSubstr("100000"));
  const TemporaryFolder folder;
  const auto large = folder.path() / "large.gpx";
  writeBytes(large, kGpx);
  const auto link = folder.path() / "link.gpx";
  std::filesystem::create_symlink(large, link);
  EXPECT_TRUE(readWaypointFile(link));
  std::filesystem::resize_file(large, kMaximumWaypointBytes + 1);
  EXPECT_THAT(readWaypointFile(large).message(), HasSubstr("large.gpx: it is larger than 64 MB"));
  EXPECT_THAT(readWaypointFile(folder.path() / "none").message(), HasSubstr("No such file"));
  EXPECT_FALSE(readWaypointFile(folder.path()));
  EXPECT_FALSE(readWaypointFile("/dev/zero"));
}

}  // namespace
}  // namespace wayloom
