#include "app/SettingsWatch.h"

#include <chrono>

#include "settings/ReadFile.h"

namespace wayloom {

namespace {
/// A write makes several changes in the folder; one look at the end is enough.
constexpr std::chrono::milliseconds kGathering{20};
}  // namespace

SettingsWatch::SettingsWatch(std::filesystem::path folder, QObject* parent)
    : QObject(parent), mFolder(std::move(folder)) {
  mGathered.setSingleShot(true);
  mGathered.setInterval(kGathering);
  connect(&mGathered, &QTimer::timeout, this, [this] {
    watchNearest();
    Q_EMIT changed();
  });
  connect(&mWatcher, &QFileSystemWatcher::directoryChanged, this, [this] {
    if (!mGathered.isActive()) mGathered.start();
  });
  watchNearest();
}

void SettingsWatch::watchNearest() {
  // While one folder gets its watch the next one below may be made unseen; so it is looked for
  // again.
  constexpr int kMostLevels = 16;
  for (int level = 0; level < kMostLevels && !isNearestWatched(); ++level) {
  }
}

bool SettingsWatch::isNearestWatched() {
  std::filesystem::path nearest = mFolder;
  std::error_code ignored;
  while (!std::filesystem::is_directory(nearest, ignored) && nearest.has_relative_path()) {
    nearest = nearest.parent_path();
  }
  // Its parent too: a folder that is moved away and put back is another one.
  const QStringList paths{QString::fromStdString(nearest.string()),
                          QString::fromStdString(nearest.parent_path().string())};
  const auto version = versionAt(nearest);
  const std::uint64_t number = version ? version->number : 0;
  if (number == mNumber && mWatcher.directories().contains(paths.front())) return true;
  mNumber = number;
  if (!mWatcher.directories().isEmpty()) mWatcher.removePaths(mWatcher.directories());
  mWatcher.addPaths(paths);
  return false;
}

}  // namespace wayloom
