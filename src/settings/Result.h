#pragma once

#include <string>
#include <utility>
#include <variant>

namespace wayloom {

enum class FailureKind {
  /// It went wrong.
  Failed,
  /// A rule forbids it as things are; the user is told by an alert.
  Refused
};

/// Why something could not be done: one line for a person, without a full stop.
struct Failure {
  std::string message;
  FailureKind kind = FailureKind::Failed;
};

/// A value, or the failure that came in its place. Asking a failure for its value is our mistake.
template <typename Value = std::monostate>
class [[nodiscard]] Result {
 public:
  Result(Value value) : mContent(std::move(value)) {}
  Result(Failure failure) : mContent(std::move(failure)) {}

  explicit operator bool() const { return mContent.index() == 0; }
  Value& operator*() { return *std::get_if<0>(&mContent); }
  const Value& operator*() const { return *std::get_if<0>(&mContent); }
  Value* operator->() { return std::get_if<0>(&mContent); }
  const Value* operator->() const { return std::get_if<0>(&mContent); }

  const Failure& failure() const { return *std::get_if<1>(&mContent); }
  bool isRefused() const { return !*this && failure().kind == FailureKind::Refused; }
  /// The outcome without the value.
  Result<std::monostate> status() const {
    return *this ? Result<std::monostate>(std::monostate()) : failure();
  }
  /// The failure's message; empty after a success.
  std::string message() const { return *this ? std::string() : failure().message; }

 private:
  std::variant<Value, Failure> mContent;
};

/// The outcome of something that gives no value.
using Status = Result<>;

/// The status of something that went well.
inline Status done() {
  return std::monostate();
}

/// The outcome of something that did not.
inline Failure failed(std::string message) {
  return {std::move(message)};
}

/// The outcome of something that a rule forbids.
inline Failure refused(std::string message) {
  return {std::move(message), FailureKind::Refused};
}

}  // namespace wayloom
