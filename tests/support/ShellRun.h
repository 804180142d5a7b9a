#pragma once

#include <cstdlib>
#include <string>
#include <sys/wait.h>

#include "tests/support/TemporaryRoot.h"

namespace wayloom {

/// How a program ended that was run as a shell runs it.
struct ShellRun {
  /// -1 when a signal ended it.
  int status;
  std::string out, err;
};

/// Runs `command` with no bus to reach; what it prints passes through files in `folder`.
inline ShellRun runInShell(const std::string& command, const std::filesystem::path& folder) {
  const auto out = folder / "run.out";
  const auto err = folder / "run.err";
  const std::string line = "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent " + command + " > '" +
                           out.string() + "' 2> '" + err.string() + "'";
  const int status = std::system(line.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytesOf(out), bytesOf(err)};
}

}  // namespace wayloom
