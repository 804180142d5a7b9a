#include "fuzz/CheckedImport.h"

/// An extract in XML.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  wayloom::checkImport("a.osm", wayloom::textOf(bytes, count));
  return 0;
}
