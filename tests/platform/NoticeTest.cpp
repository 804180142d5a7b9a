#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <systemd/sd-bus.h>
#include <thread>

#include "platform/CommandNotice.h"
#include "platform/DBusNotice.h"
#include "platform/SystemNotices.h"
#include "tests/support/TemporaryRoot.h"

namespace wayloom {
namespace {

constexpr const char* kName = "com.quorvil.wayloom.auto.changed";

/// A message bus of the test's own.
class PrivateBus {
 public:
  PrivateBus() {
    mDaemon = popen("exec dbus-daemon --session --print-address=1 --print-pid=1 --nofork", "r");
    char line[512] = "";
    if (fscanf(mDaemon, "%511s %d", line, &mProcess) == 2) address = line;
  }
  ~PrivateBus() { stop(); }

  void stop() {
    if (!mDaemon) return;
    if (mProcess > 0) kill(mProcess, SIGTERM);
    pclose(mDaemon);
    mDaemon = nullptr;
  }

  std::string address;

 private:
  FILE* mDaemon = nullptr;
  pid_t mProcess = 0;
};

int hear(sd_bus_message* message, void* heard, sd_bus_error* /*error*/) {
  static_cast<std::vector<std::string>*>(heard)->emplace_back(sd_bus_message_get_path(message));
  return 0;
}

class DBusNoticeTest : public testing::Test {
 protected:
  static void useBus(const std::string& address) {
    ASSERT_FALSE(address.empty()) << "dbus-daemon did not start";
    setenv("DBUS_SESSION_BUS_ADDRESS", address.c_str(), 1);
  }
  void TearDown() override { unsetenv("DBUS_SESSION_BUS_ADDRESS"); }
};

TEST_F(DBusNoticeTest, ReachesAListenerOnTheSessionBus) {
  const PrivateBus bus;
  useBus(bus.address);
  sd_bus* raw = nullptr;
  ASSERT_GE(sd_bus_open_user(&raw), 0);
  const std::unique_ptr<sd_bus, decltype(&sd_bus_flush_close_unref)> listener(
      raw, sd_bus_flush_close_unref);
  std::vector<std::string> heard;
  ASSERT_GE(sd_bus_match_signal(raw, nullptr, nullptr, nullptr, "com.quorvil.wayloom.auto",
                                "changed", hear, &heard),
            0);

  DBusNotice notice;
  notice.post(kName);
  notice.post(kName);
  for (int turn = 0; turn < 1000 && heard.size() < 2; ++turn) {
    if (sd_bus_process(raw, nullptr) == 0) sd_bus_wait(raw, 10'000);
  }
  EXPECT_EQ(heard, std::vector<std::string>(2, "/com/quorvil/wayloom"));
}

TEST_F(DBusNoticeTest, ABusThatIsNotThereOrGoneHoldsNothingUp) {
  const auto start = std::chrono::steady_clock::now();
  useBus("unix:path=/nonexistent/bus");
  DBusNotice().post(kName);
  PrivateBus bus;
  useBus(bus.address);
  DBusNotice notice;
  notice.post(kName);
  bus.stop();
  notice.post(kName);
  notice.post("nodots");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(CommandNoticeTest, RunsTheCommandWithTheNameAndNoShell) {
  const TemporaryRoot root;
  const auto script = root.path() / "on notice; exit";
  const auto output = root.path() / "heard";
  writeBytes(script, "#!/bin/sh\necho \"$# $1\" > '" + output.string() + ".part'\nmv '" +
                         output.string() + ".part' '" + output.string() + "'\n");
  std::filesystem::permissions(script, std::filesystem::perms::owner_all);
  CommandNotice(script.string()).post(kName);
  const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!std::filesystem::exists(output) && std::chrono::steady_clock::now() < limit) {
    std::this_thread::yield();
  }
  EXPECT_EQ(bytesOf(output), std::string("1 ") + kName + "\n");
}

}  // namespace
}  // namespace wayloom
