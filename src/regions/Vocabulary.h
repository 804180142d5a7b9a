#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <unordered_set>

#include "regions/Database.h"

namespace wayloom {

/// The plain words of names, each once, by length, in the order in which they come: those that a
/// misspelt word may have meant.
class Vocabulary {
 public:
  void add(const std::string& word);

  /// Fills the table place_word.
  Status write(Database& database) const;

 private:
  std::unordered_set<std::string> mKnown;
  std::map<std::size_t, std::string> mByLength;
};

}  // namespace wayloom
