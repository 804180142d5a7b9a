#pragma once

#include <QtCore/QString>

#include "geo/Coordinate.h"

namespace wayloom {

/// Puts "LATITUDE, LONGITUDE" on the clipboard. The hint that says so, empty when the clipboard
/// does not hold it.
QString copiedPosition(Coordinate position);

}  // namespace wayloom
