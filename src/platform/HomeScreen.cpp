#include "platform/HomeScreen.h"

#include <cstdlib>

#include "platform/DesktopHomeScreen.h"
#include "platform/SpringBoardHomeScreen.h"
#include "settings/Utf8.h"

namespace wayloom {

std::unique_ptr<HomeScreen> systemHomeScreen(IconRasterizer rasterizer) {
  if (auto phone = SpringBoardHomeScreen::open()) return phone;
  return std::make_unique<DesktopHomeScreen>([](const char* name) { return std::getenv(name); },
                                             std::move(rasterizer));
}

std::string storableIdentifier(std::string_view bytes) {
  std::string text;
  for (std::size_t at = 0; at < bytes.size();) {
    const Utf8Step step = utf8Step(bytes, at);
    const bool isControl = step.character < 0x20;
    const bool isNoCharacter = step.character == 0xFFFE || step.character == 0xFFFF;
    appendUtf8(text, isControl || isNoCharacter ? kReplacementCharacter : step.character);
    at += step.length;
  }
  return text;
}

}  // namespace wayloom
