#include <cmath>
#include <string>

#include "platform/RunLoop.h"
#include "regions/RegionGeocoder.h"
#include "tests/regions/SmallIndex.h"

namespace wayloom {
namespace {

std::vector<IndexedPlace> someWorld() {
  std::vector<IndexedPlace> places = {
      settlement("Paris", "Île-de-France", "France", {48.85, 2.35}, 2100000),
      settlement("Paris", "Texas", "United States", {33.66, -95.56}, 25000),
      settlement("Parisot", "Occitanie", "France", {44.26, 1.86}, 500),
      settlement("Springfield", "Missouri", "United States", {37.2, -93.3}, 167000),
      settlement("Springfield", "Illinois", "United States", {39.8, -89.6}, 116000),
      settlement("Göteborg", "Västra Götaland", "Sweden", {57.7, 11.97}, 570000),
      settlement("Å", "Nordland", "Norway", {67.88, 12.98}, 100),
      settlement("Tønder", "", "Denmark", {54.93, 8.87}, 7800),
      settlement("Łódź", "", "Poland", {51.77, 19.47}, 768000),
      settlement("İzmir", "", "Turkey", {38.41, 27.14}, 2800000),
      settlement("Großenhain", "Saxony", "Germany", {51.29, 13.53}, 18000),
      settlement("Хабаровск", "", "Russia", {48.48, 135.08}, 577000),
      settlement("San", "Ségou", "Mali", {13.3, -4.9}, 25000),
      settlement("San Diego", "California", "United States", {32.7, -117.2}, 1400000),
      settlement("Coeur d'Alene", "Idaho", "United States", {47.68, -116.78}, 49000),
      settlement("Nadi", "", "Fiji", {-17.8, 179.9}, 42000),
      settlement("Nadi", "", "Sudan", {18.67, 33.7}, 90000),
      street("Drottninggatan", "Göteborg", "Sweden", {{57.706, 11.965}, {57.7062, 11.97}}),
      street("Drottninggatan", "Stockholm", "Sweden", {{59.33, 18.06}, {59.34, 18.05}}),
      street("Lilla Drottninggatan", "Göteborg", "Sweden", {{57.7, 11.97}, {57.701, 11.97}}),
      address("Drottninggatan 5", "Göteborg", {57.7061, 11.967}),
  };
  places[5].otherNames = {"Gothenburg"};
  return places;
}

TEST(PlaceSearchTest, FindsWhatAPersonMeans) {
  SmallIndex index(someWorld());
  const std::pair<const char*, std::vector<const char*>> cases[] = {
      {"Paris, Île-de-France, France", {"Paris", "  pArIs "}},
      {"Paris, Texas, United States", {"paris, texas", "Texas Paris", "paris states"}},
      {"Springfield, Missouri, United States", {"springfield"}},
      {"Springfield, Illinois, United States", {"Springfield Illinois"}},
      {"Göteborg, Västra Götaland, Sweden", {"GOTEBORG", "Go\u0308teborg", "gothenburg"}},
      {"Drottninggatan, Göteborg", {"drottninggatan göteborg", "drott göteb"}},
      {"Drottninggatan, Stockholm", {"stockholm drott"}},
      {"Drottninggatan 5, Göteborg", {"drottninggatan 5 göteborg"}},
      {"Å, Nordland, Norway", {"Å", "å"}},
      {"Tønder, Denmark", {"tonder"}},
      {"Łódź, Poland", {"lodz"}},
      {"İzmir, Turkey", {"IZMIR", "izmir"}},
      {"Großenhain, Saxony, Germany", {"grossenhain"}},
      {"Хабаровск, Russia", {"ХАБАРОВСК"}},
      {"San, Ségou, Mali", {"san"}},
      {"San Diego, California, United States", {"san die"}},
      {"Coeur d'Alene, Idaho, United States", {"coeur dalene", "Coeur d’Alene"}},
      {"-",
       {"texas", "paris göteborg", "xyzzy", "", " ,;.!", "a", "5", "5°", "san d", "paris 99999"}},
      {"-",
       {"paris 5", "Drottninggatan 7, 411 14 Göteborg", "drottn 5000", "drottninggatan 0311234",
        "41114"}},
  };
  for (const auto& [best, texts] : cases) {
    for (const char* text : texts) EXPECT_EQ(index.best(text), best) << text;
  }
}

TEST(PlaceSearchTest, PrefersWhatIsNear) {
  SmallIndex index(someWorld());
  const struct {
    const char* text;
    Coordinate near;
    const char* best;
  } cases[] = {
      {"springfield", {39.7, -89.5}, "Springfield, Illinois, United States"},
      {"drottninggatan", {59.3, 18.1}, "Drottninggatan, Stockholm"},
      {"drottninggatan", {57.7, 12}, "Drottninggatan, Göteborg"},
      // However far, and in whatever numbers, a place stays where it is.
      {"paris", {-45, 170}, "Paris, Île-de-France, France"},
      {"nadi", {-17.8, -179.95}, "Nadi, Fiji"},
      {"nadi", {-17.8, 180 + 360}, "Nadi, Fiji"},
      {"nadi", {std::nan(""), 1e300}, "Nadi, Sudan"},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(index.best(test.text, test.near), test.best)
        << test.text << " near " << test.near.latitude << ',' << test.near.longitude;
  }
}

// More namesakes than are ever looked at, so that the near one is not among the first.
TEST(PlaceSearchTest, FindsTheNearOneAmongThousands) {
  std::vector<IndexedPlace> places;
  for (int number = 0; number < 3000; ++number) {
    const double latitude = -60 + number * 0.04;
    places.push_back(street("Hauptstraße", "Ort " + std::to_string(number), "",
                            {{latitude, 10}, {latitude, 10.001 + 1.0 / (number + 100)}}));
  }
  SmallIndex index(std::move(places));
  EXPECT_EQ(index.best("hauptstr", Coordinate{-60 + 2900 * 0.04, 10}), "Hauptstraße, Ort 2900");
  EXPECT_EQ(index.best("hauptstraße", Coordinate{-60 + 2900 * 0.04, 10}), "Hauptstraße, Ort 2900");
}

TEST(PlaceSearchTest, TakesAnyText) {
  SmallIndex index(someWorld());
  std::string words;
  for (int word = 0; word < 5000; ++word) words.append(std::to_string(word)).append("p ");
  const std::string hostile[] = {
      "paris\"",      "paris OR NOT * ( AND",    "NEAR(paris, 3)",
      "name : paris", "{name} : ^paris +",       std::string(10000, '"'),
      words,          std::string("par\0is", 6), "\x01\x02\x1b[31m\r\n\t",
      "\xff\xfe\xc3", "'; DROP TABLE place; --"};
  for (const auto& text : hostile) {
    (void)index->search(text, std::nullopt);
    (void)index->search(text, Coordinate{48, 2});
    EXPECT_EQ(index.best("paris"), "Paris, Île-de-France, France") << "after " << text;
  }
  EXPECT_EQ(index.best("\"paris\" *"), "Paris, Île-de-France, France");
  EXPECT_EQ(index.best("paris\x01\ttexas"), "Paris, Texas, United States");
}

// Somebody types on: what was asked before the last letter is not answered any more.
TEST(PlaceSearchTest, SuggestsForTheLastQuestionOnly) {
  SmallIndex index(someWorld());
  RunLoop loop;
  RegionGeocoder places(index.store(), loop);
  std::vector<std::string> answers;
  for (const std::string text : {"s", "sp", "spr", "par"}) {
    places.suggest(text, std::nullopt, [&answers, text](const std::vector<Place>& found) {
      ASSERT_FALSE(found.empty()) << text;
      answers.push_back(text + ": " + found.front().name);
    });
  }
  bool isOver = false;
  places.reverseGeocode({48.85, 2.35}, [&](const auto&) { isOver = true; });
  ASSERT_TRUE(loop.runUntil([&] { return isOver; }, std::chrono::seconds(30)));
  EXPECT_EQ(answers, std::vector<std::string>{"par: Paris"});
}

TEST(PlaceSearchTest, GivesOnePlaceOnceFromOverlappingRegions) {
  auto moved = someWorld();
  for (auto& place : moved) place.place.coordinate.latitude += 0.001;
  SmallIndex index({someWorld(), moved});
  const auto found = index->search("paris", std::nullopt);
  ASSERT_EQ(found.size(), 3u);
  EXPECT_EQ(found[0].country, "France");
  EXPECT_EQ(found[1].country, "United States");
  EXPECT_EQ(found[2].name, "Parisot");
}

}  // namespace
}  // namespace wayloom
