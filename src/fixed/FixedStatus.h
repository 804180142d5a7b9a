#pragma once

#include <optional>
#include <string>

#include "fixed/FixedLocation.h"
#include "settings/Phrase.h"

namespace wayloom {

/// What was asked for and stands in no file.
struct FixedActivity {
  enum class Kind {
    None,
    Searching,
    /// The search for `searched` has turned the position off and found nothing.
    NothingFound,
    /// The switch was touched while there was no file to write into.
    TouchAgain
  };
  Kind kind = Kind::None;
  std::string searched = {};
};

/// What a status line says of the fixed position, or of the drive where only that is on. `address`
/// is that of the position in the file; while it is not known, the position itself is named.
/// `drive` is what is said of a drive that is on, none while it is off: nothing here turns both on,
/// but a file that somebody edits can.
Phrase fixedStatus(const FixedLocationState& state, const std::string& address,
                   const std::optional<Phrase>& drive = std::nullopt,
                   const FixedActivity& activity = {});

}  // namespace wayloom
