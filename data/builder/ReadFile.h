#pragma once

#include <filesystem>
#include <string>

#include "settings/Result.h"

namespace wayloom {

/// The whole content of a file.
Result<std::string> readFile(const std::filesystem::path& path);

}  // namespace wayloom
