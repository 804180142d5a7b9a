#include "cli/Arguments.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "cli/Commands.h"
#include "cli/TextForms.h"
#include "settings/TrimmedText.h"
#include "tracks/WaypointFile.h"

namespace wayloom {

namespace {

/// What was typed, until the whole line is known to be right.
struct Typed {
  CommandLine::Options options;
  std::optional<std::string> place;
  std::string text;
  std::string mode;
  std::optional<std::string> near;
  Drive drive;
  std::string time = "now";
  std::string onOff;
  double speed = 0;
  int limit = 10;
  bool suggest = false;
  std::string name;
  long long number = 0;
  long long destination = 0;
  std::optional<std::string> format;
  RouteForm routeForm = RouteForm::Summary;
  std::function<ExitStatus(CommandLine&)> command;
};

void addModeCommands(CLI::App& app, Typed& typed) {
  app.add_subcommand("status", "Show mode, fixed location, drift and route")->callback([&typed] {
    typed.command = showStatus;
  });
  auto* mode = app.add_subcommand("mode", "Show the mode, or switch it as the mode button does");
  mode->add_option("MODE", typed.mode)->check(CLI::IsMember({"fixed", "route"}));
  mode->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      if (typed.mode.empty()) return showMode(line);
      return switchMode(line, typed.mode == "fixed" ? Mode::FixedLocation : Mode::Route);
    };
  });
}

void addFixedCommands(CLI::App& app, Typed& typed) {
  auto* fixed = app.add_subcommand("fixed", "The fixed location")->require_subcommand(1);

  auto* on = fixed->add_subcommand("on", "Turn it on, at PLACE or where it was");
  on->add_option("PLACE", typed.place, "LAT,LON, #:LAT,LON or an address");
  on->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return turnFixedOn(line, typed.place); };
  });

  fixed->add_subcommand("off", "Turn it off; the position is kept")->callback([&typed] {
    typed.command = turnFixedOff;
  });

  auto* move = fixed->add_subcommand("move", "Move the position to PLACE, on or off");
  move->add_option("PLACE", typed.place, "LAT,LON, #:LAT,LON or an address")->required();
  move->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return moveFixed(line, *typed.place); };
  });

  auto* drift = fixed->add_subcommand("drift", "Let the position drift by itself, or not");
  drift->add_option("on|off", typed.onOff)->required()->check(CLI::IsMember({"on", "off"}));
  auto* speed = drift->add_option("--speed", typed.speed, "0 (slow) to 1 (fast)");
  drift->callback([&typed, speed] {
    typed.command = [&typed, isGiven = speed->count() > 0](CommandLine& line) {
      return setDrift(line, typed.onOff == "on",
                      isGiven ? std::optional(typed.speed) : std::nullopt);
    };
  });

  auto* slider = fixed->add_subcommand("speed", "Set the drift speed while drift is on");
  slider->add_option("SPEED", typed.speed, "0 (slow) to 1 (fast)")->required();
  slider->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return setDriftSpeed(line, typed.speed); };
  });
}

void addFavoriteFileCommands(CLI::App& favorites, Typed& typed) {
  auto* to = favorites.add_subcommand("export", "Write them for other programs");
  to->add_option("FILE", typed.place, "A file that is not there yet; else it is shown");
  to->add_option("--format", typed.format, "The file's ending when not given, else gpx")
      ->check(CLI::IsMember(
          std::vector<std::string>(kWaypointFormats.begin(), kWaypointFormats.end())));
  to->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      return exportFavoritesTo(line, typed.format, typed.place);
    };
  });
  auto* from = favorites.add_subcommand("import", "Add the places of a file behind the last");
  from->add_option("FILE", typed.text, "A file in GPX, KML or GeoJSON")->required();
  from->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return importFavoritesFrom(line, typed.text); };
  });
}

void addFavoriteCommands(CLI::App& app, Typed& typed) {
  auto* favorites = app.add_subcommand("favorites", "The saved places")->require_subcommand(1);
  favorites->add_subcommand("list", "List them")->callback([&typed] {
    typed.command = listFavorites;
  });

  auto* add = favorites->add_subcommand("add", "Save PLACE, or the fixed position, under NAME");
  add->add_option("NAME", typed.name)->required();
  add->add_option("PLACE", typed.place, "LAT,LON, #:LAT,LON or an address");
  add->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      return addFavorite(line, typed.name, typed.place);
    };
  });

  const auto addNumbered = [&](const char* name, const char* help, auto command) {
    auto* numbered = favorites->add_subcommand(name, help);
    numbered->add_option("N", typed.number, "Its number in the list, from 1")->required();
    numbered->callback([&typed, command] {
      typed.command = [&typed, command](CommandLine& line) { return command(line, typed.number); };
    });
  };
  addNumbered("remove", "Delete number N", removeFavorite);
  addNumbered("choose", "Turn the fixed location on at number N", chooseFavorite);

  auto* rename = favorites->add_subcommand("rename", "Give number N another NAME");
  rename->add_option("N", typed.number, "Its number in the list, from 1")->required();
  rename->add_option("NAME", typed.name)->required();
  rename->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      return renameFavorite(line, typed.number, typed.name);
    };
  });

  auto* move = favorites->add_subcommand("move", "Make number FROM number TO of the list");
  move->add_option("FROM", typed.number, "Its number in the list, from 1")->required();
  move->add_option("TO", typed.destination, "The number that it gets")->required();
  move->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      return moveFavorite(line, typed.number, typed.destination);
    };
  });
  addFavoriteFileCommands(*favorites, typed);
}

void addApplicationCommands(CLI::App& app, Typed& typed) {
  app.add_subcommand("apps", "List the installed applications: ticked, identifier, name")
      ->callback([&typed] { typed.command = listApplications; });

  auto* whitelist = app.add_subcommand("whitelist", "The ticked applications");
  whitelist->require_subcommand(1);
  whitelist->add_subcommand("list", "List what the whitelist holds")->callback([&typed] {
    typed.command = listWhitelist;
  });
  auto* toggle = whitelist->add_subcommand("toggle", "Tick an application, or take its tick away");
  toggle->add_option("ID", typed.text, "Its identifier, as 'apps' shows it")->required();
  toggle->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return toggleWhitelist(line, typed.text); };
  });

  auto* set = whitelist->add_subcommand("set", "Ticks that are kept under names");
  set->require_subcommand(1);
  set->add_subcommand("list", "List the sets: how many they tick, name")->callback([&typed] {
    typed.command = listWhitelistSets;
  });
  const auto addNamed = [&](const char* verb, const char* help, auto command) {
    auto* named = set->add_subcommand(verb, help);
    named->add_option("NAME", typed.name)->required();
    named->callback([&typed, command] {
      typed.command = [&typed, command](CommandLine& line) { return command(line, typed.name); };
    });
  };
  addNamed("save", "Keep the ticks as they are under NAME", saveWhitelistSet);
  addNamed("use", "Tick what the set ticks, and nothing else", useWhitelistSet);
  addNamed("remove", "Delete a set; the ticks stay", removeWhitelistSet);
}

void addPlaceCommands(CLI::App& app, Typed& typed) {
  auto* search = app.add_subcommand("search", "Find places by name or address");
  search->add_option("TEXT", typed.text)->required();
  search->add_option("--near", typed.near, "LAT,LON that nearer places are preferred to");
  search->add_option("--limit", typed.limit, "How many places at the most")
      ->check(CLI::Range(1, 20))
      ->capture_default_str();
  search->add_flag("--suggest", typed.suggest,
                   "What an unfinished TEXT may become: kind, name, place, division, country");
  search->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      const auto answer = typed.suggest ? suggestPlaces : searchPlaces;
      return answer(line, typed.text, typed.near, typed.limit);
    };
  });

  auto* address = app.add_subcommand("address", "Show the address of PLACE");
  address->add_option("PLACE", typed.place, "LAT,LON, #:LAT,LON or an address")->required();
  address->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return showAddress(line, *typed.place); };
  });
}

void addRouteCommands(CLI::App& app, Typed& typed) {
  auto* route = app.add_subcommand("route", "A drive on roads")->require_subcommand(1);
  const auto addPlaces = [&typed](CLI::App* command) {
    command
        ->add_option("--from", typed.drive.from,
                     "Where it starts: LAT,LON, #:LAT,LON or an address")
        ->required();
    command->add_option("--to", typed.drive.to, "Where it ends")->required();
  };
  auto* plan = route->add_subcommand("plan", "Show the quickest drive, without turning it on");
  addPlaces(plan);
  plan->add_option("--start", typed.drive.start, "When it starts, for what holds at certain hours");
  const auto addForm = [&](const std::string& name, RouteForm form, const std::string& help) {
    return plan->add_flag_callback(
        name, [&typed, form] { typed.routeForm = form; }, help);
  };
  addForm("--profile", RouteForm::Profile, "Answer with times and speeds at each bend")
      ->excludes(addForm("--geojson", RouteForm::GeoJson, "Answer with the whole line as GeoJSON"));
  plan->callback([&typed] {
    typed.command = [&typed](CommandLine& line) {
      return planRoute(line, typed.drive, typed.routeForm);
    };
  });

  auto* on = route->add_subcommand("on", "Turn the quickest drive on");
  addPlaces(on);
  on->add_option("--start", typed.drive.start,
                 "When it starts: 2026-11-23T08:30, now, +30m or seconds since 1970")
      ->required();
  on->add_option("--end", typed.drive.end, "When it ends")->required();
  on->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return turnRouteOn(line, typed.drive); };
  });

  route->add_subcommand("off", "Turn the drive off; its path is kept")->callback([&typed] {
    typed.command = turnRouteOff;
  });

  auto* where = route->add_subcommand("where", "Show where the drive is");
  where->add_option("--at", typed.time, "At another time than now");
  where->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return showRoutePosition(line, typed.time); };
  });
}

void addRegionCommands(CLI::App& app, Typed& typed) {
  auto* region =
      app.add_subcommand("region", "Maps, places and roads on this machine")->require_subcommand(1);
  region->add_subcommand("list", "Show the region files in use")->callback([&typed] {
    typed.command = listRegions;
  });
  auto* make = region->add_subcommand("import", "Make an OpenStreetMap extract into a region");
  make->add_option("FILE", typed.text, "A file in .osm.pbf, .osm, .osm.gz or .osm.bz2")->required();
  auto* name = make->add_option("--name", typed.name, "Its name; the file's when not given");
  make->callback([&typed, name] {
    typed.command = [&typed, isGiven = name->count() > 0](CommandLine& line) {
      return importRegionFile(line, typed.text, isGiven ? std::optional(typed.name) : std::nullopt);
    };
  });
  auto* remove = region->add_subcommand("remove", "Delete an imported region");
  remove->add_option("NAME", typed.name)->required();
  remove->callback([&typed] {
    typed.command = [&typed](CommandLine& line) { return removeRegion(line, typed.name); };
  });
}

/// A southern latitude must not be taken for an option: "-33.9,151.2" becomes "#:-33.9,151.2".
void markPositions(std::vector<std::string>& arguments) {
  for (std::string& argument : arguments) {
    const std::string text = trimmedText(argument);
    const bool isPosition = text.find_first_not_of("0123456789+-., ") == std::string::npos &&
                            text.starts_with('-') && text.find(',') != std::string::npos;
    if (isPosition) argument.insert(0, "#:");
  }
}

void addOptions(CLI::App& app, Typed& typed) {
  app.set_version_flag("--version", std::string("wayloomctl ") + WAYLOOM_VERSION);
  app.add_option("--root", typed.options.root, "Folder below which the settings files stand");
  app.add_option("--regions", typed.options.regions, "Folder with the region files");
  app.add_option_function<std::string>(
         "--service", [&typed](const std::string& name) { typed.options.online = name == "web"; },
         "Who knows places and addresses: the regions (default), or the web as in services.json")
      ->check(CLI::IsMember({"regions", "web"}));
  app.add_flag("--json", typed.options.json, "Answer with one JSON document");
  app.require_subcommand(0, 1);
  app.fallthrough();
}

ExitStatus wrongUsage(const std::string& why) {
  constexpr std::size_t kMostCharacters = 300;  // It quotes what was typed.
  std::cerr << "wayloomctl: " << oneLine(why, kMostCharacters) << '\n';
  return ExitStatus::WrongUsage;
}

}  // namespace

ParsedArguments parseArguments(std::vector<std::string> arguments) {
  const auto typed = std::make_shared<Typed>();
  CLI::App app("Decides where the phone says it is.", "wayloomctl");
  addOptions(app, *typed);
  addModeCommands(app, *typed);
  addFixedCommands(app, *typed);
  addFavoriteCommands(app, *typed);
  addApplicationCommands(app, *typed);
  addPlaceCommands(app, *typed);
  addRouteCommands(app, *typed);
  addRegionCommands(app, *typed);
  markPositions(arguments);
  std::reverse(arguments.begin(), arguments.end());
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::Success& success) {
    return static_cast<ExitStatus>(app.exit(success));
  } catch (const CLI::ParseError& error) {
    return wrongUsage(error.what() + std::string("; see 'wayloomctl --help'"));
  }
  if (typed->options.root && typed->options.root->empty()) {
    return wrongUsage("--root is empty: give a folder");
  }
  if (!typed->command) return wrongUsage("no command given; see 'wayloomctl --help'");
  return TypedCommand{typed->options, [typed](CommandLine& line) { return typed->command(line); }};
}

int runWayloomctl(std::vector<std::string> arguments) {
  try {
    const ParsedArguments parsed = parseArguments(std::move(arguments));
    if (const auto* status = std::get_if<ExitStatus>(&parsed)) return static_cast<int>(*status);
    const auto& command = std::get<TypedCommand>(parsed);
    CommandLine line(command.options);
    return static_cast<int>(command.run(line));
  } catch (const std::exception& error) {
    std::cerr << "wayloomctl: " << error.what() << '\n';
    return static_cast<int>(ExitStatus::Failed);
  }
}

}  // namespace wayloom
