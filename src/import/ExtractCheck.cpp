#include "import/ExtractCheck.h"

namespace wayloom {

bool unfoldsTooFar(std::uint64_t unpackedBytes, std::uint64_t packedBytes) {
  constexpr std::uint64_t kHarmlessBytes = 32 << 20;
  constexpr std::uint64_t kMostTimes = 100;
  return unpackedBytes > kHarmlessBytes && unpackedBytes / kMostTimes > packedBytes;
}

}  // namespace wayloom
