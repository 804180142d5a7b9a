#pragma once

#include "settings/PropertyListFormat.h"

namespace wayloom {

/// Writes one value as an XML property list, as serializePropertyList says. One writer writes one
/// document.
class PropertyListXmlWriter {
 public:
  SerializedPropertyList write(const PropertyList& value);

 private:
  void append(const PropertyList& value, std::size_t depth);
  void appendArray(const PropertyList::Array& array, std::size_t depth);
  void appendDictionary(const PropertyList::Dictionary& dictionary, std::size_t depth);
  void appendUid(PropertyList::Uid uid, std::size_t depth);
  void appendElement(std::string_view name, std::string_view text);
  void beginLine(std::size_t depth);
  bool isWithinLimits(std::size_t depth);

  std::string mOutput;
  std::string mProblem;
  std::size_t mValues = 0;
};

}  // namespace wayloom
