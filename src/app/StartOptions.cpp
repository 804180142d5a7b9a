#include "app/StartOptions.h"

#include <algorithm>
#include <string_view>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

namespace wayloom {

namespace {

std::optional<std::filesystem::path> pathOf(const QCommandLineParser& parser,
                                            const QCommandLineOption& option) {
  if (!parser.isSet(option)) return std::nullopt;
  return std::filesystem::path(parser.value(option).toStdString());
}

}  // namespace

StartOptions StartOptions::read(const QCoreApplication& application) {
  const QString folder = QStringLiteral("DIR");
  const QCommandLineOption root(QStringLiteral("root"),
                                QStringLiteral("Folder below which the settings files stand."),
                                folder);
  const QCommandLineOption regions(QStringLiteral("regions"),
                                   QStringLiteral("Folder with the region files."), folder);
  const QCommandLineOption tour(
      QStringLiteral("tour"),
      QStringLiteral("Walk through the screens, save a picture of each step in DIR, and end."),
      folder);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Decides where the phone says it is."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({root, regions, tour});
  parser.process(application);
  StartOptions options{pathOf(parser, root), pathOf(parser, regions), std::nullopt};
  if (parser.isSet(tour)) options.tour = parser.value(tour);
  return options;
}

bool StartOptions::areQuestions(int argc, char* argv[]) {
  return std::any_of(argv, argv + argc, [](std::string_view argument) {
    return argument == "-h" || argument == "--help" || argument == "-v" || argument == "--version";
  });
}

}  // namespace wayloom
