#include "fuzz/Fuzzing.h"
#include "settings/PropertyListFormat.h"

using namespace wayloom;

namespace {

std::string rewritten(const std::string& bytes) {
  const ParsedPropertyList parsed = parsePropertyList(bytes);
  require(parsed.value.has_value());
  const SerializedPropertyList serialized = serializePropertyList(*parsed.value);
  require(serialized.bytes.has_value());
  return *serialized.bytes;
}

/// What was read can be written and reads back. The first writing may replace characters in keys
/// and so change the order of entries, but not their number or length; from then on nothing
/// changes. Bytes are compared rather than values, because not-a-number equals nothing.
void checkRoundTrip(const PropertyList& value) {
  const SerializedPropertyList first = serializePropertyList(value);
  // References by number take more values in XML, so only a limit may stand in the way.
  if (!first.bytes) return;
  const std::string second = rewritten(*first.bytes);
  require(second.size() == first.bytes->size() && rewritten(second) == second);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const ParsedPropertyList parsed = parsePropertyList(textOf(data, size));
  require(parsed.value.has_value() == parsed.damage.empty());
  if (parsed.value) checkRoundTrip(*parsed.value);
  return 0;
}
