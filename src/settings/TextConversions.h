#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "geo/Coordinate.h"
#include "settings/PropertyList.h"

namespace wayloom {

// The settings files keep flags and numbers as texts. These are the only conversions between the
// two; none of them depends on the process's locale. Any thread may call them.

/// "0" or "1".
std::string formatFlag(bool on);

/// Six digits after the decimal point, no exponent: 48.858370. Not-a-number and infinities read
/// "nan", "-nan", "inf", "-inf".
std::string formatReal(double value);
/// Latitude and longitude for a person: "57.706547, 11.967100".
std::string coordinateText(Coordinate coordinate);

// Readers are lenient: white space may lead, a sign may follow, whatever stands behind the value is
// ignored, and a text that holds no value reads as false or 0.

/// True when the text, behind white space, one sign and zeros, goes on with 1 to 9, Y, y, T or t.
bool boolValue(std::string_view text);
/// The leading decimal integer, held within the range of 32 bits.
std::int32_t intValue(std::string_view text);
/// The leading decimal number, with fraction and exponent; infinite when it is too large. Words
/// ("nan", "inf") and hexadecimal forms are no numbers here.
double doubleValue(std::string_view text);

// The same for a value of a file. Texts read as above, numbers and booleans by their value, numbers
// beyond 32 bits held within the range; null and every other type read as false or 0.
bool boolValue(const PropertyList* value);
std::int32_t intValue(const PropertyList* value);
double doubleValue(const PropertyList* value);

}  // namespace wayloom
