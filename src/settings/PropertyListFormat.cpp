#include "settings/PropertyListFormat.h"

#include "settings/PropertyListBinaryReader.h"
#include "settings/PropertyListXmlReader.h"
#include "settings/PropertyListXmlWriter.h"

namespace wayloom {

ParsedPropertyList parsePropertyList(std::string_view bytes) {
  if (bytes.size() > kMaximumPropertyListBytes) {
    return {std::nullopt, "the file is too large for a property list"};
  }
  return isBinaryPropertyList(bytes) ? parseBinaryPropertyList(bytes) : parseXmlPropertyList(bytes);
}

SerializedPropertyList serializePropertyList(const PropertyList& value) {
  return PropertyListXmlWriter().write(value);
}

}  // namespace wayloom
