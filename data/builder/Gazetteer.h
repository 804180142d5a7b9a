#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "CityList.h"
#include "TopoJson.h"
#include "settings/Result.h"

namespace wayloom {

/// The settlements of the world with the names of what they lie in, put together from the data
/// packages. The packages know countries by code here and by name there and share nothing but
/// geography, so a code gets the name of the country that most of its large settlements lie in.
class Gazetteer {
 public:
  /// Reads the packages below `packages` (a node_modules folder).
  static Result<Gazetteer> read(const std::filesystem::path& packages);

  /// Settlements that still exist.
  const std::vector<City>& cities() const { return mCities; }
  /// The names of a city in other spellings.
  std::vector<std::string> otherNames(const City& city) const;
  /// The city's first-level division ; empty when unknown.
  std::string divisionName(const City& city) const;
  std::string countryName(const std::string& countryCode) const;
  /// What people call a country besides its name.
  std::vector<std::string> otherCountryNames(const std::string& countryCode) const;
  /// Words that mean the country beside a name: its code and other names.
  std::string countryWords(const std::string& countryCode) const;

  const Topology& countries() const { return mCountries; }

 private:
  struct SecondOpinion {
    std::string name;
    std::string adminCode;
  };
  static std::string spotKey(const std::string& country, Coordinate coordinate);
  Status readDivisions(const std::filesystem::path& path);
  Status readSecondList(const std::filesystem::path& path);
  void nameCountries();

  std::vector<City> mCities;
  Topology mCountries;
  std::map<std::string, std::string> mCountryNames;
  std::map<std::string, std::vector<std::string>> mOtherCountryNames;
  std::map<std::string, std::string> mDivisionNames;
  std::map<std::string, SecondOpinion> mSecondList;
};

}  // namespace wayloom
