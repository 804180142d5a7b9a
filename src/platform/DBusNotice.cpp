#include "platform/DBusNotice.h"

#include <chrono>
#include <string>
#include <systemd/sd-bus.h>

namespace wayloom {

namespace {

constexpr const char* kObjectPath = "/com/quorvil/wayloom";
/// How long a bus that does not answer may hold up the write that follows.
constexpr std::chrono::milliseconds kPatience{200};

/// Waits until the bus has taken everything; a bus that stays silent is given up.
bool flush(sd_bus* bus) {
  const auto limit = std::chrono::steady_clock::now() + kPatience;
  while (true) {
    std::uint64_t unsent = 0;
    const int worked = sd_bus_process(bus, nullptr);
    if (worked < 0 || sd_bus_get_n_queued_write(bus, &unsent) < 0) return false;
    if (unsent == 0 && sd_bus_is_ready(bus) > 0) return true;
    const auto left = limit - std::chrono::steady_clock::now();
    if (left.count() <= 0) return false;
    using Microseconds = std::chrono::duration<std::uint64_t, std::micro>;
    const auto wait = std::chrono::duration_cast<Microseconds>(left).count();
    if (worked == 0 && sd_bus_wait(bus, wait) < 0) return false;
  }
}

}  // namespace

DBusNotice::DBusNotice() = default;
DBusNotice::~DBusNotice() = default;

void DBusNotice::CloseBus::operator()(sd_bus* bus) const {
  sd_bus_close_unref(bus);
}

void DBusNotice::post(std::string_view name) noexcept {
  // A connection that broke since the last notice is replaced once.
  if (mBus && send(name)) return;
  mBus.reset();
  if (open() && !send(name)) mBus.reset();
}

bool DBusNotice::open() {
  sd_bus* bus = nullptr;
  if (sd_bus_open_user(&bus) < 0) return false;
  mBus.reset(bus);
  return true;
}

bool DBusNotice::send(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  const std::string interface(name.substr(0, dot));
  const std::string member(name.substr(dot + 1));
  return sd_bus_emit_signal(mBus.get(), kObjectPath, interface.c_str(), member.c_str(), "") >= 0 &&
         flush(mBus.get());
}

}  // namespace wayloom
