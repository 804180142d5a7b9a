#include "route/WayloomViewController.h"

#include <chrono>

#include "fixed/FixedStatus.h"
#include "kit/FailureText.h"
#include "kit/LocalizedText.h"
#include "kit/ShownText.h"
#include "map/ShownPoint.h"
#include "route/DriveStatus.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kTick{1};
constexpr std::chrono::seconds kChoiceTick{10};

}  // namespace

WayloomViewController::WayloomViewController(const Services& services, QObject* parent)
    : BaseViewController(parent),
      mServices(services),
      mSimulation(services.files, services.clock, services.background),
      mPlan(services.directions, this),
      mFavorites(services.files),
      mStars(services.files) {
  mTimer.setInterval(kTick);
  connect(&mTimer, &QTimer::timeout, this, &WayloomViewController::refreshLocation);
  mChoiceTimer.setInterval(kChoiceTick);
  connect(&mChoiceTimer, &QTimer::timeout, this, &WayloomViewController::showStatus);
  connect(&mPlan, &PathPlan::started, this, [this] { showHUDView(); });
  connect(&mPlan, &PathPlan::ended, this, [this] { hideHUDView(); });
  connect(&mPlan, &PathPlan::answered, this, &WayloomViewController::showStatus);
  connect(&mPlan, &PathPlan::planned, this, [this] { mSimulation.prepare(*mPlan.points()); });
  connect(&dp_drive, &DatePicker::valueChanged, this, [this] {
    if (mView.pickerShown) pickerValueChanged();
  });
}

void WayloomViewController::viewDidLoad(MapView* map) {
  mv_main = map;
  map->setTileSource(mServices.tiles);
  mPlan.setMapView(map);
  mStars.setMap(map);
  mPlan.setPoints({});
  update([](View& view) {
    view.startText = localizedText("Please choose Start");
    view.endText = localizedText("Please choose End");
    view.startTimeText = localizedText("Please choose Start Time");
    view.endTimeText = localizedText("Please choose End Time");
  });
  dp_drive.start(mServices.clock.secondsSince1970());

  refresh();
  mShownVersion = mSimulation.preferences().version;
  const bool isOn = mSimulation.preferences().enabled();
  update([&](View& view) {
    view.enabled = isOn;
    view.tipText.clear();
  });
  if (isOn) {
    restore();
  } else {
    mServices.location.sharedInstacneWithDelegate(this).startLocation();
  }
}

void WayloomViewController::restore() {
  const RoutePreferences& preferences = mSimulation.preferences();
  const std::int32_t now = mSimulation.now();
  mStartTime = preferences.start();
  mEndTime = preferences.end();
  mPlan.setPoints(preferences.points ? *preferences.points : RoutePoints());
  mStartCoordinate = mPlan.points()->first();
  mEndCoordinate = mPlan.points()->last();
  drawMapLine();
  up();
  update([&](View& view) {
    view.tipText = localizedText("Wayloom is working");
    view.startText = shownText(preferences.startText());
    view.endText = shownText(preferences.endText());
    view.startTimeText = timeText(mStartTime);
    view.endTimeText = timeText(mEndTime);
  });
  follow(positionAt(now, preferences));
  mTimer.start();
}

void WayloomViewController::refresh() {
  mStatus.setReading(mSimulation.refresh());
  showStatus();
}

void WayloomViewController::viewWillAppear() {
  mStars.followFiles();
  refresh();
  showSwitch();
}

void WayloomViewController::followFiles() {
  if (!mv_main || mSimulation.isWriting()) return;
  mStars.followFiles();
  if (!mSimulation.isCurrent()) refresh();
  const RoutePreferences& preferences = mSimulation.preferences();
  showStatus();
  if (std::exchange(mShownVersion, preferences.version) == preferences.version) return;
  mStatus.setFailure({});
  showSwitch();
  if (preferences.enabled()) {
    restore();
  } else if (mTimer.isActive()) {
    endDrive();
  }
}

void WayloomViewController::showSwitch() {
  if (mSimulation.isWriting()) return;
  update([this](View& view) { view.enabled = mSimulation.preferences().enabled(); });
}

bool WayloomViewController::report(const Status& status) {
  mStatus.setFailure(failureText(status, mServices.alerts));
  showStatus();
  return static_cast<bool>(status);
}

std::optional<Phrase> WayloomViewController::statusOfDrive() {
  if (!mSimulation.isCurrent()) refresh();
  return statusWhileOn(mSimulation.now(), mSimulation.preferences());
}

Phrase WayloomViewController::statusPhrase() {
  const auto drive = statusWhileOn(mSimulation.now(), mSimulation.preferences());
  // The other simulation may be on all the same.
  const auto fixed = readFixedLocation(mServices.files);
  if (fixed && fixed->enabled) return fixedStatus(*fixed, addressOf(*fixed), drive);
  if (drive) return *drive;
  return mIsChoosing ? choiceStatus(mSimulation.now(), choices(), mPlan.drive()) : Phrase{"Off"};
}

const std::string& WayloomViewController::addressOf(const FixedLocationState& fixed) {
  if (fixed.hasCoordinate && mAsked != fixed.coordinate) {
    mAsked = fixed.coordinate;
    mAddress.clear();
    ++mAnswersDue;
    mServices.location.addressWithCoordinate(fixed.coordinate, this);
  }
  return mAddress;
}

void WayloomViewController::addressKnown(const std::string& address) {
  if (--mAnswersDue > 0) return;  // They come in the order of the questions.
  mAddress = address;
  showStatus();
}

void WayloomViewController::reverseGeocoderSuccess(Location* /*location*/,
                                                   const std::string& address) {
  addressKnown(address);
}

void WayloomViewController::reverseGeocoderFailed(Location* /*location*/,
                                                  const std::optional<std::string>& /*error*/) {
  addressKnown({});
}

void WayloomViewController::showStatus() {
  if (mSimulation.isWriting()) return;
  mStatus.show(statusPhrase(), progressAt(mSimulation.now(), mSimulation.preferences()),
               mServices.files, {SettingsFile::Route, SettingsFile::Master});
}

void WayloomViewController::showChoices() {
  mIsChoosing = true;
  mChoiceTimer.start();
  showStatus();
}

void WayloomViewController::setEnable(bool on) {
  update([on](View& view) { view.enabled = on; });
  if (on) {
    turnOn();
  } else {
    turnOff();
  }
}

void WayloomViewController::turnOn() {
  mSimulation.turnOn(choices(), mPlan.points(), mPlan.isRouteError(),
                     [this](const Result<double>& startTime) { turnedOn(startTime); });
  if (mSimulation.isWriting()) showHUDView();
}

void WayloomViewController::turnedOn(const Result<double>& startTime) {
  if (!mSimulation.isWriting()) hideHUDView();
  report(startTime.status());
  showSwitch();
  mShownVersion = mSimulation.preferences().version;
  if (!mView.enabled) return;
  mStartTime = startTime ? *startTime : mSimulation.preferences().start();
  update([](View& view) { view.tipText = localizedText("Wayloom is working"); });
  up();
  drawMapLine();
  mTimer.start();
}

void WayloomViewController::turnOff() {
  mSimulation.turnOff([this](const Status& status) { turnedOff(status); });
  if (mSimulation.isWriting()) showHUDView();
}

void WayloomViewController::turnedOff(const Status& status) {
  if (!mSimulation.isWriting()) hideHUDView();
  report(status);
  showSwitch();
  mShownVersion = mSimulation.preferences().version;
  if (!mView.enabled) endDrive();
}

void WayloomViewController::endDrive() {
  mIsChoosing = false;
  mChoiceTimer.stop();
  showStatus();
  update([](View& view) { view.tipText.clear(); });
  down();
  mPlan.cleanPath();
  mPlan.cleanStart();
  mPlan.cleanEnd();
  if (mv_main) mv_main->setShowsUserLocation(false);
  mTimer.stop();
}

void WayloomViewController::refreshLocation() {
  follow(mSimulation.position());
  showStatus();
}

void WayloomViewController::follow(std::optional<Coordinate> position) {
  if (!mv_main || !position) return;
  mv_main->setUserLocation(position);
  mv_main->setShowsUserLocation(true);
  showPoint(*mv_main, *position);
}

void WayloomViewController::drawMapLine() {
  mPlan.drawMapLine(mStartCoordinate, mEndCoordinate);
}

void WayloomViewController::exchange() {
  const Status left = mSimulation.leaveForFixedLocation();
  report(left);
  if (isLeft(mServices.files, Mode::Route, left)) mServices.screens.changeToLocation();
}

void WayloomViewController::showInfoView() {
  mServices.screens.presentInfo();
}

void WayloomViewController::mineLocationButtonClicked() {
  showHUDView();
  mServices.location.sharedInstacneWithDelegate(this).startLocation();
}

void WayloomViewController::locationSuccess(Location* /*location*/, double /*latitude*/,
                                            double /*longitude*/) {
  hideHUDView();
  if (!mv_main) return;
  moveToPoint(*mv_main, {mServices.location.latitude(), mServices.location.longitude()});
}

void WayloomViewController::locationFailed(Location* /*location*/,
                                           const std::optional<std::string>& /*error*/) {
  hideHUDView();
}

void WayloomViewController::up() {
  update([](View& view) { view.collapsed = true; });
}

void WayloomViewController::down() {
  update([](View& view) { view.collapsed = false; });
}

void WayloomViewController::upDown() {
  if (mView.collapsed) {
    down();
  } else {
    up();
  }
}

}  // namespace wayloom
