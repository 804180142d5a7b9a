#include <protozero/pbf_writer.hpp>

#include "fuzz/CheckedImport.h"

namespace {

std::string blob(const std::string& type, std::string_view content) {
  std::string blob, header;
  protozero::pbf_writer(blob).add_bytes(1, content.data(), content.size());
  protozero::pbf_writer writer(header);
  writer.add_string(1, type);
  writer.add_int32(3, static_cast<std::int32_t>(blob.size()));
  return std::string(3, '\0') + static_cast<char>(header.size()) + header + blob;
}

}  // namespace

/// An extract in protocol buffers, by the first byte a whole file or one block of data, which is
/// framed here: the lengths in the frame would undo almost every change.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  if (count == 0) return 0;
  std::string file(wayloom::textOf(bytes + 1, count - 1));
  if (bytes[0] == 'b') file = blob("OSMHeader", "\"\x0eOsmSchema-V0.6") + blob("OSMData", file);
  wayloom::checkImport("a.osm.pbf", file);
  return 0;
}
