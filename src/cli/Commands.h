#pragma once

#include <optional>
#include <string>

#include "cli/CommandLine.h"

namespace wayloom {

// One function per command of wayloomctl; each does what the control of the same name on a screen
// does, and answers.

ExitStatus showStatus(CommandLine& line);
/// The answer of a change that is in its file: the status as far as it can be read.
ExitStatus answerDone(CommandLine& line);

ExitStatus showMode(CommandLine& line);
ExitStatus switchMode(CommandLine& line, Mode mode);

ExitStatus turnFixedOn(CommandLine& line, const std::optional<std::string>& place);
ExitStatus turnFixedOff(CommandLine& line);
ExitStatus moveFixed(CommandLine& line, const std::string& place);
ExitStatus setDrift(CommandLine& line, bool on, std::optional<double> speed);
ExitStatus setDriftSpeed(CommandLine& line, double speed);

ExitStatus listFavorites(CommandLine& line);
/// At PLACE, else at the fixed location's position as it stands in the file.
ExitStatus addFavorite(CommandLine& line, const std::string& name,
                       const std::optional<std::string>& place);
/// Favourites are counted from 1.
ExitStatus removeFavorite(CommandLine& line, long long number);
ExitStatus chooseFavorite(CommandLine& line, long long number);
ExitStatus renameFavorite(CommandLine& line, long long number, const std::string& name);
/// The favourite becomes number `to`.
ExitStatus moveFavorite(CommandLine& line, long long from, long long to);
/// On standard output, as GPX when no format is given, or to a file that is not there yet.
ExitStatus exportFavoritesTo(CommandLine& line, const std::optional<std::string>& format,
                             const std::optional<std::string>& file);
ExitStatus importFavoritesFrom(CommandLine& line, const std::string& file);

/// Everything that stands in the whitelist file.
ExitStatus listWhitelist(CommandLine& line);
/// Turns the tick of one application over, installed here or not.
ExitStatus toggleWhitelist(CommandLine& line, const std::string& identifier);
/// Ticks that were kept under names.
ExitStatus listWhitelistSets(CommandLine& line);
ExitStatus saveWhitelistSet(CommandLine& line, const std::string& name);
ExitStatus useWhitelistSet(CommandLine& line, const std::string& name);
ExitStatus removeWhitelistSet(CommandLine& line, const std::string& name);
/// The installed applications with their ticks.
ExitStatus listApplications(CommandLine& line);

/// What somebody who has typed so much may come to mean.
ExitStatus suggestPlaces(CommandLine& line, const std::string& text,
                         const std::optional<std::string>& near, int limit);
ExitStatus searchPlaces(CommandLine& line, const std::string& text,
                        const std::optional<std::string>& near, int limit);
ExitStatus showAddress(CommandLine& line, const std::string& place);

/// In what form a planned route is shown.
enum class RouteForm { Summary, GeoJson, Profile };

/// A drive as it was typed: two PLACEs and two TIMEs.
struct Drive {
  std::string from;
  std::string to;
  std::string start = "now";
  std::string end = {};
};

ExitStatus planRoute(CommandLine& line, const Drive& drive, RouteForm form);

ExitStatus turnRouteOn(CommandLine& line, const Drive& drive);
ExitStatus turnRouteOff(CommandLine& line);
ExitStatus showRoutePosition(CommandLine& line, const std::string& time);

ExitStatus listRegions(CommandLine& line);
/// Named after the file when no name is given.
ExitStatus importRegionFile(CommandLine& line, const std::string& file,
                            const std::optional<std::string>& name);
ExitStatus removeRegion(CommandLine& line, const std::string& name);

}  // namespace wayloom
