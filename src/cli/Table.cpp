#include "cli/Table.h"

#include <utility>

#include "cli/TextForms.h"

namespace wayloom {

std::string tableRow(const std::vector<std::string>& cells) {
  std::string row;
  for (const std::string& cell : cells) {
    if (&cell != &cells.front()) row += '\t';
    row += oneLine(cell);
  }
  return row;
}

void Table::add(const std::vector<std::string>& cells, nlohmann::json json) {
  if (!mAnswer.json.empty()) mAnswer.text += '\n';
  mAnswer.text += tableRow(cells);
  mAnswer.json.push_back(std::move(json));
}

Answer Table::orNote(const std::string& note) && {
  if (mAnswer.json.empty()) mAnswer.text = note;
  return std::move(mAnswer);
}

}  // namespace wayloom
