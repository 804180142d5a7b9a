#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "regions/OsmTags.h"

namespace wayloom {

/// Writes a small OpenStreetMap file. Nodes stand on a grid of thousandths of a degree around 47° N
/// 9° E: node RC is R rows north and C columns east, and way and relation numbers are the test's.
class OsmText {
 public:
  OsmText& node(int id, const OsmTags& tags = {}) {
    const int row = id / 10;
    mNodes[id] = "<node id='" + std::to_string(id) + "' lat='" + std::to_string(47 + row * 0.001) +
                 "' lon='" + std::to_string(9 + id % 10 * 0.001) + "'>" + text(tags) + "</node>\n";
    return *this;
  }

  OsmText& way(int id, const std::vector<int>& nodes, const OsmTags& tags) {
    mWays += "<way id='" + std::to_string(id) + "'>";
    for (const int number : nodes) mWays += "<nd ref='" + std::to_string(number) + "'/>";
    mWays += text(tags) + "</way>\n";
    return *this;
  }

  /// A member is written as "way 5 outer".
  OsmText& relation(int id, const std::vector<std::string>& members, const OsmTags& tags) {
    mRelations += "<relation id='" + std::to_string(id) + "'>";
    for (const std::string& member : members) {
      const auto number = member.find(' ');
      const auto role = member.find(' ', number + 1);
      mRelations += "<member type='" + member.substr(0, number) + "' ref='" +
                    member.substr(number + 1, role - number - 1) + "' role='" +
                    member.substr(role + 1) + "'/>";
    }
    mRelations += text(tags) + "</relation>\n";
    return *this;
  }

  /// All nodes of the grid up to this row and column that are not yet there, without tags.
  OsmText& grid(int rows, int columns) {
    for (int row = 0; row < rows; ++row) {
      for (int column = 0; column < columns; ++column) {
        if (!mNodes.contains(row * 10 + column)) node(row * 10 + column);
      }
    }
    return *this;
  }

  std::string str() const {
    std::string nodes;
    for (const auto& [id, text] : mNodes) nodes += text;
    return "<?xml version='1.0'?>\n<osm version='0.6'>\n" + nodes + mWays + mRelations + "</osm>\n";
  }

  void write(const std::filesystem::path& path) const { std::ofstream(path) << str(); }

 private:
  static std::string text(const OsmTags& tags) {
    std::string result;
    for (const auto& [key, value] : tags) {
      result += "<tag k='" + key + "' v='" + value + "'/>";
    }
    return result;
  }

  std::map<int, std::string> mNodes;
  std::string mWays, mRelations;
};

}  // namespace wayloom
