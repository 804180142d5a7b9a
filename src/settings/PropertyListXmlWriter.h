#pragma once

#include "settings/PropertyListFormat.h"

namespace wayloom {

/// Writes one value as an XML property list, as serializePropertyList says. One writer writes one
/// document.
class PropertyListXmlWriter {
 public:
  SerializedPropertyList write(const PropertyList& value);
  /// A dictionary and, in its key's place, an entry that was made before.
  SerializedPropertyList write(const PropertyList::Dictionary& entries,
                               const PreparedEntry& prepared);
  PreparedEntry prepare(std::string key, const PropertyList& value);
  PreparedEntry prepare(std::string key, std::size_t count,
                        const std::function<PropertyList(std::size_t index)>& valueAt);

 private:
  void append(const PropertyList& value, std::size_t depth);
  template <typename ValueAt>
  void appendArray(std::size_t count, const ValueAt& valueAt, std::size_t depth);
  void appendDictionary(const PropertyList::Dictionary& dictionary, std::size_t depth);
  void appendKey(std::string_view key, std::size_t depth);
  void appendPrepared(const PreparedEntry& prepared);
  SerializedPropertyList finished();
  void appendUid(PropertyList::Uid uid, std::size_t depth);
  void appendElement(std::string_view name, std::string_view text);
  void beginLine(std::size_t depth);
  bool isWithinLimits(std::size_t depth);

  std::string mOutput;
  std::string mProblem;
  std::size_t mValues = 0;
  /// What is still to come into the dictionary at the root.
  const PreparedEntry* mPrepared = nullptr;
};

}  // namespace wayloom
