#include <iostream>
#include <sstream>

#include "cli/Arguments.h"
#include "cli/TimeArgument.h"
#include "fuzz/Fuzzing.h"

using namespace wayloom;

namespace {

/// What is printed while it lives.
class Printed {
 public:
  Printed() : mOut(std::cout.rdbuf(mText.rdbuf())), mErr(std::cerr.rdbuf(mText.rdbuf())) {}
  ~Printed() {
    std::cout.rdbuf(mOut);
    std::cerr.rdbuf(mErr);
  }
  std::string text() const { return mText.str(); }

 private:
  std::ostringstream mText;
  std::streambuf* mOut;
  std::streambuf* mErr;
};

}  // namespace

/// A line of arguments, separated by zero bytes: it is a command, or help was asked for, or one
/// line says what is wrong. A moment that is understood reads back from its own form.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  std::string_view text = textOf(bytes, count);
  std::vector<std::string> arguments;
  while (!text.empty()) arguments.emplace_back(takePart(text));
  for (const std::string& argument : arguments) {
    const auto seconds = parseTime(argument, 1.7e9);
    if (!seconds) continue;
    require(*seconds >= INT32_MIN && *seconds <= INT32_MAX);
    require(parseTime(timeText(*seconds), 0).has_value());
  }
  const Printed printed;
  const ParsedArguments parsed = parseArguments(std::move(arguments));
  const std::string said = printed.text();
  if (const auto* command = std::get_if<TypedCommand>(&parsed)) {
    require(command->run && said.empty());
    require(!command->options.root || !command->options.root->empty());
  } else if (std::get<ExitStatus>(parsed) == ExitStatus::WrongUsage) {
    require(said.starts_with("wayloomctl: ") && said.find('\n') == said.size() - 1);
  } else {
    require(std::get<ExitStatus>(parsed) == ExitStatus::Done && !said.empty());
  }
  return 0;
}
