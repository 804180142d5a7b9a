#pragma once

#include <filesystem>

#include "platform/HomeScreen.h"

namespace wayloom {

/// The phone's own home screen, through its services library, which is loaded when this is made.
/// Any thread may call it.
class SpringBoardHomeScreen : public HomeScreen {
 public:
  /// Null where the system has no such service.
  static std::unique_ptr<SpringBoardHomeScreen> open();
  /// The same with the libraries at these paths.
  static std::unique_ptr<SpringBoardHomeScreen> open(const std::filesystem::path& services,
                                                     const std::filesystem::path& foundation);
  ~SpringBoardHomeScreen() override;

  std::optional<std::vector<std::string>> identifiers(Selection selection) const override;
  std::optional<std::string> localizedName(const std::string& identifier) const override;
  std::optional<std::string> iconPng(const std::string& identifier) const override;

 private:
  struct Functions;
  explicit SpringBoardHomeScreen(std::unique_ptr<const Functions> functions);

  std::unique_ptr<const Functions> mFunctions;
};

}  // namespace wayloom
