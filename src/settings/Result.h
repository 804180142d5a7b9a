#pragma once

#include <string>
#include <utility>

namespace wayloom {

/// Whether something was done: success, or a failure with one line that says what failed, fit to be
/// shown to a person.
class [[nodiscard]] Result {
 public:
  static Result success() { return Result(true, {}); }
  static Result failure(std::string message) { return Result(false, std::move(message)); }

  explicit operator bool() const { return mDone; }
  /// Empty after a success.
  const std::string& message() const { return mMessage; }

 private:
  Result(bool done, std::string message) : mDone(done), mMessage(std::move(message)) {}

  bool mDone;
  std::string mMessage;
};

}  // namespace wayloom
