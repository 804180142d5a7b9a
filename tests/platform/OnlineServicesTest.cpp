#include <cstdlib>

#include "platform/PreferredLanguage.h"
#include "platform/Services.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

class ServicesTest : public testing::Test {
 protected:
  Services read(const std::string& text) {
    writeBytes(file, text);
    return Services::read(file);
  }

  TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "services.json";
};

TEST_F(ServicesTest, NothingIsOnlineUnlessTurnedOn) {
  EXPECT_EQ(Services::read(file).error(), "");
  EXPECT_EQ(Services::read({}).error(), "");
  const struct {
    const char* text;
    const char* address;
  } cases[] = {
      {R"({})", ""},
      {R"({"geocoding": "https://a.example"})", ""},
      {R"({"online": false, "geocoding": "https://a.example"})", ""},
      {R"({"online": true})", ""},
      {R"({"online": true, "geocoding": "https://a.example"})", "https://a.example"},
      {R"({"geocoding": "http://[::1]:8080/base//", "online": true})", "http://[::1]:8080/base"},
  };
  for (const auto& test : cases) {
    const Services services = read(test.text);
    EXPECT_EQ(services.address("geocoding"), test.address) << test.text;
    EXPECT_EQ(services.address("directions"), "") << test.text;
    EXPECT_EQ(services.error(), "") << test.text;
  }
}

TEST_F(ServicesTest, ADamagedFileTurnsEverythingOffAndSaysWhy) {
  const std::string on = R"({"online": true, "geocoding": "https://a.example")";
  std::vector<std::string> cases = {"", "{", "[]", on, on + "}" + std::string(100'000, ' ')};
  for (const char* online : {"\"yes\"", "1"}) {
    cases.push_back("{\"online\": " + std::string(online) +
                    ", \"geocoding\": \"https://a.example\"}");
  }
  for (const char* tiles : {"5", "\"\"", "\"file:///etc/passwd\"", "\"https://\"",
                            "\"https:///path\"", "\"\xff\"", "\"https://a.example/?q=\"",
                            "\"https://user@a.example\"", "\"https://a.example\\r\\nX: y\""}) {
    cases.push_back(on + ", \"tiles\": " + tiles + "}");
  }
  for (const std::string& text : cases) {
    const Services services = read(text);
    EXPECT_EQ(services.address("geocoding"), "") << text.substr(0, 200);
    EXPECT_NE(services.error().find(file.string()), std::string::npos) << text.substr(0, 200);
  }
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_NE(Services::read(file).error(), "");
}

TEST_F(ServicesTest, FindsTheFileInTheUsersConfiguration) {
  const struct {
    const char *configuration, *home, *expected;
  } cases[] = {{"/c", "/h", "/c/wayloom/services.json"},
               {"", "/h", "/h/.config/wayloom/services.json"},
               {"relative", "/h", "/h/.config/wayloom/services.json"},
               {"", "relative", ""}};
  const std::string home = getenv("HOME") ? getenv("HOME") : "";
  for (const auto& test : cases) {
    setenv("XDG_CONFIG_HOME", test.configuration, 1);
    setenv("HOME", test.home, 1);
    EXPECT_EQ(Services::defaultFile(), test.expected) << test.configuration << ' ' << test.home;
  }
  unsetenv("XDG_CONFIG_HOME");
  setenv("HOME", home.c_str(), 1);
}

TEST(PreferredLanguage, IsTheFirstTheEnvironmentNames) {
  const struct {
    const char *language, *all, *lang, *expected;
  } cases[] = {{"", "", "sv_SE.UTF-8", "sv-SE"},
               {"zh_Hans:en", "", "sv_SE", "zh-Hans"},
               {"", "zh_CN.UTF-8", "sv_SE", "zh-Hans"},
               {"", "", "zh_HK", "zh-Hant"},
               {"", "de_DE@euro", "sv", "de-DE"},
               {"", "C", "fr", "fr"},
               {"", "", "C.UTF-8", "en"},
               {"", "POSIX", "", "en"}};
  for (const auto& test : cases) {
    setenv("LANGUAGE", test.language, 1);
    setenv("LC_ALL", test.all, 1);
    unsetenv("LC_MESSAGES");
    setenv("LANG", test.lang, 1);
    EXPECT_EQ(preferredLanguage(), test.expected)
        << test.language << '|' << test.all << '|' << test.lang;
  }
  for (const char* variable : {"LANGUAGE", "LC_ALL", "LANG"}) unsetenv(variable);
}

}  // namespace
}  // namespace wayloom
