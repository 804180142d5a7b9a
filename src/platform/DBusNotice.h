#pragma once

#include <memory>

#include "platform/ChangeNotice.h"

struct sd_bus;

namespace wayloom {

/// Posts a notice as a signal on the session bus: "a.b.c" becomes member "c" of interface "a.b",
/// from the object /com/quorvil/wayloom. Without a bus nothing happens. The connection is opened at
/// the first post and again after it broke. Main thread only.
class DBusNotice : public ChangeNotice {
 public:
  DBusNotice();
  ~DBusNotice() override;
  void post(std::string_view name) noexcept override;

 private:
  struct CloseBus {
    void operator()(sd_bus* bus) const;
  };
  bool open();
  bool send(std::string_view name);

  std::unique_ptr<sd_bus, CloseBus> mBus;
};

}  // namespace wayloom
