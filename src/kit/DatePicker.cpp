#include "kit/DatePicker.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

/// A day so far away that nobody turns there.
const QDate kDistantFuture(4001, 1, 1);

QDateTime localTime(double secondsSince1970) {
  return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(secondsSince1970)));
}

}  // namespace

void DatePicker::start(double now) {
  mMinimum = now;
  mDate = now;
  Q_EMIT changed();
}

QDate DatePicker::firstDay() const {
  return localTime(mMinimum).date();
}

int DatePicker::rowCount(Wheel wheel) const {
  switch (wheel) {
    case Day:
      return static_cast<int>(std::max<qint64>(1, firstDay().daysTo(kDistantFuture)));
    case Hour:
      return 24;
    default:
      return 60;
  }
}

int DatePicker::row(Wheel wheel) const {
  const QDateTime chosen = localTime(mDate);
  switch (wheel) {
    case Day:
      return static_cast<int>(firstDay().daysTo(chosen.date()));
    case Hour:
      return chosen.time().hour();
    default:
      return chosen.time().minute();
  }
}

void DatePicker::turn(Wheel wheel, int row) {
  const auto turned = [&](Wheel which) {
    return which == wheel ? std::clamp(row, 0, rowCount(which) - 1) : this->row(which);
  };
  // An hour that the clock skips in spring reads as the one that follows it.
  const QDateTime chosen(firstDay().addDays(turned(Day)), QTime(turned(Hour), turned(Minute)));
  mDate = std::max(mMinimum, static_cast<double>(chosen.toSecsSinceEpoch()));
  Q_EMIT changed();
  Q_EMIT valueChanged();
}

QString DatePicker::rowText(Wheel wheel, int row) const {
  if (wheel != Day) return QStringLiteral("%1").arg(row, 2, 10, QLatin1Char('0'));
  if (row == 0) return localizedText("Today");
  const QDate day = firstDay().addDays(row);
  const bool isThisYear = day.year() == firstDay().year();
  // Every language has its own order of day and month.
  return QLocale().toString(day,
                            isThisYear ? localizedText("ddd d MMM") : localizedText("d MMM yyyy"));
}

}  // namespace wayloom
