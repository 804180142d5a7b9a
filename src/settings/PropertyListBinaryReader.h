#pragma once

#include <string_view>

#include "settings/PropertyListFormat.h"

namespace wayloom {

/// Whether the bytes claim to be a binary property list.
bool isBinaryPropertyList(std::string_view bytes);

/// Reads a binary property list. An object that several others share is counted and copied once for
/// each; the limits hold for the sum, so that a small file cannot grow to fill the memory. Lone
/// surrogates in texts become U+FFFD. Any thread may call it.
ParsedPropertyList parseBinaryPropertyList(std::string_view bytes);

}  // namespace wayloom
