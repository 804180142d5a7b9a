#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "fixed/FixedLocation.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

/// The fixed position's operations with the settings as they stand in the file now.
struct OpenFixedLocation {
  explicit OpenFixedLocation(CommandLine& line) : operations(line.files(), line.notice()) {
    line.takeTurn();
    state = operations.refresh();
    operations.setCoordinate(state.coordinate);
  }

  FixedLocation operations;
  FixedLocationState state;
};

ExitStatus finish(CommandLine& line, const Status& result) {
  return result ? showStatus(line) : line.fail(result.message());
}

bool isSpeed(double speed) {
  return speed >= kDriftSpeedMinimum && speed <= kDriftSpeedMaximum;
}

ExitStatus refuseSpeed(CommandLine& line) {
  return line.wrongUsage("the speed must be a number from " + shortNumber(kDriftSpeedMinimum) +
                         " (slow) to " + shortNumber(kDriftSpeedMaximum) + " (fast)");
}

}  // namespace

ExitStatus turnFixedOn(CommandLine& line, const std::optional<std::string>& place) {
  // A search takes time; the files are read when it is over.
  std::optional<Coordinate> chosen;
  if (place) {
    const ResolvedPlace resolved = resolvePlace(line, *place);
    if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
    chosen = std::get<GeocodedPlace>(resolved).coordinate;
  }
  OpenFixedLocation fixed(line);
  if (!chosen && !fixed.state.hasCoordinate) {
    return line.fail("no position was chosen yet: give one, as in 'fixed on 57.7,11.97'");
  }
  if (chosen) fixed.operations.setCoordinate(*chosen);
  if (const Status switched = switchToMode(line.files(), Mode::FixedLocation); !switched) {
    return line.fail(switched.message());
  }
  return finish(line, fixed.operations.setEnable(true));
}

ExitStatus turnFixedOff(CommandLine& line) {
  OpenFixedLocation fixed(line);
  if (!fixed.state.enabled) return showStatus(line);
  return finish(line, fixed.operations.setEnable(false));
}

ExitStatus moveFixed(CommandLine& line, const std::string& place) {
  const ResolvedPlace resolved = resolvePlace(line, place);
  if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
  line.takeTurn();
  FixedLocation fixed(line.files(), line.notice());
  const Status moved = fixed.centerMoved(std::get<GeocodedPlace>(resolved).coordinate);
  if (!fixed.hasSettings()) {
    return line.fail(
        "there is no location file to move, so nothing was written: "
        "use 'fixed on PLACE' first");
  }
  return finish(line, moved);
}

ExitStatus setDrift(CommandLine& line, bool on, std::optional<double> speed) {
  if (speed && !isSpeed(*speed)) return refuseSpeed(line);
  OpenFixedLocation fixed(line);
  const double shown = speed.value_or(sliderSpeed(fixed.state.driftSpeed));
  return finish(line, fixed.operations.setAuto(on, static_cast<float>(shown)));
}

ExitStatus setDriftSpeed(CommandLine& line, double speed) {
  if (!isSpeed(speed)) return refuseSpeed(line);
  OpenFixedLocation fixed(line);
  if (!fixed.state.drifting) {
    return line.fail("the slider is locked while drift is off: use 'fixed drift on --speed S'");
  }
  return finish(line, fixed.operations.autoSlide(true, static_cast<float>(speed)));
}

}  // namespace wayloom
