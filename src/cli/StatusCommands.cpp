#include "cli/Commands.h"
#include "cli/TextForms.h"
#include "fixed/FixedLocation.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

const char* nameOf(Mode mode) {
  return mode == Mode::FixedLocation ? "fixed" : "route";
}

nlohmann::json toJson(Coordinate coordinate) {
  return {{"latitude", coordinate.latitude}, {"longitude", coordinate.longitude}};
}

/// What the files say, as one reading of them.
struct Reading {
  Mode mode;
  FixedLocationState fixed;
  bool routeEnabled;
};

Reading readFiles(CommandLine& line) {
  SettingsFiles& files = line.files();
  const auto route = files.loadDictionary(SettingsFile::Route);
  return {files.readMasterMode(), readFixedLocation(files),
          route && refusalToLeave(Mode::Route, *route) != nullptr};
}

std::string fixedText(const FixedLocationState& fixed) {
  const std::string onOff = fixed.enabled ? "on" : "off";
  return fixed.hasCoordinate ? onOff + " at " + coordinateText(fixed.coordinate) : onOff;
}

std::string driftText(const FixedLocationState& fixed) {
  return std::string(fixed.drifting ? "on" : "off") + ", speed " + shortNumber(fixed.driftSpeed);
}

}  // namespace

ExitStatus showStatus(CommandLine& line) {
  for (const SettingsFile name :
       {SettingsFile::Master, SettingsFile::Location, SettingsFile::Route}) {
    line.warnOfDamage(name);
  }
  const Reading status = readFiles(line);
  const FixedLocationState& fixed = status.fixed;
  nlohmann::json json = {
      {"mode", nameOf(status.mode)},
      {"fixed",
       {{"enabled", fixed.enabled},
        {"position", fixed.hasCoordinate ? toJson(fixed.coordinate) : nlohmann::json()},
        {"drift", fixed.drifting},
        {"speed", fixed.driftSpeed}}},
      {"route", {{"enabled", status.routeEnabled}}},
      {"position",
       fixed.enabled && fixed.hasCoordinate ? toJson(fixed.coordinate) : nlohmann::json()},
  };
  std::string text = std::string("mode      ") + nameOf(status.mode) + "\nfixed     " +
                     fixedText(fixed) + "\ndrift     " + driftText(fixed) + "\nroute     " +
                     (status.routeEnabled ? "on" : "off") + "\nposition  " +
                     (fixed.enabled ? coordinateText(fixed.coordinate) : "the device's own");
  return line.answer({std::move(text), std::move(json)});
}

ExitStatus showMode(CommandLine& line) {
  const char* mode = nameOf(line.files().readMasterMode());
  return line.answer({mode, {{"mode", mode}}});
}

ExitStatus switchMode(CommandLine& line, Mode mode) {
  const Status switched = switchToMode(line.files(), mode);
  return switched ? showMode(line) : line.fail(switched.message());
}

}  // namespace wayloom
