#pragma once

#include <optional>

#include "route/RouteSimulation.h"
#include "settings/Phrase.h"

namespace wayloom {

/// How much of a drive's time is over at `now`, 0 to 1, as its 32 bits say; none unless it is on
/// and has a path.
std::optional<double> progressAt(std::int32_t now, const RoutePreferences& preferences);

/// What a status line says of the drive as its file holds it.
Phrase driveStatus(std::int32_t now, const RoutePreferences& preferences);
/// The same of a drive that is on; none while it is off.
std::optional<Phrase> statusWhileOn(std::int32_t now, const RoutePreferences& preferences);

/// What came of the last plan.
struct PlannedDrive {
  bool hasFailed = false;
  double metres = 0;
  double seconds = 0;
};

/// What a status line says while a drive is being chosen; `planned` is none before the first plan.
/// The time given is what would be left if it were turned on `now`.
Phrase choiceStatus(std::int32_t now, const RouteChoices& choices,
                    const std::optional<PlannedDrive>& planned);

}  // namespace wayloom
