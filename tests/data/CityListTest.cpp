#include <protozero/pbf_writer.hpp>

#include "CityList.h"

namespace wayloom {
namespace {

std::string message(const std::string& name, std::int64_t longitudeStep, std::int64_t latitudeStep,
                    std::int64_t population) {
  std::string body;
  protozero::pbf_writer writer(body);
  writer.add_string(2, name);
  writer.add_string(7, "PPL");
  writer.add_int64(9, population);
  writer.add_sint64(10, longitudeStep);
  writer.add_sint64(11, latitudeStep);
  return static_cast<char>(body.size()) + body;
}

TEST(CityListTest, AddsUpTheStepsBetweenPlaces) {
  const auto cities = readCityList(message("Göteborg", 1196679, 5770716, 572799) +
                                   message("Lima", -8900000, -6975000, 1));
  ASSERT_TRUE(cities);
  ASSERT_EQ(cities->size(), 2U);
  EXPECT_EQ(cities->front().name, "Göteborg");
  EXPECT_EQ(cities->front().population, 572799);
  EXPECT_NEAR(cities->front().coordinate.longitude, 11.96679, 1e-9);
  EXPECT_NEAR(cities->back().coordinate.longitude, -77.03321, 1e-9);
  EXPECT_NEAR(cities->back().coordinate.latitude, -12.04284, 1e-9);
}

TEST(CityListTest, RefusesCutAndImpossibleData) {
  const std::string whole = message("Somewhere", 100, 100, 5);
  for (std::size_t length = 1; length < whole.size(); ++length) {
    EXPECT_FALSE(readCityList(whole.substr(0, length))) << "cut at " << length;
  }
  EXPECT_FALSE(readCityList(message("Beyond the pole", 0, 9'000'001, 1)));
  EXPECT_FALSE(readCityList(message("Beyond all", INT64_MAX, 0, 1)));
  EXPECT_FALSE(readCityList(std::string(20, '\xff')));
}

}  // namespace
}  // namespace wayloom
