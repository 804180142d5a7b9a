#include "CountryNames.h"

#include <algorithm>
#include <array>
#include <exception>
#include <nlohmann/json.hpp>

#include "ReadFile.h"

namespace wayloom {

namespace {

constexpr std::array kLanguages = {"de", "es", "fr", "ja", "zh_CN", "zh_TW"};
constexpr std::uint32_t kCatalogue = 0x950412DE;

// Map makers abbreviate; addresses do not.
constexpr std::array<std::pair<std::string_view, std::string_view>, 45> kFullNames = {{
    {"Antigua and Barb.", "Antigua and Barbuda"},
    {"Ashmore and Cartier Is.", "Ashmore and Cartier Islands"},
    {"Bosnia and Herz.", "Bosnia and Herzegovina"},
    {"Br. Indian Ocean Ter.", "British Indian Ocean Territory"},
    {"British Virgin Is.", "British Virgin Islands"},
    {"Cayman Is.", "Cayman Islands"},
    {"Central African Rep.", "Central African Republic"},
    {"Clipperton I.", "Clipperton Island"},
    {"Congo", "Republic of the Congo"},
    {"Cook Is.", "Cook Islands"},
    {"Coral Sea Is.", "Coral Sea Islands"},
    {"Cyprus U.N. Buffer Zone", "Cyprus"},
    {"Dem. Rep. Congo", "Democratic Republic of the Congo"},
    {"Dominican Rep.", "Dominican Republic"},
    {"Eq. Guinea", "Equatorial Guinea"},
    {"Faeroe Is.", "Faroe Islands"},
    {"Falkland Is.", "Falkland Islands"},
    {"Fr. Polynesia", "French Polynesia"},
    {"Fr. S. Antarctic Lands", "French Southern and Antarctic Lands"},
    {"Heard I. and McDonald Is.", "Heard Island and McDonald Islands"},
    {"Indian Ocean Ter.", "Indian Ocean Territories"},
    {"Macedonia", "North Macedonia"},
    {"Marshall Is.", "Marshall Islands"},
    {"N. Cyprus", "Northern Cyprus"},
    {"N. Mariana Is.", "Northern Mariana Islands"},
    {"Pitcairn Is.", "Pitcairn Islands"},
    {"S. Geo. and the Is.", "South Georgia and the South Sandwich Islands"},
    {"S. Sudan", "South Sudan"},
    {"Solomon Is.", "Solomon Islands"},
    {"Spratly Is.", "Spratly Islands"},
    {"St-Barthélemy", "Saint Barthélemy"},
    {"St-Martin", "Saint Martin"},
    {"St. Kitts and Nevis", "Saint Kitts and Nevis"},
    {"St. Pierre and Miquelon", "Saint Pierre and Miquelon"},
    {"St. Vin. and Gren.", "Saint Vincent and the Grenadines"},
    {"Turks and Caicos Is.", "Turks and Caicos Islands"},
    {"U.S. Minor Outlying Is.", "United States Minor Outlying Islands"},
    {"U.S. Virgin Is.", "United States Virgin Islands"},
    {"USNB Guantanamo Bay", "Guantanamo Bay"},
    {"United States of America", "United States"},
    {"Vatican", "Vatican City"},
    {"W. Sahara", "Western Sahara"},
    {"Wallis and Futuna Is.", "Wallis and Futuna"},
    {"eSwatini", "Eswatini"},
    {"Gambia", "The Gambia"},
}};

// Besides those of iso-codes.
constexpr std::array<std::pair<std::string_view, std::string_view>, 24> kOtherCountryNames = {{
    {"AE", "UAE"},
    {"CD", "DRC"},
    {"CG", "Congo-Brazzaville"},
    {"CI", "Ivory Coast"},
    {"CV", "Cape Verde"},
    {"CZ", "Czech Republic"},
    {"GB", "UK"},
    {"GB", "Great Britain"},
    {"MM", "Burma"},
    {"NL", "Holland"},
    {"SZ", "Swaziland"},
    {"TL", "East Timor"},
    {"US", "USA"},
    {"US", "United States of America"},
    {"DK", "Danmark"},
    {"FI", "Suomi"},
    {"GR", "Ellada"},
    {"KR", "대한민국"},
    {"NL", "Nederland"},
    {"NO", "Norge"},
    {"PL", "Polska"},
    {"RU", "Россия"},
    {"SE", "Sverige"},
    {"UA", "Україна"},
}};

std::optional<std::uint32_t> numberAt(std::string_view bytes, std::size_t at) {
  if (at > bytes.size() || bytes.size() - at < 4) return std::nullopt;
  std::uint32_t number = 0;
  for (std::size_t byte = 0; byte < 4; ++byte) {
    number |= std::uint32_t{static_cast<unsigned char>(bytes[at + byte])} << (8 * byte);
  }
  return number;
}

// The text whose length and place stand at a position of the catalogue.
std::optional<std::string> textAt(std::string_view bytes, std::size_t at) {
  const auto length = numberAt(bytes, at);
  const auto place = numberAt(bytes, at + 4);
  if (!length || !place || *place > bytes.size() || bytes.size() - *place < *length) {
    return std::nullopt;
  }
  return std::string(bytes.substr(*place, *length));
}

// "Korea, Republic of" stands so in lists only.
bool isSpoken(const std::string& name) {
  return !name.empty() && name.find_first_of(",(") == std::string::npos;
}

}  // namespace

std::string fullCountryName(const std::string& mapName) {
  for (const auto& [name, full] : kFullNames) {
    if (name == mapName) return std::string(full);
  }
  return mapName;
}

std::optional<std::map<std::string, std::string>> readCatalogue(std::string_view bytes) {
  const auto count = numberAt(bytes, 8);
  const auto originals = numberAt(bytes, 12);
  const auto translations = numberAt(bytes, 16);
  if (numberAt(bytes, 0) != kCatalogue || !translations) return std::nullopt;
  std::map<std::string, std::string> texts;
  for (std::size_t entry = 0; entry < *count; ++entry) {
    const auto original = textAt(bytes, *originals + 8 * entry);
    const auto translation = textAt(bytes, *translations + 8 * entry);
    if (!original || !translation) return std::nullopt;
    texts[*original] = *translation;
  }
  return texts;
}

Result<std::map<std::string, std::vector<std::string>>> readCountryNames(
    const std::filesystem::path& share) {
  const auto list = share / "iso-codes/json/iso_3166-1.json";
  const auto json = readFile(list);
  if (!json) return json.failure();
  std::vector<std::map<std::string, std::string>> catalogues;
  for (const std::string language : kLanguages) {
    const auto path = share / "locale" / language / "LC_MESSAGES/iso_3166-1.mo";
    const auto bytes = readFile(path);
    if (!bytes) return bytes.failure();
    auto catalogue = readCatalogue(*bytes);
    if (!catalogue) return Failure{path.string() + " is damaged"};
    catalogues.push_back(std::move(*catalogue));
  }
  std::map<std::string, std::vector<std::string>> names;
  try {
    const auto document = nlohmann::json::parse(*json);
    for (const auto& entry : document.at("3166-1")) {
      const std::string name = entry.value("common_name", entry.at("name").get<std::string>());
      auto& all = names[entry.at("alpha_2")];
      if (isSpoken(name)) all.push_back(name);
      for (const auto& catalogue : catalogues) {
        const auto found = catalogue.find(name);
        if (found == catalogue.end() || !isSpoken(found->second)) continue;
        if (std::find(all.begin(), all.end(), found->second) == all.end()) {
          all.push_back(found->second);
        }
      }
    }
  } catch (const std::exception& exception) {
    return Failure{list.string() + ": " + exception.what()};
  }
  for (const auto& [code, name] : kOtherCountryNames) names[std::string(code)].emplace_back(name);
  return names;
}

}  // namespace wayloom
