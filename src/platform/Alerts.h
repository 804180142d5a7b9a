#pragma once

#include <string>

namespace wayloom {

/// Shows a message that the user dismisses with one button. Texts are keys of the string table.
class Alerts {
 public:
  virtual ~Alerts() = default;
  virtual void show(const std::string& title, const std::string& message,
                    const std::string& button) = 0;
};

}  // namespace wayloom
