#pragma once

#include "platform/ChangeNotice.h"

namespace wayloom {

/// Posts through the system's own `notify_post`, where the system has one. Main thread only.
class SystemNotice : public ChangeNotice {
 public:
  SystemNotice();

  /// Whether this system has the function.
  bool isAvailable() const { return mPost != nullptr; }
  void post(std::string_view name) noexcept override;

 private:
  using Post = unsigned int (*)(const char*);
  Post mPost;
};

}  // namespace wayloom
