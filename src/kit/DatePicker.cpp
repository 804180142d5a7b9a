#include "kit/DatePicker.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>

#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

/// A day so far away that nobody turns there.
const QDate kDistantFuture(4001, 1, 1);
constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;

QDateTime localTime(double secondsSince1970) {
  return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(std::floor(secondsSince1970)));
}

bool isSameHour(const QDateTime& one, const QDateTime& other) {
  return one.time().hour() == other.time().hour() && one.offsetFromUtc() == other.offsetFromUtc();
}

/// The hours of a day, each by its first moment: where the clocks are turned, one is missing or
/// there twice.
std::vector<QDateTime> hoursOf(QDate day) {
  constexpr qint64 kSmallestTurn = kHour / 2;
  std::vector<QDateTime> hours;
  for (QDateTime at = day.startOfDay(); at.date() == day; at = at.addSecs(kSmallestTurn)) {
    if (hours.empty() || !isSameHour(at, hours.back())) hours.push_back(at);
  }
  return hours;
}

/// This minute of an hour that has it, else the hour's first moment.
qint64 momentIn(const QDateTime& hour, int minute) {
  return hour.toSecsSinceEpoch() + std::max(0, minute - hour.time().minute()) * kMinute;
}

/// The moment of another day at which the clock shows the same as at `time`; of an hour that the
/// day has twice, the one with the same clock. An hour that it skips reads as the one that follows.
qint64 sameTimeOn(QDate day, const QDateTime& time) {
  const std::vector<QDateTime> hours = hoursOf(day);
  auto hour = std::find_if(hours.begin(), hours.end(),
                           [&](const QDateTime& each) { return isSameHour(each, time); });
  if (hour == hours.end()) {
    hour = std::find_if(hours.begin(), hours.end(), [&](const QDateTime& each) {
      return each.time().hour() >= time.time().hour();
    });
  }
  return momentIn(hour == hours.end() ? hours.back() : *hour, time.time().minute());
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
      return static_cast<int>(hoursOf(localTime(mDate).date()).size());
    default:
      return 60;
  }
}

int DatePicker::row(Wheel wheel) const {
  const QDateTime chosen = localTime(mDate);
  switch (wheel) {
    case Day:
      return static_cast<int>(firstDay().daysTo(chosen.date()));
    case Hour: {
      const std::vector<QDateTime> hours = hoursOf(chosen.date());
      return static_cast<int>(std::upper_bound(hours.begin(), hours.end(), chosen) -
                              hours.begin()) -
             1;
    }
    default:
      return chosen.time().minute();
  }
}

qint64 DatePicker::momentAt(Wheel wheel, int row) const {
  const QDateTime chosen = localTime(mDate);
  const int last = rowCount(wheel) - 1;
  switch (wheel) {
    case Day:
      return sameTimeOn(firstDay().addDays(std::clamp(row, 0, last)), chosen);
    case Hour: {
      const int inDay = std::clamp(row, 0, last);
      const QDateTime hour = hoursOf(chosen.date())[static_cast<std::size_t>(inDay)];
      return momentIn(hour, chosen.time().minute()) + (qint64{row} - inDay) * kHour;
    }
    default:
      return chosen.toSecsSinceEpoch() - chosen.time().second() +
             (qint64{row} - chosen.time().minute()) * kMinute;
  }
}

void DatePicker::turn(Wheel wheel, int row) {
  const qint64 last = kDistantFuture.startOfDay().toSecsSinceEpoch() - kMinute;
  mDate = std::max(mMinimum, static_cast<double>(std::min(momentAt(wheel, row), last)));
  Q_EMIT changed();
  Q_EMIT valueChanged();
}

QString DatePicker::rowText(Wheel wheel, int row) const {
  if (wheel == Hour) return hourText(row);
  if (wheel == Minute) return QStringLiteral("%1").arg(row, 2, 10, QLatin1Char('0'));
  if (row == 0) return localizedText("Today");
  const QDate day = firstDay().addDays(row);
  const bool isThisYear = day.year() == firstDay().year();
  // Every language has its own order of day and month.
  return QLocale().toString(day,
                            isThisYear ? localizedText("ddd d MMM") : localizedText("d MMM yyyy"));
}

QString DatePicker::hourText(int row) const {
  const std::vector<QDateTime> hours = hoursOf(localTime(mDate).date());
  if (row < 0 || row >= static_cast<int>(hours.size())) return {};
  const QDateTime& hour = hours[static_cast<std::size_t>(row)];
  const auto count = std::count_if(hours.begin(), hours.end(), [&](const QDateTime& each) {
    return each.time().hour() == hour.time().hour();
  });
  const QString digits = hour.toString(QStringLiteral("HH"));
  return count == 1 ? digits : digits + QLatin1Char(' ') + hour.timeZoneAbbreviation();
}

}  // namespace wayloom
