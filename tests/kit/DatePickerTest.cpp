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
      {DatePicker::Minute, 99, "2026-11-23 23:59:00"},
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

TEST_F(DatePickerTest, KeepsGoingWhereTheClocksAreTurned) {
  start("2026-03-28T12:00:00");
  picker.turn(DatePicker::Day, 1);
  for (int hour = 0; hour < 24; ++hour) {
    picker.turn(DatePicker::Hour, hour);
    EXPECT_EQ(picker.day(), 1) << hour;
    EXPECT_EQ(picker.hour(), hour == 2 ? 3 : hour);
  }
  start("2026-10-24T12:00:00");
  picker.turn(DatePicker::Day, 1);
  for (int hour = 0; hour < 24; ++hour) {
    picker.turn(DatePicker::Hour, hour);
    EXPECT_EQ(picker.hour(), hour);
  }
}

}  // namespace
}  // namespace wayloom
