#pragma once

#include <filesystem>

#include "settings/Result.h"

namespace wayloom {

/// Gives the open file `descriptor` every extended attribute of the file at `from`, access lists
/// included. Those that this process may not read or set, and file systems without any, are passed
/// over.
Status copyExtendedAttributes(const std::filesystem::path& from, int descriptor);

}  // namespace wayloom
