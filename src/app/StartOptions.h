#pragma once

#include <filesystem>
#include <optional>

#include <QtCore/QString>

class QCoreApplication;

namespace wayloom {

/// What the command line says about this start.
struct StartOptions {
  std::optional<std::filesystem::path> root;
  std::optional<std::filesystem::path> regions;
  /// A dark or a light palette, whatever the desktop's is.
  std::optional<bool> dark;
  /// Where the pictures of the tour go, if there is to be one.
  std::optional<QString> tour;

  /// Reads the application's arguments. Ends the process when they are wrong, or ask for help.
  static StartOptions read(const QCoreApplication& application);
  /// Whether the arguments ask for help or the version only, which needs no display.
  static bool areQuestions(int argc, char* argv[]);
};

}  // namespace wayloom
