#include <cmath>

#include "regions/ShapeBlob.h"
#include "tests/regions/SmallIndex.h"

namespace wayloom {
namespace {

constexpr double kMetresPerDegree = 111195.08;

TEST(PlaceAtTest, PrefersHouseThenStreetThenSettlement) {
  // The long street has no corner anywhere near the places that are asked about.
  SmallIndex index({
      settlement("Ort", "Land", "Staat", {50, 10}, 5000),
      street("Lange Straße", "Ort", "Staat", {{50, 9.9}, {50, 10.1}}),
      street("Querweg", "Ort", "Staat", {{50.001, 10}, {50.01, 10}}),
      address("Querweg 5", "Ort", {50.0050, 10.0001}),
  });
  const auto north = [](double metres) { return 50 + metres / kMetresPerDegree; };
  const std::pair<Coordinate, const char*> cases[] = {
      {{north(2), 10.05}, "Lange Straße, Ort"},  {{north(-100), 9.95}, "Lange Straße, Ort"},
      {{north(-140), 9.95}, "Ort, Land, Staat"}, {{50.0050, 10.0000}, "Querweg 5, Ort"},
      {{50.0070, 10.0000}, "Querweg, Ort"},      {{north(60), 10}, "Querweg, Ort"},
      {{north(50), 10}, "Lange Straße, Ort"},
  };
  for (const auto& [position, line] : cases) {
    EXPECT_EQ(index.at(position), line) << position.latitude << ',' << position.longitude;
  }
  const auto place = index->placeAt({north(30), 10.05});
  ASSERT_TRUE(place);
  EXPECT_NEAR(place->coordinate.latitude, 50, 1e-6) << "not on the street";
  EXPECT_NEAR(place->coordinate.longitude, 10.05, 1e-6);
}

TEST(PlaceAtTest, WeighsDistanceAgainstPopulation) {
  const auto east = [](double kilometres) { return kilometres * 1000 / kMetresPerDegree; };
  SmallIndex index({
      settlement("City", "", "A", {0, 0}, 1000000),
      settlement("Hamlet", "", "A", {0, east(5.5)}, 200),
      settlement("Village", "", "A", {0, east(20)}, 3000),
      settlement("Abroad", "", "B", {0, east(30)}, 3000),
      country("A", {{-1, -1}, {-1, east(28)}, {1, east(28)}, {1, -1}}),
  });
  const std::pair<double, const char*> cases[] = {
      {0, "City, A"},      {3, "City, A"},     {5.5, "City, A"},
      {9, "City, A"},      {19, "Village, A"}, {27, "Village, A"},
      {29.9, "Abroad, B"}, {-20, "City, A"},   {110, "Abroad, B"},
  };
  for (const auto& [kilometres, line] : cases) {
    EXPECT_EQ(index.at({0, east(kilometres)}), line) << kilometres << " km";
  }
}

TEST(PlaceAtTest, KnowsCountriesAtTheEndsOfTheMap) {
  Line antarctica;
  for (int longitude = -180; longitude < 180; longitude += 10) {
    antarctica.push_back({-70, static_cast<double>(longitude)});
  }
  const Line hole = {{66, 175}, {66, 177}, {67, 177}, {67, 175}};
  SmallIndex index({
      country("Antarctica", antarctica),
      country("Chukotka", {{65, 170}, {65, -170}, {70, -170}, {70, 170}}, {hole}),
      country("Island", {{10, -179}, {10, -178}, {11, -178}, {11, -179}}),
  });
  const double nan = std::nan("");
  const std::pair<const char*, std::vector<Coordinate>> cases[] = {
      {"Antarctica", {{-90, 0}, {-90, 180}, {-71, -180}, {-71, 180}, {-75, 33}}},
      {"Chukotka", {{66, 180}, {66, -180}, {66, -171}, {66, 171}, {66.5, 178}, {66, 171 - 360}}},
      {"Island", {{10.5, -178.5}, {10.5, 181.5}}},
      {"-", {{-69, 33}, {66, -169}, {66, 169}, {66.5, 176}, {10.5, 178.5}, {90, 0}}},
      {"-", {{-90.5, 0}, {nan, 0}, {0, nan}, {0, 1e300}, {INFINITY, -INFINITY}}},
  };
  for (const auto& [line, positions] : cases) {
    for (const Coordinate& position : positions) {
      EXPECT_EQ(index.at(position), line) << position.latitude << ',' << position.longitude;
    }
  }
}

TEST(PlaceAtTest, CrossesTheAntimeridianAndThePole) {
  SmallIndex index({
      settlement("West", "", "", {-17, 179.99}, 100),
      settlement("East", "", "", {-30, -179.99}, 100),
      settlement("Polar", "", "", {89.95, 120}, 10),
      street("Date Line Road", "", "", {{20, 179.99}, {20, -179.99}}),
  });
  EXPECT_EQ(index.at({-17, -179.95}), "West");
  EXPECT_EQ(index.at({-30, 179.95}), "East");
  EXPECT_EQ(index.at({89.95, -60}), "Polar");
  EXPECT_EQ(index.at({90, 5}), "Polar");
  EXPECT_EQ(index.at({20.0005, 179.995}), "Date Line Road");
  EXPECT_EQ(index.at({20.0005, -179.995}), "Date Line Road");
  EXPECT_EQ(index.at({20.0005, 0}), "-");
}

TEST(ShapeBlobTest, ComesBackToACentimetre) {
  const std::vector<Line> shape = {{{90, -180}, {57.7072345, 11.9668123}}, {{0, 191.5}}};
  const auto back = decodeShape(encodeShape(shape));
  ASSERT_TRUE(back && back->size() == 2u && back->front().size() == 2u);
  EXPECT_NEAR(back->front()[1].latitude, 57.7072345, 1e-7);
  EXPECT_NEAR(back->front()[1].longitude, 11.9668123, 1e-7);
  EXPECT_NEAR(back->back()[0].longitude, 191.5, 1e-7);
}

}  // namespace
}  // namespace wayloom
