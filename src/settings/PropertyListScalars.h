#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "settings/PropertyList.h"

namespace wayloom {

// The texts by which an XML property list stands for single values. Each reader gives nothing for a
// text that is not wholly such a value; white space around it is allowed. Any thread may call them.

std::optional<PropertyList> integerFromText(std::string_view text);
std::optional<double> realFromText(std::string_view text);
std::optional<PropertyList::Date> dateFromText(std::string_view text);
std::optional<PropertyList::Data> dataFromText(std::string_view text);

std::string textFromReal(double value);
std::string textFromDate(PropertyList::Date date);
/// Base64, without line breaks.
std::string textFromData(const PropertyList::Data& data);

}  // namespace wayloom
