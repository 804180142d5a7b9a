#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace wayloom {

/// The first bytes of a regular file, at most `limit`; nothing when it is none or cannot be read.
/// It never waits, whatever stands at the path. Any thread may call it.
std::optional<std::string> readFileHead(const std::filesystem::path& path, std::size_t limit);

}  // namespace wayloom
