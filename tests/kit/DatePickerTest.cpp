#include <QtCore/QDateTime>

#include "kit/DatePicker.h"

namespace wayloom {
namespace {

/// Wheels over a time zone that turns its clocks on 2026-03-29 at 2:00 and 2026-10-25 at 3:00.
class DatePickerTest : public testing::Test {
 protected:
  void SetUp() override { setZone("CET-1CEST,M3.5.0,M10.5.0/3"); }
  void TearDown() override { setZone("UTC"); }

  static void setZone(const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
  }
  void start(const char* local) {
    picker.start(static_cast<double>(QDateTime::fromString(local, Qt::ISODate).toSecsSinceEpoch()) +
                 0.5);
  }
  QString chosen() const {
    return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(picker.date()))
        .toString("yyyy-MM-dd HH:mm:ss");
  }

  DatePicker picker;
};

TEST_F(DatePickerTest, TurnsNowhereBeforeTheStartAndNowhereOffTheWheel) {
  start("2026-11-23T23:50:07");
  const struct {
    DatePicker::Wheel wheel;
    int row;
    const char* chosen;
  } turns[] = {
      {DatePicker::Minute, 20, "2026-11-23 23:50:07"},
      {DatePicker::Hour, 5, "2026-11-23 23:50:07"},
      {DatePicker::Minute, 59, "2026-11-23 23:59:00"},
      {DatePicker::Minute, 60, "2026-11-24 00:00:00"},
      {DatePicker::Minute, -1, "2026-11-23 23:59:00"},
      {DatePicker::Hour, 24, "2026-11-24 00:59:00"},
      {DatePicker::Hour, -1, "2026-11-23 23:59:00"},
      {DatePicker::Day, 1, "2026-11-24 23:59:00"},
      {DatePicker::Hour, 0, "2026-11-24 00:59:00"},
      {DatePicker::Day, -7, "2026-11-23 23:50:07"},
      {DatePicker::Day, 40, "2027-01-02 23:50:00"},
  };
  for (const auto& turn : turns) {
    picker.turn(turn.wheel, turn.row);
    EXPECT_EQ(chosen(), turn.chosen) << turn.wheel << " to " << turn.row;
  }
}

TEST_F(DatePickerTest, ANightHasTheHoursThatItsClocksShow) {
  const struct {
    const char* evening;
    std::vector<const char*> hours;
    std::vector<double> sinceMidnight;
  } nights[] = {
      {"2026-03-28T12:30:00", {"00", "01", "03", "04"}, {0.5, 1.5, 2.5, 3.5}},
      {"2026-10-24T12:30:00", {"00", "01", "02 CEST", "02 CET", "03"}, {0.5, 1.5, 2.5, 3.5, 4.5}},
  };
  for (const auto& night : nights) {
    start(night.evening);
    picker.turn(DatePicker::Day, 1);
    const double midnight =
        static_cast<double>(QDate::fromString(QString(night.evening).left(10), Qt::ISODate)
                                .addDays(1)
                                .startOfDay()
                                .toSecsSinceEpoch());
    for (int row = 0; row < static_cast<int>(night.hours.size()); ++row) {
      picker.turn(DatePicker::Hour, row);
      EXPECT_EQ(picker.hour(), row) << night.evening;
      EXPECT_EQ(picker.rowText(DatePicker::Hour, row), night.hours[row]) << night.evening;
      EXPECT_EQ((picker.date() - midnight) / 3600, night.sinceMidnight[row])
          << night.evening << ' ' << row;
    }
    picker.turn(DatePicker::Hour, picker.hourCount());
    EXPECT_EQ(picker.day(), 2) << "the hour after the last";
    EXPECT_EQ(picker.hour(), 0);
  }
}

TEST_F(DatePickerTest, AQuarterOfAnHourIsOneInEveryHourOfTheNight) {
  // 2026-10-24T22:00Z is midnight; the clocks are turned back at 01:00Z.
  const double midnight = 1'792'879'200;
  for (int quarter = 0; quarter < 6 * 4; ++quarter) {
    const double from = midnight + quarter * 900.0;
    picker.start(from);
    picker.turn(DatePicker::Minute, picker.minute() + 15);
    EXPECT_EQ(picker.date() - from, 900) << quarter;
  }
}

TEST_F(DatePickerTest, AnotherDayKeepsTheTimeOrTheNextOneThatItHas) {
  const struct {
    const char* from;
    int days;
    const char* to;
  } cases[] = {
      {"2026-03-28T02:30:00+01:00", 1, "2026-03-29T03:30:00+02:00"},
      {"2026-10-24T02:30:00+02:00", 1, "2026-10-25T02:30:00+02:00"},
      {"2026-10-25T02:30:00+01:00", 1, "2026-10-26T02:30:00+01:00"},
  };
  for (const auto& test : cases) {
    const auto seconds = [](const char* text) {
      return static_cast<double>(QDateTime::fromString(text, Qt::ISODate).toSecsSinceEpoch());
    };
    picker.start(seconds(test.from));
    picker.turn(DatePicker::Day, test.days);
    EXPECT_EQ(picker.date(), seconds(test.to)) << test.from;
  }
}

}  // namespace
}  // namespace wayloom
