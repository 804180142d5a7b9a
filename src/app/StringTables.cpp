#include "app/StringTables.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

namespace wayloom {

namespace {

void install(QTranslator& translator, const QString& table) {
  if (translator.load(QStringLiteral(":/translations/wayloom_%1.qm").arg(table))) {
    QCoreApplication::installTranslator(&translator);
  }
}

/// Written in traditional characters where the tag says so, or names a place where they are used.
bool isTraditionalChinese(const QStringList& parts) {
  if (parts.contains(QStringLiteral("hans"))) return false;
  for (const char* part : {"hant", "tw", "hk", "mo"}) {
    if (parts.contains(QLatin1String(part))) return true;
  }
  return false;
}

}  // namespace

StringTables::StringTables(const QStringList& preferredLanguages) {
  install(mEnglish, QStringLiteral("en"));
  const QString table = tableFor(preferredLanguages);
  if (table != QStringLiteral("en")) install(mLanguage, table);
  // Dates speak the language of the texts around them.
  const QLocale locale(table);
  if (QLocale().language() != locale.language()) QLocale::setDefault(locale);
}

QString StringTables::tableFor(const QStringList& preferredLanguages) {
  for (const QString& language : preferredLanguages) {
    const QStringList parts =
        language.toLower().replace(u'_', u'-').split(u'-', Qt::SkipEmptyParts);
    if (parts.isEmpty()) continue;
    if (parts[0] == QStringLiteral("zh")) {
      return isTraditionalChinese(parts) ? QStringLiteral("zh_Hant") : QStringLiteral("zh_Hans");
    }
    for (const char* known : {"en", "de", "es", "fr", "ja"}) {
      if (parts[0] == QLatin1String(known)) return parts[0];
    }
  }
  return QStringLiteral("en");
}

}  // namespace wayloom
