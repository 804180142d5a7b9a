// The choices of the route screen: two places and two times.

#include <cmath>

#include <QtCore/QDateTime>

#include "kit/CopiedPosition.h"
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
        if (isChosen({latitude, longitude})) setPlace(place, label, {latitude, longitude}, address);
      });
}

void WayloomViewController::setPlace(Coordinate& place, QString View::*label, Coordinate chosen,
                                     const QString& address) {
  (&place == &mStartCoordinate ? mStartQuestion : mEndQuestion).forget();
  place = chosen;
  update([&](View& view) { view.*label = address; });
  showChoices();
  drawMapLine();
}

void WayloomViewController::startAt(QPointF place, const QString& name) {
  choosePlace(place, name, mStartCoordinate, &View::startText, mStartQuestion);
}

void WayloomViewController::endAt(QPointF place, const QString& name) {
  choosePlace(place, name, mEndCoordinate, &View::endText, mEndQuestion);
}

void WayloomViewController::choosePlace(QPointF chosen, const QString& name, Coordinate& place,
                                        QString View::*label, AddressQuestion& question) {
  const Coordinate there{chosen.y(), chosen.x()};
  if (refusesEdit()) return;
  if (!name.isEmpty()) return setPlace(place, label, there, name);
  question.ask(mServices.location, there, [this, &place, label, there](const std::string& address) {
    if (refusesEdit()) return;
    setPlace(place, label, there,
             address.empty() ? localizedText("Unknow") : QString::fromStdString(address));
  });
}

void WayloomViewController::saveFavoriteAt(QPointF place) {
  const Coordinate there{place.y(), place.x()};
  mFavoriteQuestion.ask(mServices.location, there, [this, there](const std::string& address) {
    const std::string unnamed = localizedText("Unknow").toStdString();
    if (!report(mFavorites.add(address, there, unnamed))) return;
    mStars.followFiles();
    showHUDHintText(
        localizedText(Phrase{"Added to favorites: %1", {address.empty() ? unnamed : address}}));
  });
}

void WayloomViewController::copyPosition(QPointF place) {
  const QString hint = copiedPosition({place.y(), place.x()});
  if (!hint.isEmpty()) showHUDHintText(hint);
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
