#pragma once

#include <functional>
#include <memory>
#include <string>

#include "geo/Coordinate.h"
#include "places/LocationClass.h"

namespace wayloom {

/// Asks what is at one place. Asking again drops the question that is still open, as does the end
/// of this object. Main thread only.
class AddressQuestion {
 public:
  /// Empty where there is no address. Runs on the main thread, once.
  using Completion = std::function<void(const std::string& address)>;

  AddressQuestion();
  ~AddressQuestion();
  AddressQuestion(const AddressQuestion&) = delete;
  AddressQuestion& operator=(const AddressQuestion&) = delete;

  void ask(LocationClass& location, Coordinate place, Completion completion);
  /// Drops the question that is still open.
  void forget();

 private:
  class Answer;
  std::unique_ptr<Answer> mAnswer;
};

}  // namespace wayloom
