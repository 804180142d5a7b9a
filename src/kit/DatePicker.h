#pragma once

#include <QtCore/QDate>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace wayloom {

/// A moment in local time that is chosen on three wheels: day, hour, minute. A turn to before the
/// minimum ends at the minimum. Owned by a screen's controller; main thread only.
class DatePicker : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a screen's controller makes it")
  Q_PROPERTY(int day READ day NOTIFY changed)
  Q_PROPERTY(int hour READ hour NOTIFY changed)
  Q_PROPERTY(int minute READ minute NOTIFY changed)
  Q_PROPERTY(int dayCount READ dayCount NOTIFY changed)

 public:
  enum Wheel { Day, Hour, Minute };
  Q_ENUM(Wheel)

  using QObject::QObject;

  /// Begins at a moment, in seconds since 1970, before which the wheels cannot turn.
  void start(double now);
  /// The chosen moment, seconds since 1970.
  double date() const { return mDate; }

  /// A wheel was turned to this row.
  Q_INVOKABLE void turn(wayloom::DatePicker::Wheel wheel, int row);
  Q_INVOKABLE QString rowText(wayloom::DatePicker::Wheel wheel, int row) const;
  /// The rows of a wheel, and the one that is chosen.
  int rowCount(Wheel wheel) const;
  int row(Wheel wheel) const;

  /// Counted from the day of the minimum.
  int day() const { return row(Day); }
  int hour() const { return row(Hour); }
  int minute() const { return row(Minute); }
  int dayCount() const { return rowCount(Day); }

 Q_SIGNALS:
  void changed();
  /// The user turned a wheel, even if it sprang back to where it was.
  void valueChanged();

 private:
  QDate firstDay() const;

  double mMinimum = 0;
  double mDate = 0;
};

}  // namespace wayloom
