#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "cli/CommandLine.h"

namespace wayloom {

/// A command line that was understood.
struct TypedCommand {
  CommandLine::Options options;
  std::function<ExitStatus(CommandLine&)> run;
};

/// What was typed, or how wayloomctl must end; why, or the help asked for, was printed already.
using ParsedArguments = std::variant<TypedCommand, ExitStatus>;

/// Understands the arguments without the program's name. Nothing is read or run.
ParsedArguments parseArguments(std::vector<std::string> arguments);

/// All of wayloomctl: understands the arguments, runs the command and gives the exit status.
int runWayloomctl(std::vector<std::string> arguments);

}  // namespace wayloom
