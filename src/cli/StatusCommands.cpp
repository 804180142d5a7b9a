#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "cli/TimeArgument.h"
#include "fixed/FixedStatus.h"
#include "route/DriveStatus.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

const char* nameOf(Mode mode) {
  return mode == Mode::FixedLocation ? "fixed" : "route";
}

/// What the files say, as one reading of them.
struct Reading {
  Mode mode;
  FixedLocationState fixed;
  RoutePreferences route;
};

Result<Reading> readFiles(CommandLine& line) {
  SettingsFiles& files = line.files();
  const auto mode = files.readMasterMode();
  if (!mode) return mode.failure();
  const auto fixed = readFixedLocation(files);
  if (!fixed) return fixed.failure();
  auto route = RouteFile(files).load();
  if (!route) return route.failure();
  return Reading{*mode, *fixed, std::move(*route)};
}

std::string fixedText(const FixedLocationState& fixed) {
  const std::string onOff = fixed.enabled ? "on" : "off";
  if (!isOnGlobe(fixed.coordinate)) return onOff + " at a position that is not on the globe";
  return fixed.hasCoordinate ? onOff + " at " + coordinateText(fixed.coordinate) : onOff;
}

std::string driftText(const FixedLocationState& fixed) {
  return std::string(fixed.drifting ? "on" : "off") + ", speed " + shortNumber(fixed.driftSpeed);
}

std::string routeText(const RoutePreferences& route) {
  if (!route.enabled()) return "off";
  return "on from " + oneLine(route.startText()) + " to " + oneLine(route.endText()) + ", " +
         timeText(route.writtenStart()) + " to " + timeText(route.writtenEnd());
}

/// Where the phone says it is; none for the device's own position.
std::optional<Coordinate> positionNow(const Reading& status) {
  if (status.fixed.enabled) {
    return status.fixed.hasCoordinate ? std::optional(status.fixed.coordinate) : std::nullopt;
  }
  if (!status.route.enabled()) return std::nullopt;
  return positionAt(SystemClock().wholeSecondsSince1970(), status.route);
}

nlohmann::json toJson(const std::optional<Coordinate>& coordinate) {
  return coordinate ? toJson(*coordinate) : nlohmann::json();
}

nlohmann::json toJson(const FixedLocationState& fixed) {
  return {{"enabled", fixed.enabled},
          {"position", fixed.hasCoordinate ? toJson(fixed.coordinate) : nlohmann::json()},
          {"drift", fixed.drifting},
          {"speed", fixed.driftSpeed}};
}

nlohmann::json toJson(const RoutePreferences& route) {
  nlohmann::json json = {{"enabled", route.enabled()}};
  if (!route.enabled()) return json;
  json.update({{"from", route.startText()},
               {"to", route.endText()},
               {"start", static_cast<std::int64_t>(route.writtenStart())},
               {"end", static_cast<std::int64_t>(route.writtenEnd())},
               {"points", route.points ? route.points->count() : 0}});
  return json;
}

/// The words of a window's status line.
std::string statusText(const Reading& status, const std::string& address) {
  const std::int32_t now = SystemClock().wholeSecondsSince1970();
  return oneLine(englishText(fixedStatus(status.fixed, address, statusWhileOn(now, status.route))));
}

/// The address of the fixed position while that is on; empty when none is known.
std::string addressOf(CommandLine& line, const FixedLocationState& fixed) {
  if (!fixed.enabled || !fixed.hasCoordinate) return {};
  return firstFormattedLine(reverseGeocodeNow(line, fixed.coordinate)).value_or("");
}

std::string positionText(const Reading& status) {
  if (const auto position = positionNow(status)) return coordinateText(*position);
  return status.fixed.enabled || status.route.enabled() ? "unknown" : "the device's own";
}

Answer answerOf(const Reading& status, const std::string& address) {
  const std::string words = statusText(status, address);
  nlohmann::json json = {{"status", words},
                         {"mode", nameOf(status.mode)},
                         {"fixed", toJson(status.fixed)},
                         {"route", toJson(status.route)},
                         {"position", toJson(positionNow(status))}};
  std::string text = "status    " + words + "\nmode      " + nameOf(status.mode) + "\nfixed     " +
                     fixedText(status.fixed) + "\ndrift     " + driftText(status.fixed) +
                     "\nroute     " + routeText(status.route) + "\nposition  " +
                     positionText(status);
  return {std::move(text), std::move(json)};
}

}  // namespace

ExitStatus showStatus(CommandLine& line) {
  const auto reading = readFiles(line);
  if (!reading) return line.fail(reading.failure());
  return line.answer(answerOf(*reading, addressOf(line, reading->fixed)));
}

ExitStatus answerDone(CommandLine& line) {
  const auto reading = readFiles(line);
  if (reading) return line.answer(answerOf(*reading, addressOf(line, reading->fixed)));
  line.warn("it is done, but " + reading.message());
  return line.answer({"done", {{"done", true}}});
}

ExitStatus showMode(CommandLine& line) {
  const auto mode = line.files().readMasterMode();
  if (!mode) return line.fail(mode.failure());
  return line.answer({nameOf(*mode), {{"mode", nameOf(*mode)}}});
}

ExitStatus switchMode(CommandLine& line, Mode mode) {
  const Status switched = switchToMode(line.files(), mode);
  if (!switched) return line.fail(switched.failure());
  return line.answer({nameOf(mode), {{"mode", nameOf(mode)}}});
}

}  // namespace wayloom
