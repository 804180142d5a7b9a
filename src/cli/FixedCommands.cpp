#include <cmath>

#include "cli/Commands.h"
#include "cli/PlaceArgument.h"
#include "cli/TextForms.h"
#include "fixed/FixedLocation.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

ExitStatus finish(CommandLine& line, const Status& result) {
  return result ? answerDone(line) : line.fail(result.failure());
}

/// Calls `change` with the fixed position's operations and the settings as they stand in the file
/// now, in one turn, and answers when that is over.
template <typename Change>
ExitStatus changeFixed(CommandLine& line, ChangeNotice& notice, Change&& change) {
  return finish(line, [&]() -> Status {
    const auto turn = line.files().takeTurn();
    if (!turn) return turn.failure();
    FixedLocation fixed(line.files(), notice);
    const auto state = fixed.refresh();
    if (!state) return state.failure();
    if (state->hasCoordinate) fixed.setCoordinate(state->coordinate);
    return change(fixed, *state);
  }());
}

/// Stands in for a notice that was posted already.
class PostedNotice : public ChangeNotice {
 public:
  void post(std::string_view /*name*/) noexcept override {}
};

/// The same for a switch, whose notice comes first: before the turn, since a bus may keep it
/// waiting, and only if `check` lets the change be tried, which is asked again in the turn.
template <typename Check, typename Change>
ExitStatus switchFixed(CommandLine& line, Check&& check, Change&& change) {
  const auto before = readFixedLocation(line.files());
  if (!before) return line.fail(before.failure());
  if (const Status possible = check(*before); !possible) return line.fail(possible.failure());
  line.notice().post(kChangeNoticeName);
  PostedNotice posted;
  return changeFixed(line, posted,
                     [&](FixedLocation& fixed, const FixedLocationState& state) -> Status {
                       Status possible = check(state);
                       return possible ? change(fixed, state) : possible;
                     });
}

Status anyState(const FixedLocationState& /*state*/) {
  return done();
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
  const auto check = [&](const FixedLocationState& state) -> Status {
    if (chosen || state.hasCoordinate) return checkOtherIsOff(line.files(), Mode::FixedLocation);
    return failed("no position was chosen yet: give one, as in 'fixed on 57.7,11.97'");
  };
  return switchFixed(line, check, [&](FixedLocation& fixed, const FixedLocationState& /*state*/) {
    if (chosen) fixed.setCoordinate(*chosen);
    Status entered = enterMode(line.files(), Mode::FixedLocation);
    return entered ? fixed.setEnable(true) : entered;
  });
}

ExitStatus turnFixedOff(CommandLine& line) {
  const auto before = readFixedLocation(line.files());
  if (!before || !before->enabled) return finish(line, before.status());
  return switchFixed(line, anyState, [](FixedLocation& fixed, const FixedLocationState& state) {
    return state.enabled ? fixed.setEnable(false) : done();
  });
}

ExitStatus moveFixed(CommandLine& line, const std::string& place) {
  const ResolvedPlace resolved = resolvePlace(line, place);
  if (const auto* status = std::get_if<ExitStatus>(&resolved)) return *status;
  FixedLocation fixed(line.files(), line.notice());
  const Status moved = fixed.centerMoved(std::get<GeocodedPlace>(resolved).coordinate);
  if (moved && !fixed.hasSettings()) {
    const bool isDamaged = line.files().file(SettingsFile::Location).damage().has_value();
    return line.fail(std::string(isDamaged ? "a damaged location file is not moved"
                                           : "there is no location file to move") +
                     ", so nothing was written: use 'fixed on PLACE' first");
  }
  return finish(line, moved);
}

ExitStatus setDrift(CommandLine& line, bool on, std::optional<double> speed) {
  if (speed && !isSpeed(*speed)) return refuseSpeed(line);
  return switchFixed(line, anyState, [&](FixedLocation& fixed, const FixedLocationState& state) {
    const double shown = speed.value_or(sliderSpeed(state.driftSpeed));
    return fixed.setAuto(on, static_cast<float>(shown));
  });
}

ExitStatus setDriftSpeed(CommandLine& line, double speed) {
  if (!isSpeed(speed)) return refuseSpeed(line);
  PostedNotice none;
  return changeFixed(
      line, none, [&](FixedLocation& fixed, const FixedLocationState& state) -> Status {
        if (state.drifting) return fixed.autoSlide(true, static_cast<float>(speed));
        return failed("the slider is locked while drift is off: use 'fixed drift on --speed S'");
      });
}

}  // namespace wayloom
