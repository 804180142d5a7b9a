#pragma once

#include <cstdint>
#include <filesystem>

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace wayloom {

/// Tells when something in the settings folder has changed, whoever did it. Files are replaced by
/// renaming, so the folder is watched, and while it does not exist the nearest folder above that
/// does. Main thread only.
class SettingsWatch : public QObject {
  Q_OBJECT

 public:
  explicit SettingsWatch(std::filesystem::path folder, QObject* parent = nullptr);

 Q_SIGNALS:
  /// At most every few hundredths of a second.
  void changed();

 private:
  void watchNearest();
  /// Whether the folder, or the nearest above it, has its watch; gives it one if not.
  bool isNearestWatched();

  const std::filesystem::path mFolder;
  QFileSystemWatcher mWatcher;
  /// Which folder of that name is watched.
  std::uint64_t mNumber = 0;
  QTimer mGathered;
};

}  // namespace wayloom
