#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/HomeScreen.h"
#include "settings/SettingsRoot.h"

namespace wayloom {

/// The desktop's applications: the entries below the folder "applications" of each data folder
/// (XDG_DATA_HOME, XDG_DATA_DIRS), known by their desktop file identifiers and ordered by name. An
/// entry of the user stands for the system's entries with the same identifier. Entries that menus
/// do not show are applications as well. Any thread may call it.
///
/// A desktop does not tell which applications run, nor has it any that can be debugged: asked for
/// the running ones it gives nothing, asked for the others an empty list.
class DesktopHomeScreen : public HomeScreen {
 public:
  explicit DesktopHomeScreen(EnvironmentLookup lookup, IconRasterizer rasterizer = {});
  ~DesktopHomeScreen() override;

  /// Looks through the folders anew; names and icons are those of the last time.
  std::optional<std::vector<std::string>> identifiers(Selection selection) const override;
  std::optional<std::string> localizedName(const std::string& identifier) const override;
  std::optional<std::string> iconPng(const std::string& identifier) const override;

 private:
  struct Catalogue;

  std::shared_ptr<Catalogue> read() const;
  /// The catalogue as last read; read now if it never was.
  std::shared_ptr<Catalogue> catalogue() const;
  std::vector<std::filesystem::path> dataFolders() const;
  std::filesystem::path home() const;

  EnvironmentLookup mLookup;
  IconRasterizer mRasterizer;
  mutable std::mutex mMutex;
  mutable std::shared_ptr<Catalogue> mCatalogue;
};

}  // namespace wayloom
