#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/Table.h"
#include "cli/TextForms.h"
#include "cli/TimeArgument.h"
#include "route/DriveStatus.h"
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

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + oneLine(name);
  return text;
}

Answer summaryOf(const Route& route) {
  nlohmann::json points = nlohmann::json::array();
  for (const Coordinate& position : route.geometry) points.push_back(toJson(position));
  const PlannedDrive planned{false, route.distanceMetres, route.expectedSeconds};
  return {englishText(choiceStatus(0, {}, planned)) + ", " + std::to_string(route.geometry.size()) +
              " points\nfrom " + coordinateText(route.polyline.front()) + "\nto   " +
              coordinateText(route.polyline.back()) + "\nin   " + joined(route.regions),
          {{"metres", route.distanceMetres},
           {"seconds", route.expectedSeconds},
           {"regions", route.regions},
           {"positions", route.polyline.size()},
           {"points", std::move(points)}}};
}

Answer geoJsonOf(const Route& route) {
  nlohmann::json positions = nlohmann::json::array();
  for (const auto& [latitude, longitude] : route.geometry) {
    positions.push_back({longitude, latitude});
  }
  nlohmann::json feature = {
      {"type", "Feature"},
      {"properties",
       {{"metres", route.distanceMetres},
        {"seconds", route.expectedSeconds},
        {"regions", route.regions}}},
      {"geometry", {{"type", "LineString"}, {"coordinates", std::move(positions)}}}};
  std::string text = feature.dump();
  return {std::move(text), std::move(feature)};
}

Answer profileOf(const Route& route) {
  const auto hundredths = [](double value) { return std::round(value * 100) / 100; };
  Table table;
  for (std::size_t at = 0; at < route.passages.size(); ++at) {
    const RoutePassage& passage = route.passages[at];
    nlohmann::json json = toJson(route.geometry[at]);
    std::vector<std::string> cells;
    for (const auto& [name, value] : {std::pair("seconds", passage.seconds),
                                      {"metres", passage.metres},
                                      {"kmPerHour", passage.metresPerSecond * 3.6},
                                      {"waitSeconds", passage.waitSeconds}}) {
      json[name] = hundredths(value);
      cells.push_back(json[name].dump());
    }
    cells.push_back(coordinateText(route.geometry[at]));
    table.add(cells, std::move(json));
  }
  return std::move(table).orNote("the drive has no profile");
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
  return firstFormattedLine(reverseGeocodeNow(line, coordinate)).value_or("Unknow");
}

ExitStatus refuseTime(CommandLine& line, const std::string& text) {
  return line.wrongUsage(inQuotes(text) +
                         " is no time: give 2026-11-23T08:30, now, +30m or seconds since 1970");
}

}  // namespace

ExitStatus planRoute(CommandLine& line, const Drive& drive, RouteForm form) {
  DirectionsRequest request;
  request.startTime = parseTime(drive.start, SystemClock().secondsSince1970());
  if (!request.startTime) return refuseTime(line, drive.start);
  if (const auto status = resolveBoth(line, drive.from, drive.to, request)) return *status;
  const DirectionsAnswer found = directionsNow(line, request);
  if (found.error) return line.fail("no route: " + *found.error);
  const Route& route = found.routes.front();
  switch (form) {
    case RouteForm::GeoJson:
      return line.answer(geoJsonOf(route));
    case RouteForm::Profile:
      return line.answer(profileOf(route));
    case RouteForm::Summary:
      break;
  }
  return line.answer(summaryOf(route));
}

ExitStatus turnRouteOn(CommandLine& line, const Drive& drive) {
  const SystemClock clock;
  const auto start = parseTime(drive.start, clock.secondsSince1970());
  if (!start) return refuseTime(line, drive.start);
  const auto end = parseTime(drive.end, clock.secondsSince1970());
  if (!end) return refuseTime(line, drive.end);
  DirectionsRequest request;
  request.startTime = *start;
  if (const auto status = resolveBoth(line, drive.from, drive.to, request)) return *status;

  RouteSimulation simulation(line.files(), clock);
  if (const Status read = simulation.refresh(); !read) return line.fail(read.failure());
  if (const char* refusal = simulation.refusalToLeave()) return line.fail(refusal);
  const RouteChoices choices{.start = request.source,
                             .end = request.destination,
                             .startTime = *start,
                             .endTime = *end,
                             .startText = addressOf(line, request.source),
                             .endText = addressOf(line, request.destination)};
  const DirectionsAnswer found = directionsNow(line, request);
  const auto points = std::make_shared<RoutePoints>(
      found.error ? RoutePoints() : RoutePoints::planned(found.routes.front().polyline));
  std::optional<std::string> problem;
  simulation.turnOn(choices, points, found.error.has_value(), [&](const Result<double>& startTime) {
    if (!startTime) problem = startTime.message();
  });
  if (problem == kPathPlanningFailure && found.error) *problem += " (" + *found.error + ")";
  return problem ? line.fail(*problem) : answerDone(line);
}

ExitStatus turnRouteOff(CommandLine& line) {
  const SystemClock clock;
  RouteSimulation simulation(line.files(), clock);
  Status off = simulation.refresh();
  if (off && simulation.preferences().enabled()) {
    simulation.turnOff([&](const Status& status) { off = status; });
  }
  return off ? answerDone(line) : line.fail(off.failure());
}

ExitStatus showRoutePosition(CommandLine& line, const std::string& time) {
  const double now = SystemClock().secondsSince1970();
  const auto at = parseTime(time, now);
  if (!at) return refuseTime(line, time);
  const auto route = RouteFile(line.files()).load();
  if (!route) return line.fail(route.failure());
  const auto position = positionAt(wholeSeconds(*at), *route);
  if (!position) return line.fail("there is no drive: use 'route on' first");
  return line.answer(
      {coordinateText(*position) + "  " + timeText(*at) +
           (route->enabled() ? "" : "  (the drive is off)"),
       {{"position", toJson(*position)}, {"time", *at}, {"enabled", route->enabled()}}});
}

}  // namespace wayloom
