#pragma once

#include <filesystem>

#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>

#include "settings/Descriptor.h"

namespace wayloom {

/// Sees to it that one application runs for each folder of settings files: two windows over the
/// same files would show each other's past. A second start brings the first window to the front
/// instead. The lock stands in that folder itself, whatever the environment says, and only the
/// folder's owner can open it; where nothing can be written, it stands beside the socket, and
/// without either every start is the first. The socket, whose path is in the lock, is in a folder
/// that nobody else may enter. Main thread only.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  enum class Start { First, Second, Unanswered };

  static constexpr const char* kLockName = ".com.quorvil.wl.window";

  explicit SingleInstance(const std::filesystem::path& settingsFolder);
  ~SingleInstance() override;

  /// First: this application is the one, until it ends. Second: another one runs and was told.
  /// Unanswered: another one runs and does not listen.
  [[nodiscard]] Start start();

 Q_SIGNALS:
  void startedAgain();

 private:
  void findLock();
  void listen();
  bool tellTheFirst() const;

  std::filesystem::path mFolder;
  Descriptor mLock;
  QLocalServer mServer;
};

}  // namespace wayloom
