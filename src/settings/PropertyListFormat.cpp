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

PreparedEntry prepareEntry(std::string key, const PropertyList& value) {
  return PropertyListXmlWriter().prepare(std::move(key), value);
}

PreparedEntry prepareEntry(std::string key, std::size_t count,
                           const std::function<PropertyList(std::size_t index)>& valueAt) {
  return PropertyListXmlWriter().prepare(std::move(key), count, valueAt);
}

SerializedPropertyList serializeWith(const PreparedEntry& prepared,
                                     const PropertyList::Dictionary& entries) {
  return PropertyListXmlWriter().write(entries, prepared);
}

}  // namespace wayloom
