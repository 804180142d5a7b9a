#pragma once

#include <cstdint>
#include <functional>
#include <osmium/io/file.hpp>

#include "settings/Result.h"

namespace wayloom {

// An extract is read once before libosmium may have it, in little memory: libosmium adds and
// multiplies what it reads without looking for overflows, and holds what a packed file unfolds to.

/// Hears what share of the file is checked; answers whether to go on.
using CheckProgress = std::function<bool(double share)>;

/// An extract in protocol buffers. May throw what libosmium throws at a damaged file.
[[nodiscard]] Status checkPbf(const osmium::io::File& file, const CheckProgress& progress);

/// An extract in XML, packed or not. May throw what libosmium throws at a damaged file.
[[nodiscard]] Status checkXml(const osmium::io::File& file, const CheckProgress& progress);

/// What a packed file has unfolded to so far is more than any honest one does.
bool unfoldsTooFar(std::uint64_t unpackedBytes, std::uint64_t packedBytes);
inline constexpr char kUnfoldsTooFar[] = "it unfolds to over a hundred times its size";

/// More than OpenStreetMap has of anything, few enough for tables of them.
inline constexpr std::int64_t kHighestObject = std::int64_t{1} << 40;

}  // namespace wayloom
