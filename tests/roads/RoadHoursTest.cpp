#include "roads/RoadHours.h"

namespace wayloom {
namespace {

TEST(RoadHoursTest, ReadsWhatConditionsOnRoadsUse) {
  constexpr RoadTime kMonday8{0, 0, 8 * 60};
  constexpr RoadTime kSaturday1{6, 5, 60};
  constexpr RoadTime kSunday23{11, 6, 23 * 60};
  const struct {
    const char* text;
    bool monday8, saturday1, sunday23, isWhole;
  } cases[] = {
      {"24/7", true, true, true, true},
      {"Mo-Fr 07:00-09:00", true, false, false, true},
      {"Mo-Fr 07:00-08:00", false, false, false, true},
      {"07:00-09:00,22:00-24:00", true, false, true, true},
      {"Fr 20:00-02:00", false, true, false, true},
      {"Sa-Mo", true, true, true, true},
      {"Mo,Sa", true, true, false, true},
      {"Jun-Aug", false, true, false, true},
      {"Nov-Jan Mo-Su 06:00-23:30", true, false, true, true},
      {"Mo-Fr 07:00-09:00, Sa 00:00-02:00", true, true, false, true},
      {"Mo-Fr: 07:00-09:00; Su 22:00-23:30", true, false, true, true},
      {"Mo-Fr 07:00-09:00; PH off", true, false, false, false},
      {"sunrise-sunset", false, false, false, false},
      {"Mo-Fr,PH 07:00-09:00", false, false, false, false},
      {"Mo 7-9", false, false, false, false},
      {"Mo 07:61-09:00", false, false, false, false},
      {"Mo 07:00-99:00", false, false, false, false},
      {"weight>7.5", false, false, false, false},
      {"Mo-Fr 07:00-09:00 AND weight>7.5", false, false, false, false},
      {"", false, false, false, false},
      {"-", false, false, false, false},
  };
  for (const auto& test : cases) {
    const ParsedHours parsed = parseHours(test.text);
    const auto contain = [&](const RoadTime& time) {
      return std::any_of(parsed.hours.begin(), parsed.hours.end(),
                         [&](const RoadHours& hours) { return hours.contain(time); });
    };
    EXPECT_EQ(parsed.isWhole, test.isWhole) << test.text;
    EXPECT_EQ(contain(kMonday8), test.monday8) << test.text;
    EXPECT_EQ(contain(kSaturday1), test.saturday1) << test.text;
    EXPECT_EQ(contain(kSunday23), test.sunday23) << test.text;
  }
}

}  // namespace
}  // namespace wayloom
