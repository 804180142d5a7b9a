#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "cli/TimeArgument.h"
#include "route/RouteSimulation.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kPatience{60};

DirectionsAnswer directionsNow(CommandLine& line, const DirectionsRequest& request) {
  std::optional<DirectionsAnswer> answer;
  line.directions().calculate(request,
                              [&answer](const DirectionsAnswer& given) { answer = given; });
  if (!line.loop().runUntil([&] { return answer.has_value(); }, kPatience)) {
    return {{}, "the planning took too long"};
  }
  return std::move(*answer);
}

std::string distanceText(double metres) {
  if (metres < 1000) return std::to_string(std::lround(metres)) + " m";
  const long tenths = std::lround(metres / 100);
  return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " km";
}

std::string durationText(double seconds) {
  const long whole = std::lround(seconds);
  return whole < 60 ? std::to_string(whole) + " s"
                    : std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
}

Answer summaryOf(const DirectionsRoute& route) {
  nlohmann::json points = nlohmann::json::array();
  for (const Coordinate& position : route.polyline) points.push_back(toJson(position));
  return {distanceText(route.distanceMetres) + ", " + durationText(route.expectedSeconds) + ", " +
              std::to_string(route.polyline.size()) + " points\nfrom " +
              coordinateText(route.polyline.front()) + "\nto   " +
              coordinateText(route.polyline.back()),
          {{"metres", route.distanceMetres},
           {"seconds", route.expectedSeconds},
           {"points", std::move(points)}}};
}

Answer geoJsonOf(const DirectionsRoute& route) {
  nlohmann::json positions = nlohmann::json::array();
  for (const auto& [latitude, longitude] : route.polyline) {
    positions.push_back({longitude, latitude});
  }
  nlohmann::json feature = {
      {"type", "Feature"},
      {"properties", {{"metres", route.distanceMetres}, {"seconds", route.expectedSeconds}}},
      {"geometry", {{"type", "LineString"}, {"coordinates", std::move(positions)}}}};
  std::string text = feature.dump();
  return {std::move(text), std::move(feature)};
}

/// Understands both places of a drive; the status, already reported, when one cannot be had.
std::optional<ExitStatus> resolveBoth(CommandLine& line, const std::string& from,
                                      const std::string& to, DirectionsRequest& request) {
  for (const auto& [argument, coordinate] :
       {std::pair(&from, &request.source), std::pair(&to, &request.destination)}) {
    const ResolvedPlace resolved = resolvePlace(line, *argument);
    if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
    *coordinate = std::get<GeocodedPlace>(resolved).coordinate;
  }
  return std::nullopt;
}

std::string addressOf(CommandLine& line, Coordinate coordinate) {
  const GeocoderAnswer found = reverseGeocodeNow(line, coordinate);
  const bool isKnown = found.places && !found.places->empty() &&
                       !found.places->front().formattedAddressLines.empty();
  return isKnown ? found.places->front().formattedAddressLines.front() : "Unknow";
}

ExitStatus refuseTime(CommandLine& line, const std::string& text) {
  return line.wrongUsage("'" + text +
                         "' is no time: give 2026-11-23T08:30, now, +30m or seconds since 1970");
}

}  // namespace

ExitStatus planRoute(CommandLine& line, const std::string& from, const std::string& to,
                     RouteForm form) {
  DirectionsRequest request;
  if (const auto status = resolveBoth(line, from, to, request)) return *status;
  const DirectionsAnswer found = directionsNow(line, request);
  if (found.error) return line.fail("no route: " + *found.error);
  const DirectionsRoute& route = found.routes.front();
  return line.answer(form == RouteForm::GeoJson ? geoJsonOf(route) : summaryOf(route));
}

ExitStatus turnRouteOn(CommandLine& line, const Drive& drive) {
  const SystemClock clock;
  const auto start = parseTime(drive.start, clock.secondsSince1970());
  if (!start) return refuseTime(line, drive.start);
  const auto end = parseTime(drive.end, clock.secondsSince1970());
  if (!end) return refuseTime(line, drive.end);
  DirectionsRequest request;
  if (const auto status = resolveBoth(line, drive.from, drive.to, request)) return *status;

  line.takeTurn();
  RouteSimulation simulation(line.files(), clock);
  simulation.refresh();
  if (const char* refusal = simulation.refusalToLeave()) return line.fail(refusal);
  RouteChoices choices{.start = request.source,
                       .end = request.destination,
                       .startTime = *start,
                       .endTime = *end,
                       .startText = addressOf(line, request.source),
                       .endText = addressOf(line, request.destination)};
  const DirectionsAnswer found = directionsNow(line, request);
  auto points = std::make_shared<RoutePoints>(
      found.error ? RoutePoints() : RoutePoints::planned(found.routes.front().polyline));
  if (const char* refusal = refusalToTurnOn(choices, *points, found.error.has_value())) {
    const bool isPlan = refusal == kPathPlanningFailure && found.error;
    return line.fail(isPlan ? refusal + (" (" + *found.error + ")") : refusal);
  }
  choices.startTime = startTimeFrom(choices, simulation.now());
  if (const Status switched = switchToMode(line.files(), Mode::Route); !switched) {
    return line.fail(switched.message());
  }
  const Status on = simulation.turnOn(choices, std::move(points));
  return on ? showStatus(line) : line.fail(on.message());
}

ExitStatus turnRouteOff(CommandLine& line) {
  line.takeTurn();
  const SystemClock clock;
  RouteSimulation simulation(line.files(), clock);
  simulation.refresh();
  if (!simulation.preferences().enabled()) return showStatus(line);
  const Status off = simulation.turnOff();
  return off ? showStatus(line) : line.fail(off.message());
}

ExitStatus showRoutePosition(CommandLine& line, const std::string& time) {
  const double now = SystemClock().secondsSince1970();
  const auto at = parseTime(time, now);
  if (!at) return refuseTime(line, time);
  line.warnOfDamage(SettingsFile::Route);
  const RoutePreferences preferences = RouteFile(line.files()).load();
  const auto position = positionAt(static_cast<std::int32_t>(*at), preferences);
  if (!position) return line.fail("there is no drive: use 'route on' first");
  return line.answer(
      {coordinateText(*position) + "  " + timeText(*at) +
           (preferences.enabled() ? "" : "  (the drive is off)"),
       {{"position", toJson(*position)}, {"time", *at}, {"enabled", preferences.enabled()}}});
}

}  // namespace wayloom
