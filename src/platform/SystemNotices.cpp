#include "platform/SystemNotices.h"

#include <cstdlib>

#include "platform/CommandNotice.h"
#include "platform/DBusNotice.h"
#include "platform/SystemNotice.h"

namespace wayloom {

std::optional<std::string> noticeCommand() {
  const char* command = std::getenv("WAYLOOM_NOTICE_COMMAND");
  return command && *command ? std::optional<std::string>(command) : std::nullopt;
}

SystemNotices::SystemNotices(const std::optional<std::string>& command) {
  if (auto own = std::make_unique<SystemNotice>(); own->isAvailable()) {
    mNotices.push_back(std::move(own));
  } else {
    mNotices.push_back(std::make_unique<DBusNotice>());
  }
  if (command) {
    mNotices.push_back(std::make_unique<CommandNotice>(*command));
  }
}

void SystemNotices::post(std::string_view name) noexcept {
  for (const auto& notice : mNotices) notice->post(name);
}

}  // namespace wayloom
