#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ChangeNotice.h"

namespace wayloom {

/// The command that the user wants to be run for each notice: WAYLOOM_NOTICE_COMMAND.
std::optional<std::string> noticeCommand();

/// Every way this system has to tell of a change, each tried in turn: its own notices, else a
/// signal on the session bus; then the user's command, if there is one. Main thread only.
class SystemNotices : public ChangeNotice {
 public:
  explicit SystemNotices(const std::optional<std::string>& command);
  void post(std::string_view name) noexcept override;

 private:
  std::vector<std::unique_ptr<ChangeNotice>> mNotices;
};

}  // namespace wayloom
