#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace wayloom {

/// One value of a property list: a tree of plain values, copied and compared like any other value.
/// Texts and keys are UTF-8. The type knows nothing of files; see PropertyListFormat and
/// PropertyListFile for those.
class PropertyList {
 public:
  using Array = std::vector<PropertyList>;
  using Dictionary = std::map<std::string, PropertyList, std::less<>>;

  struct Data {
    std::vector<std::uint8_t> bytes;
    bool operator==(const Data&) const = default;
  };

  /// A moment, in seconds since 2001-01-01 00:00 UTC (the property list's own epoch).
  struct Date {
    double seconds = 0;
    bool operator==(const Date&) const = default;
  };

  /// A reference number as keyed archives use it.
  struct Uid {
    std::uint64_t value = 0;
    bool operator==(const Uid&) const = default;
  };

  using Value = std::variant<bool, std::int64_t, std::uint64_t, double, std::string, Data, Date,
                             Uid, Array, Dictionary>;

  PropertyList() : mValue(std::string()) {}
  PropertyList(Value value) : mValue(std::move(value)) {}
  PropertyList(bool value) : mValue(value) {}
  PropertyList(int value) : mValue(std::int64_t{value}) {}
  PropertyList(std::int64_t value) : mValue(value) {}
  PropertyList(std::uint64_t value) : mValue(value) {}
  PropertyList(double value) : mValue(value) {}
  PropertyList(const char* value) : mValue(std::string(value)) {}
  PropertyList(std::string value) : mValue(std::move(value)) {}
  PropertyList(Array value) : mValue(std::move(value)) {}
  PropertyList(Dictionary value) : mValue(std::move(value)) {}

  // Out of line: inlined, a tree's destruction swells every caller, and GCC 12 takes the variant's
  // unused members for uninitialized ones.
  PropertyList(const PropertyList& other);
  PropertyList(PropertyList&& other) noexcept;
  PropertyList& operator=(const PropertyList& other);
  PropertyList& operator=(PropertyList&& other) noexcept;
  ~PropertyList();

  const Value& value() const { return mValue; }

  /// The value as the type asked for, or null when it is of another type.
  template <typename Type>
  const Type* get() const {
    return std::get_if<Type>(&mValue);
  }
  template <typename Type>
  Type* get() {
    return std::get_if<Type>(&mValue);
  }

  bool operator==(const PropertyList&) const = default;

 private:
  Value mValue;
};

/// What a dictionary holds under a key; null when it holds nothing.
inline const PropertyList* valueOf(const PropertyList::Dictionary& dictionary,
                                   std::string_view key) {
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? nullptr : &found->second;
}

}  // namespace wayloom
