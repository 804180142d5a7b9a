#pragma once

#include <string>
#include <vector>

#include "roads/RoadGraph.h"
#include "roads/RoadGraphBuilder.h"

namespace wayloom {

/// Roads drawn with characters, a cell being a thousandth of a degree (about 111 m). Capital
/// letters and '+' are junctions; '-' and '|' are roads, '>', '<', '^' and 'v' one-way roads, '='
/// is a road for residents, '~' a ferry, and 'x' a barrier on a road. The upper left cell is at 1°
/// north, 1° east. A turn is written as the letters that one passes.
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

  /// The network with turns of which none may be made, and turns of which each is the only one.
  RoadNetwork network(const std::vector<std::string>& forbidden = {},
                      const std::vector<std::string>& only = {}) const {
    const std::vector<RoadWay> all = ways();
    RoadRules rules;
    for (std::size_t row = 0; row < mRows.size(); ++row) {
      for (std::size_t column = 0; column < mRows[row].size(); ++column) {
        if (mRows[row][column] == 'x') rules.barriers.push_back(position(column, row));
      }
    }
    for (const auto* turns : {&forbidden, &only}) {
      for (const std::string& turn : *turns) {
        rules.turns.push_back({wayBetween(all, turn[0], turn[1]), wayBetween(all, turn[1], turn[2]),
                               at(turn[1]), turns == &only});
      }
    }
    return roadNetwork(all, rules);
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

  std::size_t wayBetween(const std::vector<RoadWay>& ways, char a, char b) const {
    for (std::size_t way = 0; way < ways.size(); ++way) {
      const Line& line = ways[way].line;
      if (line.front() == at(a) && line.back() == at(b)) return way;
      if (line.front() == at(b) && line.back() == at(a)) return way;
    }
    return ways.size();
  }

  void addWay(std::size_t column, std::size_t row, Direction go, std::vector<RoadWay>& ways) const {
    const std::string signs = go.right != 0 ? "-><=~x" : "|v^x";
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
      if (here == 'x') way.line.push_back(position(column, row));
      if (here == '~') way.use.isFerry = true;
      if (here == '~') way.use.kmPerHour = 10;
    }
    way.line.push_back(position(column, row));
    ways.push_back(std::move(way));
  }

  std::vector<std::string> mRows;
};

}  // namespace wayloom
