#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/Result.h"

namespace wayloom {

/// The texts of a compiled catalogue of messages (GNU gettext's .mo, little-endian) by what they
/// translate. Nothing when it is damaged.
std::optional<std::map<std::string, std::string>> readCatalogue(std::string_view bytes);

/// The name of a country as a person would write it, from that of the map.
std::string fullCountryName(const std::string& mapName);

/// What countries are called in the program's languages and their own, by two-letter code, from the
/// iso-codes below `share` (usually /usr/share).
Result<std::map<std::string, std::vector<std::string>>> readCountryNames(
    const std::filesystem::path& share);

}  // namespace wayloom
