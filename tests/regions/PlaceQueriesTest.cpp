#include <fstream>
#include <map>

#include "import/RegionImport.h"
#include "regions/PlaceIndex.h"
#include "tests/import/OsmText.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

OsmText madeUpTown() {
  OsmText town;
  town.node(0, {{"place", "town"}, {"name", "Sandhafen"}, {"population", "9000"}});
  int node = 1;
  for (const char* street : {"Ringweg", "Möwenstraße", "Rue du Moulin", "Kirchgasse"}) {
    for (const char* number : {"1", "5", "12b", "104"}) {
      const std::string postcode = node < 9 ? "97411" : "974 25";
      town.node(
          node,
          {{"addr:street", street}, {"addr:housenumber", number}, {"addr:postcode", postcode}});
      ++node;
    }
    town.way(node, {node - 1, node - 2}, {{"highway", "residential"}, {"name", street}});
  }
  const OsmTags sights[] = {
      {{"historic", "castle"}, {"name", "Schloss Sandhafen"}, {"name:en", "Sandhafen Castle"}},
      {{"railway", "station"}, {"name", "Sandhafen Hauptbahnhof"}, {"short_name", "Sandhafen Hbf"}},
      {{"amenity", "school"}, {"name", "Grundschule am Deich"}, {"old_name", "Deichschule"}},
      {{"shop", "bakery"}, {"name", "Bäckerei Möller"}, {"alt_name", "Backstübchen;Brotzeit"}},
      {{"tourism", "museum"},
       {"name", "Walmuseum"},
       {"name:ja", "鯨博物館"},
       {"name:fr", "Musée de la Baleine"}},
      {{"amenity", "theatre"},
       {"name", "Seebühne"},
       {"loc_name", "Muschel"},
       {"int_name", "Lakeside Stage"}},
  };
  for (const OsmTags& tags : sights) town.node(node++, tags);
  return town;
}

struct Query {
  std::string kind;
  std::string text;
  std::string answer;
};

std::vector<Query> queries() {
  std::vector<Query> queries;
  std::ifstream file(PLACE_QUERIES);
  Query query;
  while (std::getline(file, query.kind, '\t') && std::getline(file, query.text, '\t') &&
         std::getline(file, query.answer)) {
    queries.push_back(query);
  }
  return queries;
}

// What the first answers are worth, over the regions that come with the program and an extract.
TEST(PlaceQueriesTest, AreAnsweredWithThePlaceThatWasMeant) {
  const TemporaryFolder folder;
  madeUpTown().write(folder.path() / "town.osm");
  const auto imported =
      importRegion(folder.path() / "town.osm", folder.path(), "town", RegionStore({}),
                   [](std::string_view, double) { return true; });
  ASSERT_TRUE(imported) << imported.message();
  auto index = PlaceIndex::open(RegionStore({folder.path(), WAYLOOM_REGION_DIR}));
  ASSERT_TRUE(index);
  std::map<std::string, std::pair<int, int>> rightOfAll;
  for (const auto& [kind, text, answer] : queries()) {
    const auto found = index->search(text, std::nullopt);
    const std::string first = found.empty() ? "-" : addressLines(found.front()).front();
    auto& [right, all] = rightOfAll[kind];
    ++all;
    if (first == answer)
      ++right;
    else
      std::printf("%s: %s is %s, not %s\n", kind.c_str(), text.c_str(), first.c_str(),
                  answer.c_str());
  }
  ASSERT_EQ(rightOfAll.size(), 11u);
  for (const auto& [kind, count] : rightOfAll) {
    const auto [right, all] = count;
    std::printf("%-16s %3d of %3d\n", kind.c_str(), right, all);
    const double share = kind == "meaningless" ? 1 : kind == "misspelling" ? 0.85 : 0.95;
    EXPECT_GE(right, share * all) << kind;
  }
}

TEST(PlaceQueriesTest, SuggestsWhatIsStillBeingTyped) {
  auto index = PlaceIndex::open(RegionStore({WAYLOOM_REGION_DIR}));
  ASSERT_TRUE(index);
  const std::optional<Coordinate> gothenburg = Coordinate{57.7, 11.97};
  const struct {
    const char* text;
    std::optional<Coordinate> near;
    const char* name;
  } cases[] = {{"lo", {}, "London"},
               {"stokh", gothenburg, "Stockholm"},
               {"kungsg", gothenburg, "Kungsgatan"},
               {"東", {}, "Tokyo"},
               {"paris 99999", {}, "Paris"},
               {"Kungsportsavenyn 999", gothenburg, "Kungsportsavenyn"},
               {"the", {}, "The Hague"},
               {"san fransico", {}, "San Francisco"}};
  for (const auto& [text, near, name] : cases) {
    const auto found = index->suggest(text, near, 8);
    EXPECT_LE(found.size(), 8u);
    const bool isThere = std::any_of(found.begin(), found.end(),
                                     [&](const Place& place) { return place.name == name; });
    EXPECT_TRUE(isThere) << text;
  }
}

}  // namespace
}  // namespace wayloom
