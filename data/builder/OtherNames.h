#pragma once

#include <string_view>
#include <vector>

namespace wayloom {

/// What else a large city is called, mostly by those who live there; the data packages know most
/// cities by one name only. `country` is the two-letter code, `name` the packages' name.
std::vector<std::string_view> otherNamesOf(std::string_view country, std::string_view name);

}  // namespace wayloom
