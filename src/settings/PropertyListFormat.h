#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "settings/PropertyList.h"

namespace wayloom {

// What a property list may hold. Files come from other programs and other people; the limits keep
// any of them from taking the process's stack, memory or time.
inline constexpr std::size_t kMaximumPropertyListBytes = std::size_t{64} << 20;
inline constexpr std::size_t kMaximumPropertyListDepth = 512;
inline constexpr std::size_t kMaximumPropertyListValues = std::size_t{2} << 20;

/// The value that bytes stand for, or one line that says why they stand for none.
struct [[nodiscard]] ParsedPropertyList {
  std::optional<PropertyList> value;
  std::string damage;
};

/// Reads a property list in XML or binary form, whichever the bytes are. Anything that could not be
/// kept whole when it is written back (unknown elements, a key without a value, bad base64, a
/// second root) is damage, so that the file is set aside before it is replaced. Any thread may call
/// it.
ParsedPropertyList parsePropertyList(std::string_view bytes);

/// The bytes of an XML property list, or one line that says why there are none: the value exceeds
/// a limit above, so the file could not be read again.
struct [[nodiscard]] SerializedPropertyList {
  std::optional<std::string> bytes;
  std::string problem;
};

/// Writes `value` in XML form, the same bytes for the same value in every locale.
///
/// The result always reads back. What XML cannot hold is replaced: each byte that is not UTF-8 and
/// each character that XML 1.0 forbids (such as U+0001 or U+FFFE) by U+FFFD, in keys too, where a
/// key that thereby equals another is made different by further U+FFFDs. Reals read back to the
/// last bit. Dates lose fractions of a second and are held within the years 0 to 9999. An unsigned
/// number that fits a signed one reads back as signed. Any thread may call it.
SerializedPropertyList serializePropertyList(const PropertyList& value);

/// A value's XML made beforehand, as it stands within a dictionary at the root: for values that are
/// large and written often. Immutable.
struct PreparedEntry {
  std::string key;
  std::string bytes;
  /// How many values it counts as.
  std::size_t values = 0;
  /// Why there are no bytes: a limit is exceeded.
  std::string problem;
};

PreparedEntry prepareEntry(std::string key, const PropertyList& value);
/// The same for an array whose `count` values are made one at a time.
PreparedEntry prepareEntry(std::string key, std::size_t count,
                           const std::function<PropertyList(std::size_t index)>& valueAt);

/// The same as serializing `entries` with the prepared entry among them, which replaces one of the
/// same key; costs little more than a copy of its bytes.
SerializedPropertyList serializeWith(const PreparedEntry& prepared,
                                     const PropertyList::Dictionary& entries);

}  // namespace wayloom
