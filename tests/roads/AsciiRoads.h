#pragma once

#include <string>
#include <vector>

#include "roads/RoadGraph.h"
#include "roads/RoadGraphBuilder.h"
#include "roads/RoadGraphFile.h"

namespace wayloom {

/// Roads drawn with characters, a cell being a thousandth of a degree (about 111 m). Capital
/// letters and '+' are junctions; '-' and '|' are roads, '>', '<', '^' and 'v' one-way roads, '='
/// is a road for residents, '~' a ferry, 'x' a barrier and '!' signals on a road. The upper left
/// cell is at 1° north, 1° east. A turn is written as the letters that one passes.
class AsciiRoads {
 public:
  explicit AsciiRoads(std::vector<std::string> rows) : mRows(std::move(rows)) {}

  static Coordinate cell(double column, double row) { return {1 - row / 1000, 1 + column / 1000}; }

  /// Where a letter stands.
  Coordinate at(char letter) const {
    for (std::size_t row = 0; row < mRows.size(); ++row) {
      const auto column = mRows[row].find(letter);
      if (column != std::string::npos) return position(column, row);
    }
    return {};
  }

  std::vector<RoadWay> ways() const {
    std::vector<RoadWay> ways;
    for (std::size_t row = 0; row < mRows.size(); ++row) {
      for (std::size_t column = 0; column < mRows[row].size(); ++column) {
        if (!isJunction(mRows[row][column])) continue;
        addWay(column, row, {1, 0}, ways);
        addWay(column, row, {0, 1}, ways);
      }
    }
    return ways;
  }

  /// What is forbidden: turns of which none may be made, and turns of which each is the only one. A
  /// turn may have its hours behind it: "ABC@Mo-Fr".
  RoadRules rules(const std::vector<std::string>& forbidden = {},
                  const std::vector<std::string>& only = {}) const {
    RoadRules rules;
    for (std::size_t row = 0; row < mRows.size(); ++row) {
      for (std::size_t column = 0; column < mRows[row].size(); ++column) {
        const std::int64_t node = roadNodeAt(position(column, row));
        if (mRows[row][column] == 'x') rules.barriers.insert(node);
        if (mRows[row][column] == '!') rules.signals[node];
      }
    }
    for (const auto* turns : {&forbidden, &only}) {
      for (const std::string& turn : *turns) rules.restrictions.push_back(of(turn, turns == &only));
    }
    return rules;
  }

  RoadNetwork network(const std::vector<std::string>& forbidden = {},
                      const std::vector<std::string>& only = {}) const {
    return roadNetwork(ways(), rules(forbidden, only));
  }

  /// The letters that a line passes, in their order.
  std::string passed(const Line& line) const {
    std::string letters;
    for (const Coordinate& position : line) {
      for (const std::string& row : mRows) {
        for (const char letter : row) {
          if (letter >= 'A' && letter <= 'Z' && distanceMetres(at(letter), position) < 1) {
            letters += letter;
          }
        }
      }
    }
    return letters;
  }

 private:
  struct Direction {
    std::size_t right, down;
  };

  static bool isJunction(char sign) { return sign == '+' || (sign >= 'A' && sign <= 'Z'); }
  static Coordinate position(std::size_t column, std::size_t row) {
    return cell(static_cast<double>(column), static_cast<double>(row));
  }
  char sign(std::size_t column, std::size_t row) const {
    return row < mRows.size() && column < mRows[row].size() ? mRows[row][column] : ' ';
  }

  RoadRestriction of(const std::string& turn, bool isOnly) const {
    const std::string letters = turn.substr(0, turn.find('@'));
    std::vector<std::int64_t> numbers;
    for (std::size_t at = 1; at < letters.size(); ++at) {
      numbers.push_back(wayBetween(letters[at - 1], letters[at]));
    }
    RoadRestriction restriction{{numbers.front()}, {}, {}, {numbers.back()}, isOnly};
    restriction.viaWays.assign(numbers.begin() + 1, numbers.end() - 1);
    if (restriction.viaWays.empty()) restriction.viaNode = roadNodeAt(at(letters[1]));
    if (letters != turn) restriction.hours = parseHours(turn.substr(letters.size() + 1)).hours;
    return restriction;
  }

  std::int64_t wayBetween(char a, char b) const {
    for (const RoadWay& way : ways()) {
      const Line& line = way.line;
      if (line.front() == at(a) && line.back() == at(b)) return way.number;
      if (line.front() == at(b) && line.back() == at(a)) return way.number;
    }
    return -1;
  }

  void addWay(std::size_t column, std::size_t row, Direction go, std::vector<RoadWay>& ways) const {
    const std::string signs = go.right != 0 ? "-><=~x!" : "|v^x!";
    RoadWay way{{position(column, row)}, {}};
    for (;;) {
      column += go.right;
      row += go.down;
      const char here = sign(column, row);
      if (isJunction(here)) break;
      if (signs.find(here) == std::string::npos) return;
      if (here == '>' || here == 'v') way.use.backward = false;
      if (here == '<' || here == '^') way.use.forward = false;
      if (here == '=') way.use.destinationOnly = true;
      if (here == 'x' || here == '!') way.line.push_back(position(column, row));
      if (here == '~') way.use.isFerry = true;
      if (here == '~') way.use.kmPerHour = 10;
    }
    way.line.push_back(position(column, row));
    way.number = static_cast<std::int64_t>(ways.size()) + 1;
    ways.push_back(std::move(way));
  }

  std::vector<std::string> mRows;
};

}  // namespace wayloom
