#include <iostream>
#include <sstream>

#include "cli/Arguments.h"
#include "cli/TimeArgument.h"
#include "fuzz/Fuzzing.h"

using namespace wayloom;

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
  std::ostringstream printed;
  auto* const out = std::cout.rdbuf(printed.rdbuf());
  auto* const error = std::cerr.rdbuf(printed.rdbuf());
  const ParsedArguments parsed = parseArguments(std::move(arguments));
  std::cout.rdbuf(out);
  std::cerr.rdbuf(error);
  const std::string said = printed.str();
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
