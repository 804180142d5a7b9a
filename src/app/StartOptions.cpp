#include "app/StartOptions.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

namespace wayloom {

namespace {

[[noreturn]] void refuse(const std::string& why) {
  std::fprintf(stderr, "wayloom: %s; see 'wayloom --help'\n", why.c_str());
  std::exit(1);
}

std::optional<std::filesystem::path> pathOf(const QCommandLineParser& parser,
                                            const QCommandLineOption& option) {
  if (!parser.isSet(option)) return std::nullopt;
  if (parser.value(option).isEmpty()) refuse("a folder's name is empty");
  return std::filesystem::path(parser.value(option).toStdString());
}

std::optional<bool> isDark(const QCommandLineParser& parser, const QCommandLineOption& option) {
  if (!parser.isSet(option)) return std::nullopt;
  const QString value = parser.value(option);
  if (value == QStringLiteral("dark")) return true;
  if (value == QStringLiteral("light")) return false;
  refuse("--appearance is light or dark, not '" + value.toStdString() + "'");
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
  const QCommandLineOption appearance(
      QStringLiteral("appearance"),
      QStringLiteral("Use light or dark colours, whatever the desktop uses."),
      QStringLiteral("light|dark"));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Decides where the phone says it is."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({root, regions, appearance, tour});
  parser.process(application);
  StartOptions options;
  options.root = pathOf(parser, root);
  options.regions = pathOf(parser, regions);
  options.dark = isDark(parser, appearance);
  if (const auto path = pathOf(parser, tour)) options.tour = QString::fromStdString(*path);
  if (!parser.positionalArguments().isEmpty()) {
    refuse("'" + parser.positionalArguments().constFirst().toStdString() + "' is no option");
  }
  return options;
}

bool StartOptions::areQuestions(int argc, char* argv[]) {
  return std::any_of(argv, argv + argc, [](std::string_view argument) {
    return argument == "-h" || argument == "--help" || argument == "--help-all" ||
           argument == "-v" || argument == "--version";
  });
}

}  // namespace wayloom
