#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"

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

nlohmann::json toJson(Coordinate coordinate) {
  return {{"latitude", coordinate.latitude}, {"longitude", coordinate.longitude}};
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

}  // namespace

ExitStatus planRoute(CommandLine& line, const std::string& from, const std::string& to,
                     RouteForm form) {
  DirectionsRequest request;
  for (const auto& [argument, coordinate] :
       {std::pair(&from, &request.source), std::pair(&to, &request.destination)}) {
    const ResolvedPlace resolved = resolvePlace(line, *argument);
    if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
    *coordinate = std::get<GeocodedPlace>(resolved).coordinate;
  }
  const DirectionsAnswer found = directionsNow(line, request);
  if (found.error) return line.fail("no route: " + *found.error);
  const DirectionsRoute& route = found.routes.front();
  return line.answer(form == RouteForm::GeoJson ? geoJsonOf(route) : summaryOf(route));
}

}  // namespace wayloom
