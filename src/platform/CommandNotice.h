#pragma once

#include <string>

#include "platform/ChangeNotice.h"

namespace wayloom {

/// Starts a command of the user's for each notice, with the notice's name as its only argument, and
/// does not wait for it. Main thread only.
class CommandNotice : public ChangeNotice {
 public:
  /// `command` is a program's path or its name on PATH; no shell reads it.
  explicit CommandNotice(std::string command) : mCommand(std::move(command)) {}
  void post(std::string_view name) noexcept override;

 private:
  std::string mCommand;
};

}  // namespace wayloom
