#include "app/SingleInstance.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QStandardPaths>
#include <QtNetwork/QLocalSocket>

#include "settings/FileSystem.h"

namespace wayloom {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// From taking the lock to listening takes the first instance much less.
constexpr auto kPatience = 2s;
constexpr auto kRetryPause = 20ms;

/// Whether a folder is this user's alone.
bool isPrivate(const fs::path& folder) {
  struct stat status {};
  return folder.is_absolute() && lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
         status.st_uid == geteuid() && (status.st_mode & 077) == 0;
}

/// The folder that the session keeps for this user alone, else one in the user's cache; empty when
/// neither is what it should be.
fs::path privateFolder() {
  const char* const runtime = std::getenv("XDG_RUNTIME_DIR");
  if (runtime && isPrivate(runtime)) return runtime;
  const fs::path cache =
      QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation).toStdString();
  const fs::path folder = cache / "wayloom/windows";
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  mkdir(folder.c_str(), S_IRWXU);
  return isPrivate(folder) ? folder : fs::path();
}

/// The same for every spelling of the same folder, and short: a socket's path has 107 characters.
std::string nameOf(const fs::path& settingsFolder) {
  std::error_code error;
  fs::path folder = fs::weakly_canonical(settingsFolder, error);
  if (error) folder = settingsFolder;
  const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(folder.string()),
                                                   QCryptographicHash::Sha256);
  return "wayloom-" + hash.toHex().left(16).toStdString();
}

int openLock(const fs::path& path) {
  const int lock = open(path.c_str(), O_CREAT | O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
  struct stat folder {};
  if (lock >= 0 && stat(path.parent_path().c_str(), &folder) == 0) {
    // What the superuser makes, the folder's owner must be able to open.
    [[maybe_unused]] const int ignored = fchown(lock, folder.st_uid, folder.st_gid);
  }
  return lock;
}

}  // namespace

SingleInstance::SingleInstance(const fs::path& settingsFolder) : mFolder(settingsFolder) {
  connect(&mServer, &QLocalServer::newConnection, this, [this] {
    // To connect is the whole message; what is sent is not read.
    while (QLocalSocket* caller = mServer.nextPendingConnection()) caller->deleteLater();
    Q_EMIT startedAgain();
  });
}

SingleInstance::~SingleInstance() {
  mServer.close();
}

SingleInstance::Start SingleInstance::start() {
  findLock();
  if (mLock.get() < 0) return Start::First;
  QDeadlineTimer deadline(kPatience);
  while (flock(mLock.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (tellTheFirst()) return Start::Second;
    if (deadline.hasExpired()) return Start::Unanswered;
    std::this_thread::sleep_for(kRetryPause);
  }
  listen();
  return Start::First;
}

void SingleInstance::findLock() {
  if (createFolder(mFolder, FileSystem::machine())) mLock.reset(openLock(mFolder / kLockName));
  if (mLock.get() >= 0) return;
  const fs::path folder = privateFolder();
  if (!folder.empty()) mLock.reset(openLock(folder / (nameOf(mFolder) + ".lock")));
}

void SingleInstance::listen() {
  const fs::path folder = privateFolder();
  if (folder.empty()) return;
  const std::string path = (folder / (nameOf(mFolder) + ".socket")).string();
  // With the lock held, a socket that is still there was left by one that did not end well.
  QLocalServer::removeServer(QString::fromStdString(path));
  mServer.setSocketOptions(QLocalServer::UserAccessOption);
  if (!mServer.listen(QString::fromStdString(path))) return;
  // Without it, later starts only learn that there is a first.
  [[maybe_unused]] const bool isSaid =
      ftruncate(mLock.get(), 0) == 0 && pwrite(mLock.get(), path.data(), path.size(), 0) >= 0;
}

bool SingleInstance::tellTheFirst() const {
  std::array<char, 128> path{};
  if (pread(mLock.get(), path.data(), path.size() - 1, 0) <= 0) return false;
  QLocalSocket socket;
  socket.connectToServer(QString::fromUtf8(path.data()));
  return socket.waitForConnected(static_cast<int>(std::chrono::milliseconds(kPatience).count()));
}

}  // namespace wayloom
