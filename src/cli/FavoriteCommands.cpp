#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/Table.h"
#include "fixed/FixedLocation.h"
#include "lists/FavoriteFiles.h"
#include "lists/Favorites.h"
#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

/// Stands for a name of blanks only; the same key as on the screen, whose table is not here.
constexpr char kUnnamed[] = "Unknow";

/// The list as it is now.
Result<Favorites> load(CommandLine& line) {
  Favorites favorites(line.files());
  Status loaded = favorites.load();
  return loaded ? Result<Favorites>(std::move(favorites)) : loaded.failure();
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

std::string positionText(const Favorites& favorites, std::size_t index) {
  const auto degrees = [&](const char* key) {
    const PropertyList* value = favorites.value(index, key);
    const double number = doubleValue(value);
    return value && std::isfinite(number) ? formatReal(number) : std::string("-");
  };
  return degrees("latitude") + ", " + degrees("longitude");
}

ExitStatus show(CommandLine& line, const Favorites& favorites) {
  Table table;
  for (std::size_t index = 0; index < favorites.entries().size(); ++index) {
    table.add({std::to_string(index + 1), positionText(favorites, index),
               std::string(favorites.name(index))},
              toJson(favorites, index));
  }
  return line.answer(std::move(table).orNote("no favourites; add one with 'favorites add NAME'"));
}

/// What is wrong with a number that counts from 1; none when there is such a favourite.
std::optional<std::string> refusal(const Favorites& favorites, long long number) {
  const std::size_t count = favorites.entries().size();
  if (number >= 1 && static_cast<unsigned long long>(number) <= count) return std::nullopt;
  return "there is no favourite " + std::to_string(number) +
         (count == 0 ? std::string(": the list is empty")
                     : ": the numbers run from 1 to " + std::to_string(count));
}

/// Calls `change` with the list as it is now, in one turn; answers the changed list.
template <typename Change>
Result<Favorites> changeFavorites(CommandLine& line, Change&& change) {
  const auto turn = line.files().takeTurn();
  if (!turn) return turn.failure();
  auto favorites = load(line);
  if (!favorites) return favorites.failure();
  if (Status changed = change(*favorites); !changed) return changed.failure();
  return favorites;
}

/// The same for the favourite of this number.
template <typename Change>
Result<Favorites> changeFavorite(CommandLine& line, long long number, Change&& change) {
  return changeFavorites(line, [&](Favorites& favorites) -> Status {
    if (const auto why = refusal(favorites, number)) return failed(*why);
    return change(favorites, static_cast<std::size_t>(number) - 1);
  });
}

ExitStatus show(CommandLine& line, const Result<Favorites>& favorites) {
  return favorites ? show(line, *favorites) : line.fail(favorites.failure());
}

/// The fixed location's position as it stands in the file.
Result<Coordinate> fixedPosition(CommandLine& line) {
  const auto fixed = readFixedLocation(line.files());
  if (!fixed) return fixed.failure();
  if (fixed->hasCoordinate) return fixed->coordinate;
  return failed("no position was chosen yet: give one, as in 'favorites add Home 57.7,12'");
}

nlohmann::json exportJson(const ExportedFavorites& exported) {
  return {{"exported", exported.places.size()}, {"leftOut", exported.leftOut}};
}

void warnOfLeftOut(CommandLine& line, const ExportedFavorites& exported) {
  if (exported.leftOut == 0) return;
  line.warn(std::to_string(exported.leftOut) + " without a position on the globe left out");
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
    const auto fixed = fixedPosition(line);
    if (!fixed) return line.fail(fixed.failure());
    coordinate = *fixed;
  }
  return show(line, changeFavorites(line, [&](Favorites& favorites) {
                return favorites.add(name, coordinate, kUnnamed);
              }));
}

ExitStatus removeFavorite(CommandLine& line, long long number) {
  return show(line, changeFavorite(line, number, [](Favorites& favorites, std::size_t index) {
                return favorites.removeAt(index);
              }));
}

ExitStatus renameFavorite(CommandLine& line, long long number, const std::string& name) {
  return show(line, changeFavorite(line, number, [&](Favorites& favorites, std::size_t index) {
                return favorites.rename(index, name);
              }));
}

ExitStatus moveFavorite(CommandLine& line, long long from, long long to) {
  return show(line, changeFavorite(line, from, [&](Favorites& favorites, std::size_t index) {
                if (const auto why = refusal(favorites, to)) return Status(failed(*why));
                return favorites.move(index, static_cast<std::size_t>(to) - 1);
              }));
}

ExitStatus exportFavoritesTo(CommandLine& line, const std::optional<std::string>& format,
                             const std::optional<std::string>& file) {
  const auto favorites = load(line);
  if (!favorites) return line.fail(favorites.failure());
  auto chosen = format ? waypointFormatNamed(*format) : std::nullopt;
  if (!file) {
    chosen = chosen.value_or(WaypointFormat::Gpx);
    const ExportedFavorites exported = exportedFavorites(*favorites);
    warnOfLeftOut(line, exported);
    std::string document = writeWaypoints(exported.places, *chosen);
    nlohmann::json json = exportJson(exported);
    json["document"] = document;
    document.pop_back();  // The answer ends its line itself.
    return line.answer({std::move(document), std::move(json)});
  }
  const auto exported = exportFavorites(*favorites, *file, chosen);
  if (!exported) return line.fail(exported.failure());
  warnOfLeftOut(line, *exported);
  return line.answer(
      {std::to_string(exported->places.size()) + " exported", exportJson(*exported)});
}

ExitStatus importFavoritesFrom(CommandLine& line, const std::string& file) {
  auto favorites = load(line);
  if (!favorites) return line.fail(favorites.failure());
  const auto imported = importFavorites(*favorites, file, kUnnamed);
  if (!imported) return line.fail(imported.failure());
  return line.answer({std::to_string(imported->added) + " added, " +
                          std::to_string(imported->skipped) + " skipped",
                      {{"added", imported->added}, {"skipped", imported->skipped}}});
}

ExitStatus chooseFavorite(CommandLine& line, long long number) {
  // The list opens from the fixed-location screen only, so a drive that is on stands in the way.
  const auto choose = [&](Favorites& favorites, std::size_t index) {
    Status entered = enterMode(line.files(), Mode::FixedLocation);
    return entered ? favorites.choose(index) : entered;
  };
  const auto chosen = changeFavorite(line, number, choose);
  return chosen ? answerDone(line) : line.fail(chosen.failure());
}

}  // namespace wayloom
