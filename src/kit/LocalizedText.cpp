#include "kit/LocalizedText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QLocale>

#include "kit/ShownText.h"

namespace wayloom {

namespace {

class UsersLanguage : public Wording {
 public:
  std::string text(const char* key) const override { return localizedText(key).toStdString(); }
  std::string number(const Phrase::Number& number) const override {
    return QLocale().toString(number.value, 'f', number.decimals).toStdString();
  }
  std::string moment(const Phrase::Moment& moment) const override {
    const auto time = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(moment.secondsSince1970));
    const QLocale locale;
    return (moment.isAnotherDay ? locale.toString(time, QLocale::ShortFormat)
                                : locale.toString(time.time(), QLocale::ShortFormat))
        .toStdString();
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
