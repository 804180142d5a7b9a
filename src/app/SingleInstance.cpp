#include "app/SingleInstance.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDeadlineTimer>
#include <QtNetwork/QLocalSocket>

namespace wayloom {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// From taking the lock to listening takes the first instance much less.
constexpr auto kPatience = 2s;
constexpr auto kRetryPause = 20ms;

/// The folder that the session keeps for this user alone; empty unless it is what it should be.
fs::path runtimeFolder() {
  const char* const name = std::getenv("XDG_RUNTIME_DIR");
  if (!name || *name != '/') return {};
  struct stat status {};
  const bool isOwn = lstat(name, &status) == 0 && S_ISDIR(status.st_mode) &&
                     status.st_uid == geteuid() && (status.st_mode & 077) == 0;
  return isOwn ? fs::path(name) : fs::path();
}

/// The same for every spelling of the same folder, and short: a socket's path has 107 characters.
std::string nameOf(const fs::path& settingsRoot) {
  std::error_code error;
  fs::path root = fs::weakly_canonical(settingsRoot, error);
  if (error) root = settingsRoot;
  if (!root.has_filename()) root = root.parent_path();
  const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(root.string()),
                                                   QCryptographicHash::Sha256);
  return "wayloom-" + hash.toHex().left(16).toStdString();
}

}  // namespace

SingleInstance::SingleInstance(const fs::path& settingsRoot) {
  const fs::path folder = runtimeFolder();
  if (folder.empty()) return;
  const std::string name = nameOf(settingsRoot);
  mLockFile = folder / (name + ".lock");
  mSocket = folder / (name + ".socket");
  connect(&mServer, &QLocalServer::newConnection, this, [this] {
    // To connect is the whole message; what is sent is not read.
    while (QLocalSocket* caller = mServer.nextPendingConnection()) caller->deleteLater();
    Q_EMIT startedAgain();
  });
}

SingleInstance::~SingleInstance() {
  mServer.close();
  if (mLock >= 0) close(mLock);
}

SingleInstance::Start SingleInstance::start() {
  if (mLockFile.empty()) return Start::First;
  QDeadlineTimer deadline(kPatience);
  while (!lock()) {
    if (tellTheFirst()) return Start::Second;
    if (deadline.hasExpired()) return Start::Unanswered;
    std::this_thread::sleep_for(kRetryPause);
  }
  if (mLock >= 0) listen();
  return Start::First;
}

bool SingleInstance::lock() {
  mLock = open(mLockFile.c_str(), O_CREAT | O_RDWR | O_NOFOLLOW | O_CLOEXEC, 0600);
  if (mLock < 0) return true;  // Where no lock can be made, nobody else made one.
  if (flock(mLock, LOCK_EX | LOCK_NB) == 0) return true;
  close(mLock);
  mLock = -1;
  return false;
}

void SingleInstance::listen() {
  const QString path = QString::fromStdString(mSocket.string());
  // With the lock held, a socket that is still there was left by one that did not end well.
  QLocalServer::removeServer(path);
  mServer.setSocketOptions(QLocalServer::UserAccessOption);
  mServer.listen(path);
}

bool SingleInstance::tellTheFirst() const {
  QLocalSocket socket;
  socket.connectToServer(QString::fromStdString(mSocket.string()));
  return socket.waitForConnected(static_cast<int>(std::chrono::milliseconds(kPatience).count()));
}

}  // namespace wayloom
