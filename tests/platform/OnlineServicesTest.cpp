#include "platform/OnlineServices.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

class OnlineServicesTest : public testing::Test {
 protected:
  OnlineServices read(const std::string& text) {
    writeBytes(file, text);
    return OnlineServices::read(file);
  }

  TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "services.json";
};

TEST_F(OnlineServicesTest, NothingIsOnlineUnlessTurnedOn) {
  EXPECT_EQ(OnlineServices::read(file).error(), "");
  EXPECT_EQ(OnlineServices::read({}).error(), "");
  const std::pair<const char*, const char*> cases[] = {
      {R"({"geocoding": "https://a.example"})", ""},
      {R"({"online": false, "geocoding": "https://a.example"})", ""},
      {R"({"online": true, "geocoding": "https://a.example"})", "https://a.example"},
      {R"({"geocoding": "http://[::1]:8080/base//", "online": true})", "http://[::1]:8080/base"},
  };
  for (const auto& [text, address] : cases) {
    const OnlineServices services = read(text);
    EXPECT_EQ(services.address("geocoding"), address) << text;
    EXPECT_EQ(services.address("directions"), "") << text;
    EXPECT_EQ(services.error(), "") << text;
  }
}

TEST_F(OnlineServicesTest, ADamagedFileTurnsEverythingOffAndSaysWhy) {
  const std::string on = R"({"online": true, "geocoding": "https://a.example")";
  std::vector<std::string> cases = {"", "{", "[]", on, on + "}" + std::string(100'000, ' ')};
  cases.emplace_back(R"({"online": 1, "geocoding": "https://a.example"})");
  for (const char* tiles : {"5", "\"\"", "\"file:///etc/passwd\"", "\"https://\"",
                            "\"https:///path\"", "\"\xff\"", "\"https://a.example/?q=\"",
                            "\"https://user@a.example\"", "\"https://a.example\\r\\nX: y\""}) {
    cases.push_back(on + ", \"tiles\": " + tiles + "}");
  }
  for (const std::string& text : cases) {
    const OnlineServices services = read(text);
    EXPECT_EQ(services.address("geocoding"), "") << text.substr(0, 200);
    EXPECT_NE(services.error().find(file.string()), std::string::npos) << text.substr(0, 200);
  }
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_NE(OnlineServices::read(file).error(), "");
}

}  // namespace
}  // namespace wayloom
