#include <clocale>
#include <cstdio>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtGui/QPalette>

#include "app/AppDelegate.h"
#include "app/SingleInstance.h"
#include "app/StartOptions.h"
#include "app/StringTables.h"
#include "app/Tour.h"
#include "app/WindowPlace.h"
#include "platform/PreferredLanguages.h"
#include "settings/SettingsRoot.h"

namespace {

using namespace wayloom;

constexpr QColor kDarkWindow(0x20, 0x28, 0x30);
constexpr QColor kLightWindow(0xef, 0xef, 0xef);

QStringList userLanguages() {
  QStringList languages;
  for (const std::string& language : preferredLanguages()) {
    languages.append(QString::fromStdString(language));
  }
  return languages;
}

/// A folder of the application's own, on this machine; nowhere without a home.
std::optional<std::filesystem::path> recentSearchesFile() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  const QString folder = data + QStringLiteral("/wayloom/searches");
  if (data.isEmpty() || !QDir().mkpath(folder)) return std::nullopt;
  // What somebody looks for is nobody else's business.
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return std::filesystem::path(folder.toStdString()) / "recent";
}

/// A tour starts from nothing, and leaves alone what the user's own files and windows hold.
int runTour(const StartOptions& options) {
  const QDir directory(*options.tour);
  const auto root = options.root.value_or(
      std::filesystem::path(directory.absoluteFilePath(QStringLiteral("phone")).toStdString()));
  std::error_code none;
  if (!std::filesystem::is_empty(root, none) && !none) {
    std::fprintf(stderr, "wayloom: a tour starts from nothing, but %s holds files already\n",
                 root.c_str());
    return 1;
  }
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     directory.absoluteFilePath(QStringLiteral("remembered")));
  AppServices services({.root = root, .regions = options.regions, .configuredPositionOnly = true});
  AppDelegate delegate(services);
  if (!delegate.didFinishLaunching()) return 1;
  return Tour(delegate.window(), services.files, *options.tour).run() ? 0 : 1;
}

int runApplication(const StartOptions& options) {
  const SettingsFiles files(settingsRoot(options.root));
  SingleInstance instance(files.path(SettingsFile::Master).parent_path());
  switch (instance.start()) {
    case SingleInstance::Start::First:
      break;
    case SingleInstance::Start::Second:
      return 0;
    case SingleInstance::Start::Unanswered:
      std::fprintf(stderr, "wayloom: it is running already, but does not answer\n");
      return 1;
  }
  AppServices services(
      {.root = options.root, .regions = options.regions, .recentSearches = recentSearchesFile()});
  AppDelegate delegate(services);
  const WindowPlace place(delegate.window());
  if (!delegate.didFinishLaunching()) return 1;
  QObject::connect(&instance, &SingleInstance::startedAgain, &delegate,
                   &AppDelegate::comeToTheFront);
  return QGuiApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
  QCoreApplication::setOrganizationName(QStringLiteral("wayloom"));
  QCoreApplication::setApplicationName(QStringLiteral("wayloom"));
  QCoreApplication::setApplicationVersion(QStringLiteral(WAYLOOM_VERSION));
  if (StartOptions::areQuestions(argc, argv)) {
    const QCoreApplication application(argc, argv);
    StartOptions::read(application);
    return 0;
  }
  QGuiApplication application(argc, argv);
  // Numbers in files and map styles have a decimal point whatever the user's language.
  std::setlocale(LC_NUMERIC, "C");
  QGuiApplication::setDesktopFileName(QStringLiteral("wayloom"));
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/wayloom.svg")));

  const StringTables strings(userLanguages());
  const StartOptions options = StartOptions::read(application);
  if (options.dark) {
    // The whole palette follows from the colour of windows.
    QGuiApplication::setPalette(QPalette(*options.dark ? kDarkWindow : kLightWindow));
  }
  return options.tour ? runTour(options) : runApplication(options);
}
