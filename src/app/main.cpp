#include <clocale>
#include <cstdio>

#include <QtCore/QCommandLineParser>
#include <QtCore/QTranslator>
#include <QtGui/QGuiApplication>

#include "app/AppDelegate.h"
#include "app/Tour.h"

namespace {

std::optional<std::filesystem::path> pathOf(const QCommandLineParser& parser,
                                            const QCommandLineOption& option) {
  if (!parser.isSet(option)) return std::nullopt;
  return std::filesystem::path(parser.value(option).toStdString());
}

}  // namespace

int main(int argc, char* argv[]) {
  QGuiApplication application(argc, argv);
  // Numbers in files and map styles have a decimal point whatever the user's language.
  std::setlocale(LC_NUMERIC, "C");
  QGuiApplication::setOrganizationName(QStringLiteral("wayloom"));
  QGuiApplication::setApplicationName(QStringLiteral("wayloom"));
  QGuiApplication::setApplicationVersion(QStringLiteral(WAYLOOM_VERSION));

  // English stands behind every language: some keys of the string table are no English.
  QTranslator english;
  if (english.load(QStringLiteral(":/translations/wayloom_en.qm"))) {
    QGuiApplication::installTranslator(&english);
  }

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Decides where the phone says it is."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption root(QStringLiteral("root"),
                                QStringLiteral("Folder below which the settings files stand."),
                                QStringLiteral("DIR"));
  const QCommandLineOption regions(QStringLiteral("regions"),
                                   QStringLiteral("Folder with the region files."),
                                   QStringLiteral("DIR"));
  const QCommandLineOption tour(
      QStringLiteral("tour"),
      QStringLiteral("Walk through the screens, save a picture of each step in DIR, and end."),
      QStringLiteral("DIR"));
  parser.addOptions({root, regions, tour});
  parser.process(application);

  wayloom::AppServices services({.root = pathOf(parser, root),
                                 .regions = pathOf(parser, regions),
                                 .configuredPositionOnly = parser.isSet(tour)});
  wayloom::AppDelegate delegate(services);
  if (!delegate.didFinishLaunching()) {
    std::fprintf(stderr, "wayloom: the screens cannot be loaded; is the installation complete?\n");
    return 1;
  }
  if (parser.isSet(tour)) {
    wayloom::Tour walk(delegate.window(), services.files, parser.value(tour));
    return walk.run() ? 0 : 1;
  }
  return QGuiApplication::exec();
}
