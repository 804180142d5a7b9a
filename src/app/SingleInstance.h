#pragma once

#include <filesystem>
#include <memory>

#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>

namespace wayloom {

/// Sees to it that one application runs for each settings root: two windows over the same files
/// would show each other's past. A second start brings the first window to the front instead. Lock
/// and socket stand in the user's runtime folder, which nobody else may enter; without such a
/// folder every start is the first. Main thread only.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  enum class Start { First, Second, Unanswered };

  explicit SingleInstance(const std::filesystem::path& settingsRoot);
  ~SingleInstance() override;

  /// First: this application is the one, until it ends. Second: another one runs and was told.
  /// Unanswered: another one runs and does not listen.
  [[nodiscard]] Start start();

 Q_SIGNALS:
  void startedAgain();

 private:
  bool lock();
  void listen();
  bool tellTheFirst() const;

  std::filesystem::path mLockFile, mSocket;  // Empty where there is no folder for them.
  int mLock = -1;
  QLocalServer mServer;
};

}  // namespace wayloom
