#pragma once

#include <string_view>

#include "settings/PropertyListFormat.h"

namespace wayloom {

/// Reads an XML property list. No entity is ever fetched or defined: a document type with
/// declarations of its own is damage. Any thread may call it.
ParsedPropertyList parseXmlPropertyList(std::string_view bytes);

}  // namespace wayloom
