#pragma once

#include <string_view>

namespace wayloom {

/// Tells the rest of the system that something changed. A notice carries a name and nothing else.
class ChangeNotice {
 public:
  virtual ~ChangeNotice() = default;

  /// Posts the notice. A failure stays inside: whatever follows the notice must happen anyway.
  virtual void post(std::string_view name) noexcept = 0;
};

}  // namespace wayloom
