#include "kit/LocalizedText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include "kit/ShownText.h"

namespace wayloom {

namespace {

class UsersLanguage : public Wording {
 public:
  std::string text(const char* key) const override { return localizedText(key).toStdString(); }
  std::string number(const Phrase::Number& number) const override {
    // English is said alike everywhere, here and by the command line.
    QLocale locale;
    if (locale.language() == QLocale::English) locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number.value, 'f', number.decimals).toStdString();
  }
};

}  // namespace

QString localizedText(const char* key) {
  return QCoreApplication::translate("Wayloom", key);
}

QString localizedText(const Phrase& phrase) {
  return shownText(said(phrase, UsersLanguage()));
}

}  // namespace wayloom
