#include <dlfcn.h>

#include "platform/SpringBoardHomeScreen.h"

namespace wayloom {
namespace {

using testing::ElementsAre;

TEST(SpringBoardHomeScreenTest, ReadsAndReleasesWhatTheServiceGives) {
  const auto screen = SpringBoardHomeScreen::open(STAND_IN_SPRINGBOARD, STAND_IN_SPRINGBOARD);
  ASSERT_NE(screen, nullptr);
  EXPECT_THAT(*screen->identifiers({}),
              ElementsAre("com.example.maps", "com.example.Maps", "bare"));
  EXPECT_THAT(*screen->identifiers({.onlyActive = true}), ElementsAre("bare"));
  EXPECT_EQ(screen->identifiers({.debuggable = true}), std::nullopt);
  EXPECT_EQ(screen->localizedName("com.example.Maps"), "Карты");
  EXPECT_EQ(screen->localizedName("com.example.maps"), "");
  EXPECT_EQ(screen->localizedName("bare"), std::nullopt);
  EXPECT_EQ(screen->iconPng("com.example.Maps"), std::string("\x89PNG\0bytes", 10));
  for (const char* identifier : {"bare", "", "no text \xff"}) {
    EXPECT_EQ(screen->iconPng(identifier), std::nullopt) << identifier;
    EXPECT_EQ(screen->localizedName(identifier), std::nullopt) << identifier;
  }

  void* const library = dlopen(STAND_IN_SPRINGBOARD, RTLD_LAZY);
  const auto living = reinterpret_cast<long (*)()>(dlsym(library, "standInLiving"));
  EXPECT_EQ(living(), 0) << "objects were leaked, or released twice";
  dlclose(library);
}

TEST(SpringBoardHomeScreenTest, IsNotThereWithoutItsLibraries) {
  EXPECT_EQ(SpringBoardHomeScreen::open(), nullptr);
  EXPECT_EQ(SpringBoardHomeScreen::open(STAND_IN_SPRINGBOARD, "libc.so.6"), nullptr);
  EXPECT_EQ(SpringBoardHomeScreen::open("libc.so.6", STAND_IN_SPRINGBOARD), nullptr);
}

}  // namespace
}  // namespace wayloom
