#pragma once

#include <map>
#include <utility>

#include "platform/HomeScreen.h"

namespace wayloom {

/// A home screen with the applications that the test puts on it.
class FakeHomeScreen : public HomeScreen {
 public:
  std::optional<std::vector<std::string>> identifiers(Selection selection) const override {
    return selection.onlyActive ? running : installed;
  }
  std::optional<std::string> localizedName(const std::string& identifier) const override {
    return at(names, identifier);
  }
  std::optional<std::string> iconPng(const std::string& identifier) const override {
    return at(icons, identifier);
  }

  std::optional<std::vector<std::string>> installed, running;
  std::map<std::string, std::string> names, icons;

 private:
  static std::optional<std::string> at(const std::map<std::string, std::string>& texts,
                                       const std::string& identifier) {
    const auto found = texts.find(identifier);
    return found == texts.end() ? std::nullopt : std::optional(found->second);
  }
};

}  // namespace wayloom
