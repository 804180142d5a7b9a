#pragma once

#include <string_view>

#include <QtCore/QString>

namespace wayloom {

/// A text from outside as a row of a list can show it: one line, and no longer than any row is
/// wide, since laying out thousands of characters only to elide them would stop the scrolling.
QString shownText(std::string_view utf8);

}  // namespace wayloom
