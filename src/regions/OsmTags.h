#pragma once

#include <algorithm>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

namespace wayloom {

/// What OpenStreetMap says about a thing: keys and values, as surveyors wrote them.
using OsmTags = std::map<std::string, std::string>;

/// The value of a key; empty when the thing has none. Lives as long as the tags.
inline std::string_view tagOf(const OsmTags& tags, const std::string& key) {
  const auto found = tags.find(key);
  return found == tags.end() ? std::string_view() : std::string_view(found->second);
}

inline bool isOneOf(std::string_view value, std::initializer_list<std::string_view> values) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

}  // namespace wayloom
