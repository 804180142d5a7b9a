#include "GeoJson.h"
#include "TopoJson.h"

namespace wayloom {
namespace {

using testing::ElementsAre;

std::string topology(const std::string& arcs, const std::string& geometry) {
  return R"({"type":"Topology","transform":{"scale":[0.5,0.25],"translate":[10,20]},"arcs":)" +
         arcs + R"(,"objects":{"land":{"type":"GeometryCollection","geometries":[)" + geometry +
         "]}}}";
}

TEST(TopoJsonTest, JoinsArcsForwardsAndBackwards) {
  const auto read = readTopoJson(
      topology("[[[0,0],[4,0],[0,4]],[[0,0],[0,4],[4,0]]]",
               R"({"type":"Polygon","id":7,"properties":{"name":"Box"},"arcs":[[0,-2]]})"),
      "land");
  ASSERT_TRUE(read);
  ASSERT_EQ(read->areas.size(), 1U);
  EXPECT_EQ(read->areas[0].id, "7");
  EXPECT_EQ(read->areas[0].name, "Box");
  EXPECT_THAT(read->outline(read->areas[0].polygons[0][0]),
              ElementsAre(Coordinate{20, 10}, Coordinate{20, 12}, Coordinate{21, 12},
                          Coordinate{21, 10}, Coordinate{20, 10}));
}

TEST(TopoJsonTest, RefusesWhatIsDamaged) {
  const std::string arcs = "[[[0,0],[1,0],[0,1]]]";
  const std::string polygon = R"({"type":"Polygon","arcs":[[0]]})";
  ASSERT_TRUE(readTopoJson(topology(arcs, polygon), "land"));
  const std::pair<const char*, std::string> cases[] = {
      {"nothing", ""},
      {"not JSON", "{"},
      {"another type", R"({"type":"FeatureCollection","features":[]})"},
      {"an arc beyond the last", topology(arcs, R"({"type":"Polygon","arcs":[[1]]})")},
      {"a reversed arc beyond the last", topology(arcs, R"({"type":"Polygon","arcs":[[-3]]})")},
      {"an arc number too large", topology(arcs, R"({"type":"Polygon","arcs":[[9e99]]})")},
      {"arcs that are text", topology(arcs, R"({"type":"Polygon","arcs":["0"]})")},
      {"arcs nested too little", topology(arcs, R"({"type":"MultiPolygon","arcs":[[0]]})")},
      {"an empty arc", topology("[[]]", polygon)},
      {"a position of one number", topology("[[[0]]]", polygon)},
      {"a position of text", topology(R"([[["0","0"]]])", polygon)},
      {"a position out of all range", topology("[[[1e308,0],[1e308,0]]]", polygon)},
      {"a type that is a number", topology(arcs, R"({"type":1,"arcs":[[0]]})")},
      {"a name that is a number",
       topology(arcs, R"({"type":"Polygon","properties":{"name":1},"arcs":[[0]]})")},
      {"no such object", R"({"type":"Topology","arcs":[],"objects":{}})"},
  };
  for (const auto& [name, text] : cases) {
    EXPECT_FALSE(readTopoJson(text, "land")) << name << ": " << text;
  }
}

TEST(GeoJsonTest, RefusesPositionsOffTheGlobe) {
  for (const char* position : {"[181,0]", "[0,91]", "[0]", "\"x\"", "[null,1]"}) {
    const std::string text =
        R"({"type":"FeatureCollection","features":[{"geometry":{"type":"LineString","coordinates":[)" +
        std::string(position) + ",[0,0]]}}]}";
    EXPECT_FALSE(readGeoJson(text)) << position;
  }
}

}  // namespace
}  // namespace wayloom
