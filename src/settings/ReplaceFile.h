#pragma once

#include <filesystem>
#include <string_view>

#include "settings/Result.h"

namespace wayloom {

/// Replaces the file at `path` by one that holds `bytes`, in one step: other processes see the old
/// file or the new one, never a part. On success the new file is on disk and survives a power cut.
/// On failure the old file is untouched and nothing is left beside it; the one exception, a folder
/// that could not be synced after the step, says so in its message.
///
/// A file that existed keeps its permissions (and its owner, where the process may set it); a new
/// one gets 0644 less the process's umask. Missing folders are created. Any thread may call it.
Status replaceFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace wayloom
