#include "fuzz/Fuzzing.h"
#include "platform/OnlineServices.h"

using namespace wayloom;

/// Any services.json: an address that is taken from it is one of the web, and a file that is not
/// understood turns everything off and says so in one line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  static const MemoryFolder folder;
  const auto file = folder.path() / "services.json";
  writeFile(file, textOf(bytes, count));
  const OnlineServices services = OnlineServices::read(file);
  require(services.error().find('\n') == std::string::npos);
  const std::string& address = services.address("geocoding");
  if (address.empty()) return 0;
  require(services.error().empty());
  require(address.starts_with("http://") || address.starts_with("https://"));
  require(!address.ends_with('/'));
  return 0;
}
