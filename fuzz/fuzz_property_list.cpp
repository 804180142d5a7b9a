#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "settings/PropertyListFormat.h"

using namespace wayloom;

namespace {

std::string require(const SerializedPropertyList& serialized) {
  if (!serialized.bytes) {
    std::abort();
  }
  return *serialized.bytes;
}

PropertyList require(const ParsedPropertyList& parsed) {
  if (!parsed.value) {
    std::abort();
  }
  return *parsed.value;
}

/// What was read can be written and reads back. The first writing may replace characters in keys
/// and so change the order of entries, but not their number or length; from then on nothing
/// changes. Bytes are compared rather than values, because not-a-number equals nothing.
void checkRoundTrip(const PropertyList& value) {
  const SerializedPropertyList first = serializePropertyList(value);
  if (!first.bytes) {
    // References by number take more values in XML, so only a limit may stand in the way.
    return;
  }
  const std::string second =
      require(serializePropertyList(require(parsePropertyList(*first.bytes))));
  const std::string third = require(serializePropertyList(require(parsePropertyList(second))));
  if (second.size() != first.bytes->size() || third != second) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ParsedPropertyList parsed =
      parsePropertyList(std::string_view(reinterpret_cast<const char*>(data), size));
  if (parsed.value.has_value() != parsed.damage.empty()) {
    std::abort();
  }
  if (parsed.value) {
    checkRoundTrip(*parsed.value);
  }
  return 0;
}
