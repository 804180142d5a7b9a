#include <cstdlib>

#include "platform/PreferredLanguages.h"
#include "tests/support/TemporaryFolder.h"

namespace wayloom {
namespace {

using testing::ElementsAreArray;

class PreferredLanguagesTest : public testing::Test {
 protected:
  void SetUp() override { unsetenv("LC_MESSAGES"); }
  void TearDown() override {
    for (const char* variable : {"LANGUAGE", "LC_ALL", "LANG"}) unsetenv(variable);
  }

  TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / ".GlobalPreferences.plist";
};

TEST_F(PreferredLanguagesTest, AreThoseOfTheEnvironmentOnADesktop) {
  const struct {
    const char *language, *all, *lang;
    std::vector<std::string> expected;
  } cases[] = {{"", "", "sv_SE.UTF-8", {"sv-SE"}},
               {"zh_Hans:en", "", "sv_SE", {"zh-Hans", "en"}},
               {":C::sv_SE.UTF-8:de", "", "fr", {"sv-SE", "de"}},
               {"", "zh_CN.UTF-8", "sv_SE", {"zh-Hans"}},
               {"", "", "zh_HK", {"zh-Hant"}},
               {"", "de_DE@euro", "sv", {"de-DE"}},
               {"sv&key=1", "", "", {"en"}},
               {"", "", "C.UTF-8", {"en"}},
               {"", "POSIX", "", {"en"}}};
  for (const auto& test : cases) {
    setenv("LANGUAGE", test.language, 1);
    setenv("LC_ALL", test.all, 1);
    setenv("LANG", test.lang, 1);
    EXPECT_THAT(preferredLanguages(file), ElementsAreArray(test.expected))
        << test.language << '|' << test.all << '|' << test.lang;
  }
}

TEST_F(PreferredLanguagesTest, AreThoseOfThePhoneWhateverAShellSays) {
  setenv("LANGUAGE", "fr", 1);
  setenv("LANG", "sv_SE", 1);
  const auto list = [](const std::string& languages) {
    return "<plist><dict><key>AppleLanguages</key>" + languages + "</dict></plist>";
  };
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {list("<array><string>zh-Hans-CN</string><string>en</string></array>"), {"zh-Hans-CN", "en"}},
      {list("<array><integer>1</integer><string>a&amp;b=c</string><string/><string>ja</string>"
            "</array>"),
       {"ja"}},
      {list("<array/>"), {"en"}},
      {list("<string>de</string>"), {"en"}},
      {"<plist><array/></plist>", {"en"}},
      {"no property list", {"en"}},
  };
  for (const auto& [bytes, expected] : cases) {
    writeBytes(file, bytes);
    EXPECT_THAT(preferredLanguages(file), ElementsAreArray(expected)) << bytes;
  }
}

}  // namespace
}  // namespace wayloom
