#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "fixed/FixedLocation.h"
#include "lists/Favorites.h"
#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

/// Stands for a name of blanks only; the same key as on the screen, whose table is not here.
constexpr char kUnnamed[] = "Unknow";

Favorites load(CommandLine& line) {
  line.warnOfDamage(SettingsFile::Favorites);
  Favorites favorites(line.files());
  favorites.load();
  return favorites;
}

nlohmann::json toJson(const Favorites& favorites, std::size_t index) {
  const auto degrees = [&](const char* key) {
    const PropertyList* value = favorites.value(index, key);
    return value ? nlohmann::json(doubleValue(value)) : nlohmann::json();
  };
  return {{"number", index + 1},
          {"name", favorites.name(index)},
          {"latitude", degrees("latitude")},
          {"longitude", degrees("longitude")}};
}

std::string toText(const Favorites& favorites, std::size_t index) {
  const auto degrees = [&](const char* key) {
    const PropertyList* value = favorites.value(index, key);
    return value ? formatReal(doubleValue(value)) : std::string("-");
  };
  std::string text = std::to_string(index + 1);
  text.append("\t").append(degrees("latitude")).append(", ").append(degrees("longitude"));
  return text.append("\t").append(oneLine(std::string(favorites.name(index))));
}

ExitStatus show(CommandLine& line, const Favorites& favorites) {
  Answer answer{{}, nlohmann::json::array()};
  for (std::size_t index = 0; index < favorites.entries().size(); ++index) {
    if (index > 0) answer.text += '\n';
    answer.text += toText(favorites, index);
    answer.json.push_back(toJson(favorites, index));
  }
  if (favorites.entries().empty()) answer.text = "no favourites; add one with 'favorites add NAME'";
  return line.answer(answer);
}

ExitStatus finish(CommandLine& line, const Status& result, const Favorites& favorites) {
  return result ? show(line, favorites) : line.fail(result.message());
}

/// What is wrong with a number that counts from 1; none when there is such a favourite.
std::optional<std::string> refusal(const Favorites& favorites, long long number) {
  const std::size_t count = favorites.entries().size();
  if (number >= 1 && static_cast<unsigned long long>(number) <= count) return std::nullopt;
  return "there is no favourite " + std::to_string(number) +
         (count == 0 ? std::string(": the list is empty")
                     : ": the numbers run from 1 to " + std::to_string(count));
}

}  // namespace

ExitStatus listFavorites(CommandLine& line) {
  return show(line, load(line));
}

ExitStatus addFavorite(CommandLine& line, const std::string& name,
                       const std::optional<std::string>& place) {
  Coordinate coordinate;
  if (place) {
    const ResolvedPlace resolved = resolvePlace(line, *place);
    if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
    coordinate = std::get<GeocodedPlace>(resolved).coordinate;
  } else {
    const FixedLocationState fixed = readFixedLocation(line.files());
    if (!fixed.hasCoordinate) {
      return line.fail("no position was chosen yet: give one, as in 'favorites add Home 57.7,12'");
    }
    coordinate = fixed.coordinate;
  }
  line.takeTurn();
  Favorites favorites = load(line);
  const Status added = favorites.add(name, coordinate, kUnnamed);
  return finish(line, added, favorites);
}

ExitStatus removeFavorite(CommandLine& line, long long number) {
  line.takeTurn();
  Favorites favorites = load(line);
  if (const auto why = refusal(favorites, number)) return line.fail(*why);
  const Status removed = favorites.removeAt(static_cast<std::size_t>(number) - 1);
  return finish(line, removed, favorites);
}

ExitStatus chooseFavorite(CommandLine& line, long long number) {
  line.takeTurn();
  Favorites favorites = load(line);
  if (const auto why = refusal(favorites, number)) return line.fail(*why);
  // The list opens from the fixed-location screen only, so a drive that is on stands in the way.
  if (const Status switched = switchToMode(line.files(), Mode::FixedLocation); !switched) {
    return line.fail(switched.message());
  }
  const Status chosen = favorites.choose(static_cast<std::size_t>(number) - 1);
  return chosen ? showStatus(line) : line.fail(chosen.message());
}

}  // namespace wayloom
