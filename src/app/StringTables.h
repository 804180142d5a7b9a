#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTranslator>

namespace wayloom {

/// The texts of the application in the user's language, installed for as long as this lives. Main
/// thread only.
class StringTables {
 public:
  explicit StringTables(const QStringList& preferredLanguages);

  /// The table for the first of these languages that there is one for, as in "de" or "zh_Hans";
  /// "en" when there is none.
  static QString tableFor(const QStringList& preferredLanguages);

 private:
  // English stands behind every language: some keys of the string table are no English.
  QTranslator mEnglish;
  QTranslator mLanguage;
};

}  // namespace wayloom
