#pragma once

#include <filesystem>
#include <string_view>

#include "settings/FileSystem.h"
#include "settings/Result.h"

namespace wayloom {

/// Replaces the file at `path` by one that holds `bytes`, in one step: other processes see the old
/// file or the new one, never a part. On success the new file is on disk and survives a power cut.
/// On failure the old file is untouched and nothing is left beside it; the one exception, a folder
/// that could not be synced after the step, says so in its message.
///
/// A file that existed keeps its permissions, its extended attributes and, where the process may
/// set it, its owner; a new one can be read by all. A symbolic link at `path` is refused. Missing
/// folders are created. Any thread may call it.
Status replaceFile(const std::filesystem::path& path, std::string_view bytes,
                   FileSystem& system = FileSystem::machine());

/// The last step of a replacement: `finished`, which is on disk, takes the name of `path`, and the
/// folder of both is put on disk. On failure `finished` keeps its own name, but for the exception
/// above.
Status putInPlace(const std::filesystem::path& finished, const std::filesystem::path& path,
                  FileSystem& system = FileSystem::machine());

/// Whether `name` is one that replaceFile gives to what is to replace a file called `target`.
bool isTemporaryFor(std::string_view target, std::string_view name);

}  // namespace wayloom
