#pragma once

#include <gtest/gtest.h>

#include "tests/support/ShellRun.h"

namespace wayloom {

/// Runs the real program as a shell does, with files, applications, regions, a home and a time zone
/// of the test's own.
class CtlTest : public testing::Test {
 protected:
  /// `starter` stands before the program's name.
  ShellRun run(const std::string& arguments, const std::string& starter = "") const {
    const std::string own = root.path().string();
    return runInShell("LC_ALL=C TZ=UTC-2 HOME=" + own + "/home XDG_CONFIG_HOME=" + own +
                          " XDG_DATA_HOME=" + own + "/data XDG_DATA_DIRS=" + own +
                          "/share WAYLOOM_REGIONS=" + regions.string() + ' ' + starter +
                          " '" WAYLOOMCTL "' --root " + own + ' ' + arguments,
                      root.path());
  }

  TemporaryRoot root;
  SettingsFiles files{root.path()};
  /// A folder in the place of the installed ones.
  std::filesystem::path regions;
};

}  // namespace wayloom
