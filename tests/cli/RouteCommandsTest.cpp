#include <ctime>
#include <nlohmann/json.hpp>

#include "cli/TimeArgument.h"
#include "tests/cli/CtlTest.h"

namespace wayloom {
namespace {

using Dictionary = PropertyList::Dictionary;
using testing::HasSubstr;

/// On a drive of 100 points in 100 seconds, half a degree of latitude apart.
class RouteCommandsTest : public CtlTest {
 protected:
  RouteCommandsTest() { regions = root.path(); }

  void writeDrive(const char* enable) {
    PropertyList::Array points;
    for (int number = 0; number < 100; ++number) {
      points.push_back(Dictionary{{"lat", static_cast<double>(number) / 2}, {"lng", 1.0}});
    }
    ASSERT_TRUE(files.save(SettingsFile::Route, Dictionary{{"enable", enable},
                                                           {"start", "1700000000.000000"},
                                                           {"end", "1700000100.000000"},
                                                           {"s", "A place"},
                                                           {"e", "Another"},
                                                           {"points", std::move(points)}}));
  }
};

TEST_F(RouteCommandsTest, UnderstandsTimes) {
  writeDrive("1");
  // 1,700,000,000 is 2023-11-14T22:13:20 UTC, which the shell's zone calls 00:13:20 the next day.
  const std::pair<const char*, double> cases[] = {
      {"1699999999", 0},           {"1700000042", 21},
      {"2023-11-15T00:13:30", 5},  {"'2023-11-15 00:13:30'", 5},
      {"2023-11-14T22:13:30Z", 5}, {"2023-11-14T17:43:30-0430", 5},
      {"2023-11-15T00:14", 20},    {"2147483648", 49.5},
      {"253402300799", 49.5},      {"+1d2h3m4s", 49.5},
  };
  for (const auto& [time, latitude] : cases) {
    const ShellRun where = run(std::string("--json route where --at ") + time);
    ASSERT_EQ(where.status, 0) << time << ": " << where.err;
    EXPECT_EQ(nlohmann::json::parse(where.out)["position"]["latitude"], latitude) << time;
  }
  EXPECT_EQ(parseTime("now", 4e9 + 0.5), 4e9);
  EXPECT_EQ(parseTime("+1h", 4e9 + 0.5), 4e9 + 3600);
  for (const char* time : {"soon", "''", "+", "+5", "+1x", "-5", "1e9", "253402300800",
                           "2023-02-30", "2023-11-15T25:00", "2023-11-15T10:00+", "1700000000x"}) {
    const ShellRun where = run(std::string("route where --at=") + time);
    EXPECT_EQ(where.status, 2) << time;
    EXPECT_EQ(std::count(where.err.begin(), where.err.end(), '\n'), 1) << time << ": " << where.err;
  }
}

TEST_F(RouteCommandsTest, OffKeepsThePathAndOneSimulationExcludesTheOther) {
  EXPECT_EQ(run("route where").status, 1);
  EXPECT_EQ(run("route off").status, 0);
  EXPECT_FALSE(dictionaryIn(files, SettingsFile::Route)) << "there was nothing to turn off";

  writeDrive("1");
  Dictionary drive = *dictionaryIn(files, SettingsFile::Route);
  EXPECT_THAT(run("status").out, HasSubstr("on from A place to Another"));
  EXPECT_EQ(run("mode fixed").status, 1);
  EXPECT_EQ(run("fixed on 1,2").status, 1);
  EXPECT_FALSE(dictionaryIn(files, SettingsFile::Location)) << "both would be on";
  EXPECT_THAT(run("route on --from 1,2 --to 3,4 --start now --end +1h").err,
              HasSubstr("Wayloom is working,please turn off the Wayloom first!"));
  EXPECT_EQ(*dictionaryIn(files, SettingsFile::Route), drive);

  ASSERT_EQ(run("route off").status, 0);
  drive["enable"] = "0";
  EXPECT_EQ(*dictionaryIn(files, SettingsFile::Route), drive);
  EXPECT_THAT(run("route where").out, HasSubstr("the drive is off"));
  EXPECT_EQ(run("fixed on 1,2").status, 0);
}

TEST_F(RouteCommandsTest, WhatCannotBeDrivenIsRefusedAsOnTheScreen) {
  const struct {
    const char* arguments;
    int status;
    const char* why;
  } cases[] = {
      {"--from 0,11 --to 1,2 --start now --end +1h", 1, "Please choose Start"},
      {"--from 1,2 --to 3,4 --start +2h --end +1h", 1, "End Time must later than Start Time"},
      {"--from 1,2 --to 3,4 --start now --end +1h", 1, "Path planning failure"},
      {"--from 1,2 --to 3,4 --start now", 2, "--end is required"},
  };
  for (const auto& test : cases) {
    const ShellRun on = run(std::string("route on ") + test.arguments);
    EXPECT_EQ(on.status, test.status) << test.arguments;
    EXPECT_THAT(on.err, HasSubstr(test.why)) << test.arguments;
    EXPECT_FALSE(dictionaryIn(files, SettingsFile::Route)) << test.arguments;
    EXPECT_FALSE(dictionaryIn(files, SettingsFile::Master)) << test.arguments;
  }
}

}  // namespace
}  // namespace wayloom
