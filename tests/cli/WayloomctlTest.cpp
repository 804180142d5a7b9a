#include <algorithm>
#include <cmath>

#include "tests/cli/CtlTest.h"
#include "tests/regions/SmallIndex.h"

namespace wayloom {
namespace {

using testing::HasSubstr;
using Texts = std::map<std::string, std::string>;

class WayloomctlTest : public CtlTest {
 protected:
  WayloomctlTest() { regions = index.folder().path(); }

  Texts location() const { return textsIn(files, SettingsFile::Location); }
  std::string mode() const { return textsIn(files, SettingsFile::Master)["mode"]; }

  SmallIndex index{{settlement("Paris", "Île-de-France", "France", {48.85, 2.35}, 2138551),
                    settlement("Vaduz", "Vaduz", "Liechtenstein", {47.14, 9.52}, 5197)}};
};

TEST_F(WayloomctlTest, WritesWhatTheScreenWouldWrite) {
  EXPECT_EQ(run("fixed on").status, 1) << "no position was ever chosen";
  EXPECT_THAT(run("fixed move 1,2").err, HasSubstr("nothing was written"));
  EXPECT_EQ(location(), (Texts{{"(missing)", ""}}));

  ASSERT_EQ(run("fixed on -33.9,-151.2").status, 0);
  EXPECT_EQ(mode(), "1");
  EXPECT_EQ(location(),
            (Texts{{"enable", "1"}, {"latitude", "-33.900000"}, {"longitude", "-151.200000"}}));
  EXPECT_EQ(run("mode route").status, 1);
  EXPECT_EQ(mode(), "1");

  ASSERT_EQ(run("fixed drift on --speed 0.25").status, 0);
  ASSERT_EQ(run("fixed move paris").status, 0);
  ASSERT_EQ(run("fixed speed 0.75").status, 0);
  Texts there = {{"a", "1"}, {"enable", "1"}, {"s", "0.750000"}};
  there.insert({{"latitude", "48.850000"}, {"longitude", "2.350000"}});
  EXPECT_EQ(location(), there);
  ASSERT_EQ(run("fixed drift off").status, 0);
  EXPECT_EQ(run("fixed speed 0.5").status, 1) << "the slider is locked";
  ASSERT_EQ(run("fixed off").status, 0);
  there["a"] = there["enable"] = "0";
  EXPECT_EQ(location(), there);
  EXPECT_EQ(run("mode route").status, 0);
  EXPECT_EQ(mode(), "0");
}

TEST_F(WayloomctlTest, WhatIsNoPositionIsNeitherTurnedOnNorWrittenBackNorShown) {
  const PropertyList::Dictionary place = {
      {"enable", "1"}, {"latitude", "1e999"}, {"longitude", "1"}, {"s", std::nan("")}};
  ASSERT_TRUE(files.saveLocationSettings(place));
  ASSERT_TRUE(files.save(SettingsFile::Favorites, PropertyList::Array{place}));
  EXPECT_THAT(run("favorites list").out, HasSubstr("-, 1.000000"));
  EXPECT_EQ(run("fixed on").status, 1);
  EXPECT_THAT(run("fixed off").out, testing::Not(HasSubstr("inf")));
  EXPECT_EQ(location().at("latitude"), "1e999") << "nobody chose another";
  EXPECT_EQ(run("fixed drift on").status, 0);
  EXPECT_EQ(location().at("s"), "0.000000");
  EXPECT_EQ(run("search paris --near -33.9,-151.2").status, 0);
  EXPECT_EQ(run("fixed on '\u00A0-.5 ,\u00A0+10 '").status, 0);
  EXPECT_EQ(location().at("latitude"), "-0.500000");
}

TEST_F(WayloomctlTest, AnswersBadInputInOneShortLine) {
  const std::string longest = "fixed on " + std::string(5000, 'x');
  const struct {
    const char* arguments;
    int status;
    const char* says;
  } cases[] = {
      {"", 2, "no command"},
      {"mode sideways", 2, "sideways"},
      {"fixed on 91,0", 2, "latitude 91 is beyond 90 degrees"},
      {"fixed on 9,-180.5", 2, "longitude -180.5 is beyond 180 degrees"},
      {"fixed on 1,2,3", 2, "no position"},
      {"fixed on '#:nan,1'", 2, "no position"},
      {"fixed on 1e400,0", 2, "no position"},
      {"fixed on ' '", 2, "empty"},
      {"fixed on 'latitude 95, longitude 11'", 1, "latitude 95 is beyond 90 degrees"},
      {longest.c_str(), 1, "xxx…'"},
      {"'a\nb'", 2, "a b"},
      {"fixed on 'no such place at all'", 1, "no such place at all"},
      {"fixed speed fast", 2, "fast"},
      {"fixed drift on --speed nan", 2, "speed"},
      {"search '\x01\n\"*'", 1, "No place"},
      {"search --limit 0 paris", 2, "limit"},
      {"search --service web paris", 1, "geocoding"},
  };
  for (const auto& test : cases) {
    const ShellRun answer = run(test.arguments);
    EXPECT_EQ(answer.status, test.status) << test.arguments;
    EXPECT_EQ(answer.out, "") << test.arguments;
    EXPECT_EQ(std::count(answer.err.begin(), answer.err.end(), '\n'), 1) << answer.err;
    EXPECT_LT(answer.err.size(), 400U);
    EXPECT_THAT(answer.err, HasSubstr(test.says)) << test.arguments;
  }
}

TEST_F(WayloomctlTest, APositionBelowTheEquatorIsNoOption) {
  for (const char* const place : {"-33.9,151.2", "'-33,9 151,2'", "'#: -33.9, 151.2'"}) {
    EXPECT_THAT(run(std::string("search ") + place).out, HasSubstr("-33.900000, 151.200000"));
  }
}

TEST_F(WayloomctlTest, NamesADamagedRegionOrListOfServicesAndGoesOn) {
  writeBytes(index.folder().path() / "broken.region", "no database");
  const ShellRun search = run("search paris");
  EXPECT_EQ(search.status, 0);
  EXPECT_THAT(search.err, HasSubstr("broken.region"));
  EXPECT_EQ(search.out, "48.850000, 2.350000  Paris, Île-de-France, France\n");
  writeBytes(root.path() / "wayloom/services.json", "{");
  EXPECT_THAT(run("search --service web paris").err, HasSubstr("wayloom/services.json"));
}

TEST_F(WayloomctlTest, EachCommandNamesWhatItReadsDamagedOnceAndWhereThatIsKept) {
  const struct {
    SettingsFile file;
    const char* command;
    int status;
    bool replaces;
  } cases[] = {
      {SettingsFile::Location, "fixed on", 1, false},
      {SettingsFile::Location, "fixed on 1,2", 0, true},
      {SettingsFile::Location, "favorites add Here", 1, false},
      {SettingsFile::Master, "mode", 0, false},
      {SettingsFile::Master, "mode fixed", 0, true},
      {SettingsFile::Route, "route where", 1, false},
      {SettingsFile::Route, "route off", 0, false},
      {SettingsFile::Favorites, "favorites add There 1,2", 0, true},
      {SettingsFile::Whitelist, "whitelist toggle a", 0, true},
  };
  for (const auto& test : cases) {
    std::filesystem::remove_all(root.path() / "var");
    const std::string path = files.path(test.file).string();
    writeBytes(path, "<plist><dict>");
    const ShellRun answer = run(test.command);
    EXPECT_EQ(answer.status, test.status) << test.command << ": " << answer.err;
    const std::string line = "wayloomctl: " + path + " is damaged and reads as nothing: ";
    const std::size_t at = answer.err.find(line);
    ASSERT_NE(at, std::string::npos) << test.command << ": " << answer.err;
    EXPECT_EQ(answer.err.find(path + " is", at + line.size()), std::string::npos) << answer.err;
    const bool isKept = answer.err.find("kept as " + path + ".damaged-1\n") != std::string::npos;
    EXPECT_EQ(isKept, test.replaces) << test.command << ": " << answer.err;
    EXPECT_THAT(answer.err, testing::Not(HasSubstr("there is no location file")));
  }
}

TEST_F(WayloomctlTest, FavouritesAreCountedFromOneAndChoosingPinsThem) {
  EXPECT_EQ(run("favorites add Here").status, 1) << "no position was ever chosen";
  ASSERT_EQ(run("favorites add 'two\\nlines' -33.9,151.2").status, 0);
  ASSERT_EQ(run("favorites add ' ' paris").status, 0);
  EXPECT_EQ(run("favorites list").out,
            "1\t-33.900000, 151.200000\ttwo\\nlines\n2\t48.850000, 2.350000\tUnknow\n");
  for (const char* number : {"0", "-1", "3", "99999999999"}) {
    for (const std::string command : {"favorites remove ", "favorites choose "}) {
      const ShellRun refused = run(command + number);
      EXPECT_EQ(refused.status, 1) << command << number;
      EXPECT_THAT(refused.err, HasSubstr("run from 1 to 2")) << command << number;
    }
  }
  EXPECT_EQ(run("favorites remove one").status, 2);

  ASSERT_EQ(run("favorites choose 2").status, 0);
  EXPECT_EQ(mode(), "1");
  EXPECT_EQ(location(),
            (Texts{{"enable", "1"}, {"latitude", "48.850000"}, {"longitude", "2.350000"}}));
  EXPECT_EQ(run("favorites remove 1").out, "1\t48.850000, 2.350000\tUnknow\n");
  EXPECT_EQ(run("--json favorites remove 1").out, "[]\n");
}

}  // namespace
}  // namespace wayloom
