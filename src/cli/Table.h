#pragma once

#include <string>
#include <vector>

#include "cli/CommandLine.h"

namespace wayloom {

/// One line: the cells with tabs between them, each free of control characters, whoever wrote it.
std::string tableRow(const std::vector<std::string>& cells);

/// The answer of a command that lists something: a line for each row, and an array in JSON.
class Table {
 public:
  void add(const std::vector<std::string>& cells, nlohmann::json json);

  /// The note stands for a table without rows.
  Answer orNote(const std::string& note) &&;

 private:
  Answer mAnswer{{}, nlohmann::json::array()};
};

}  // namespace wayloom
