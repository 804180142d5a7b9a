#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayloom {

/// Knows the installed applications: the phone's home screen, or what stands for it elsewhere. Any
/// thread may call it. Identifiers are UTF-8; names come as they stand, whatever bytes those are.
class HomeScreen {
 public:
  /// Which applications are meant; all of them unless a flag narrows them down.
  struct Selection {
    bool onlyActive = false;
    bool debuggable = false;
  };

  virtual ~HomeScreen() = default;

  /// The applications' display identifiers, in the home screen's order; nothing when it gives none.
  virtual std::optional<std::vector<std::string>> identifiers(Selection selection) const = 0;
  /// The name in the user's language; nothing when the application is unknown or has no name.
  virtual std::optional<std::string> localizedName(const std::string& identifier) const = 0;
  /// The icon's PNG bytes; nothing when the application is unknown or has no icon.
  virtual std::optional<std::string> iconPng(const std::string& identifier) const = 0;
};

/// Makes PNG bytes of an icon in another format, such as SVG; an empty answer when it cannot. Any
/// thread may call it.
using IconRasterizer = std::function<std::string(const std::string& bytes)>;

/// The home screen of this system: the phone's own where there is one, else the desktop's entries.
/// Without a rasterizer only icons that are PNG count.
std::unique_ptr<HomeScreen> systemHomeScreen(IconRasterizer rasterizer = {});

/// The bytes as an identifier that a settings file keeps as it is: what is no UTF-8, or no
/// character that a file can hold, becomes U+FFFD.
std::string storableIdentifier(std::string_view bytes);

}  // namespace wayloom
