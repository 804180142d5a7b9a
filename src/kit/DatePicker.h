#pragma once

#include <QtCore/QDate>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace wayloom {

/// A moment in local time that is chosen on three wheels: day, hour, minute. The hour and the
/// minute carry: a turn past the end of a wheel goes on in the next day or hour. A day has the
/// hours that its clocks show, so that of a night in which they are turned back every hour can be
/// chosen. A turn to before the minimum ends at the minimum. Owned by a screen's controller; main
/// thread only.
class DatePicker : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a screen's controller makes it")
  Q_PROPERTY(int day READ day NOTIFY changed)
  Q_PROPERTY(int hour READ hour NOTIFY changed)
  Q_PROPERTY(int minute READ minute NOTIFY changed)
  Q_PROPERTY(int dayCount READ dayCount NOTIFY changed)
  Q_PROPERTY(int hourCount READ hourCount NOTIFY changed)

 public:
  enum Wheel { Day, Hour, Minute };
  Q_ENUM(Wheel)

  using QObject::QObject;

  /// Begins at a moment, in seconds since 1970, before which the wheels cannot turn.
  void start(double now);
  /// The chosen moment, seconds since 1970.
  double date() const { return mDate; }

  /// A wheel was turned to this row, or past its ends.
  Q_INVOKABLE void turn(wayloom::DatePicker::Wheel wheel, int row);
  Q_INVOKABLE QString rowText(wayloom::DatePicker::Wheel wheel, int row) const;
  /// The rows of a wheel, and the one that is chosen.
  int rowCount(Wheel wheel) const;
  int row(Wheel wheel) const;

  /// Counted from the day of the minimum; hours from the beginning of their day.
  int day() const { return row(Day); }
  int hour() const { return row(Hour); }
  int minute() const { return row(Minute); }
  int dayCount() const { return rowCount(Day); }
  int hourCount() const { return rowCount(Hour); }

 Q_SIGNALS:
  void changed();
  /// The user turned a wheel, even if it sprang back to where it was.
  void valueChanged();

 private:
  QDate firstDay() const;
  qint64 momentAt(Wheel wheel, int row) const;
  QString hourText(int row) const;

  double mMinimum = 0;
  double mDate = 0;
};

}  // namespace wayloom
