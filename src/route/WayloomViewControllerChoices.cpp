// The choices of the route screen: two places and two times.

#include <cmath>

#include <QtCore/QDateTime>

#include "kit/LocalizedText.h"
#include "route/WayloomViewController.h"

namespace wayloom {

QString WayloomViewController::timeText(double secondsSince1970) {
  return QDateTime::fromSecsSinceEpoch(static_cast<qint64>(secondsSince1970))
      .toString(QStringLiteral("MM-dd HH:mm"));
}

RouteChoices WayloomViewController::choices() const {
  return {.start = mStartCoordinate,
          .end = mEndCoordinate,
          .startTime = mStartTime,
          .endTime = mEndTime,
          .startText = mView.startText.toStdString(),
          .endText = mView.endText.toStdString()};
}

bool WayloomViewController::refusesEdit() {
  const char* refusal = mSimulation.refusalToLeave();
  if (refusal) showHUDHintText(localizedText(refusal));
  return refusal != nullptr;
}

void WayloomViewController::startTapped() {
  if (!refusesEdit()) chooseAddress(mStartCoordinate, &View::startText);
}

void WayloomViewController::endTapped() {
  if (!refusesEdit()) chooseAddress(mEndCoordinate, &View::endText);
}

void WayloomViewController::chooseAddress(Coordinate& place, QString View::*label) {
  mServices.screens.presentSelectAddress(
      [this, &place, label](double latitude, double longitude, const QString& address) {
        if (!isChosen({latitude, longitude})) return;
        place = {latitude, longitude};
        update([&](View& view) { view.*label = address; });
        showChoices();
        drawMapLine();
      });
}

void WayloomViewController::startTimeTapped() {
  if (refusesEdit()) return;
  mIsStart = true;
  showDatePicker();
}

void WayloomViewController::endTimeTapped() {
  if (refusesEdit()) return;
  mIsStart = false;
  showDatePicker();
}

void WayloomViewController::showDatePicker() {
  dp_drive.start(mServices.clock.secondsSince1970());
  update([](View& view) { view.pickerShown = true; });
}

void WayloomViewController::hideDatePicker() {
  update([](View& view) { view.pickerShown = false; });
}

void WayloomViewController::pickerValueChanged() {
  const double seconds = std::trunc(dp_drive.date());
  (mIsStart ? mStartTime : mEndTime) = seconds;
  update(
      [&](View& view) { (mIsStart ? view.startTimeText : view.endTimeText) = timeText(seconds); });
  showChoices();
}

void WayloomViewController::pickerButtonClicked() {
  hideDatePicker();
  pickerValueChanged();
}

}  // namespace wayloom
