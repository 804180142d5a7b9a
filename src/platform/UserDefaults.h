#pragma once

#include <optional>
#include <string>

namespace wayloom {

/// The application's own small memory across launches. Main thread only.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;
  virtual std::optional<double> number(const std::string& key) const = 0;
  virtual void setNumber(const std::string& key, double value) = 0;
  /// Makes what was set lasting at once.
  virtual void synchronize() = 0;
};

}  // namespace wayloom
