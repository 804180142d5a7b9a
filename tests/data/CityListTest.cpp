#include "CityList.h"

namespace wayloom {
namespace {

constexpr char kLine[] =
    "2711537\tGöteborg\tGoeteborg\tGOT,Gothenburg,G'oteborg,Got'enburg,ge de "
    "bao,哥德堡市\t57.70716\t11.96679\tP\tPPLA\tSE"
    "\t\t28\t1480\t\t\t572799\t\t10\tEurope/Stockholm\t2019-09-05";

TEST(CityListTest, ReadsPlacesWithTheNamesThatPeopleUse) {
  const auto cities = readCityList(std::string(kLine) + '\n' + kLine + '\n');
  ASSERT_TRUE(cities);
  ASSERT_EQ(cities->size(), 2U);
  const City& city = cities->back();
  EXPECT_EQ(city.name + city.country + city.featureCode + city.adminCode, "GöteborgSEPPLA28");
  EXPECT_EQ(city.otherNames, (std::vector<std::string>{"Gothenburg", "G'oteborg", "哥德堡市",
                                                       "哥德堡", "Goeteborg"}));
  EXPECT_EQ(city.population, 572799);
  EXPECT_EQ(city.coordinate, (Coordinate{57.70716, 11.96679}));
}

TEST(CityListTest, RefusesCutAndImpossibleLines) {
  const std::string line = kLine;
  EXPECT_FALSE(readCityList(line.substr(0, line.rfind('\t'))));
  for (const auto& [number, wrong] :
       {std::pair{"57.70716", "97"}, {"11.96679", "11.9x"}, {"572799", "many"}}) {
    std::string damaged = line;
    damaged.replace(damaged.find(number), std::string(number).size(), wrong);
    EXPECT_FALSE(readCityList(damaged)) << wrong;
  }
}

}  // namespace
}  // namespace wayloom
