#include "fixed/SpotloomViewController.h"

#include <chrono>

#include "kit/FailureText.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"
#include "settings/ModeSwitch.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {

constexpr int kButtonInset = 86;
constexpr int kAutoPanelInset = 44;
constexpr std::chrono::seconds kTick{1};

}  // namespace

SpotloomViewController::SpotloomViewController(const Services& services, QObject* parent)
    : QObject(parent),
      mServices(services),
      mFixedLocation(services.files, services.notice),
      mFavorites(services.files),
      mSearchList(services.offers),
      mStars(services.files) {
  mDriveTimer.setInterval(kTick);
  mDriveTimer.setSingleShot(true);
  connect(&mDriveTimer, &QTimer::timeout, this, &SpotloomViewController::showStatus);
}

void SpotloomViewController::viewDidLoad(MapView* mainMapView) {
  mMainMapView = mainMapView;
  mainMapView->setTileSource(mServices.tiles);
  connect(mainMapView, &MapView::regionWillChange, this, &SpotloomViewController::regionWillChange);
  connect(mainMapView, &MapView::regionDidChange, this, &SpotloomViewController::regionDidChange);
  refreshViewByStatusWithLocation(true);
  mStars.setMap(mainMapView);
}

void SpotloomViewController::viewWillAppear() {
  mStars.followFiles();
  refreshViewByStatusWithLocation(false);
}

void SpotloomViewController::followFiles() {
  if (!mMainMapView) return;
  mStars.followFiles();
  if (!mFixedLocation.isCurrent()) {
    mStatus.setFailure({});
    refreshViewByStatusWithLocation(false);
  }
  followPosition();
  showStatus();
}

Coordinate SpotloomViewController::shownCoordinate() const {
  return mFixedLocation.coordinate().value_or(mMainMapView->region().center);
}

bool SpotloomViewController::followPosition() {
  const auto state = readFixedLocation(mServices.files);
  const auto& chosen = mFixedLocation.coordinate();
  const bool isElsewhere = state && state->enabled && state->hasCoordinate &&
                           !(chosen && isSamePosition(state->coordinate, *chosen));
  // What moves the map just now ends first.
  mMustFollow = isElsewhere && mIsMapMoving;
  if (!isElsewhere || mIsMapMoving) return false;
  mIsFollowing = true;
  mMainMapView->setCenterCoordinate(state->coordinate, Animated::No);
  mIsFollowing = false;
  mFixedLocation.setCoordinate(state->coordinate);
  return true;
}

void SpotloomViewController::refreshViewByStatusWithLocation(bool withLocation) {
  const auto refreshed = mFixedLocation.refresh();
  mStatus.setReading(refreshed.status());
  showStatus();
  if (!refreshed) mMustPlace = mMustPlace || withLocation;
  if (!refreshed) return;
  const FixedLocationState& state = *refreshed;
  update([&](View& view) {
    view.enabled = state.enabled;
    view.drifting = state.drifting;
    // With nothing stored, the panel and the slider stay as they are.
    if (state.hasSettings) {
      view.autoPanelShown = state.enabled;
      view.driftSpeed = sliderSpeed(state.driftSpeed);
    }
  });
  refreshButtonWithEnable(state.enabled);
  if (state.hasSettings) refreshAuotViewWithEnable(state.drifting);

  const bool mustPlace = std::exchange(mMustPlace, false) && !mFixedLocation.coordinate();
  if (!withLocation && !mustPlace) return;
  if (!state.enabled) {
    startLocation();
    return;
  }
  mFixedLocation.setCoordinate(state.coordinate);
  showPoint(*mMainMapView, state.coordinate);
}

void SpotloomViewController::refreshButtonWithEnable(bool enabled) {
  update([&](View& view) {
    view.buttonInset = enabled ? kButtonInset + kAutoPanelInset : kButtonInset;
  });
}

void SpotloomViewController::refreshAuotViewWithEnable(bool on) {
  update([&](View& view) { view.sliderAcceptsTouches = on; });
}

void SpotloomViewController::setEnable(bool on) {
  const View before = mView;
  const bool isForgotten = on && !mFixedLocation.hasSettings();
  if (mActivity.kind != FixedActivity::Kind::Searching) {
    mActivity = {isForgotten ? FixedActivity::Kind::TouchAgain : FixedActivity::Kind::None};
  }
  update([&](View& view) { view.enabled = on; });
  if (!keep(mFixedLocation.setEnable(on, mMainMapView->region().center), before)) return;
  refreshViewByStatusWithLocation(false);
  followPosition();
}

void SpotloomViewController::setAuto(bool on) {
  const View before = mView;
  update([&](View& view) { view.drifting = on; });
  if (keep(mFixedLocation.setAuto(on, static_cast<float>(mView.driftSpeed)), before)) {
    refreshAuotViewWithEnable(on);
  }
}

void SpotloomViewController::autoSlide(double speed) {
  const View before = mView;
  update([&](View& view) { view.driftSpeed = speed; });
  keep(mFixedLocation.autoSlide(mView.drifting, static_cast<float>(speed)), before);
}

bool SpotloomViewController::report(const Status& status) {
  // What failed may be in the file all the same, and is followed before it is named.
  if (!status && !status.isRefused()) refreshViewByStatusWithLocation(false);
  if (status) mStatus.setReading(status);
  mStatus.setFailure(failureText(status, mServices.alerts));
  showStatus();
  return static_cast<bool>(status);
}

void SpotloomViewController::showStatus() {
  const FixedLocationState state = mFixedLocation.known();
  const bool isThere = isSamePosition(state.coordinate, mAddressPlace);
  const auto drive = mServices.drive ? mServices.drive() : std::nullopt;
  if (drive) mDriveTimer.start();
  mStatus.show(fixedStatus(state, isThere ? mAddress : std::string(), drive, mActivity),
               std::nullopt, mServices.files, {SettingsFile::Location, SettingsFile::Master});
}

void SpotloomViewController::begin(FixedActivity activity) {
  mActivity = std::move(activity);
  showStatus();
}

bool SpotloomViewController::keep(const Status& written, const View& before) {
  if (written) return report(written);
  update([&](View& view) {
    view.enabled = before.enabled;
    view.drifting = before.drifting;
    view.driftSpeed = before.driftSpeed;
  });
  refreshViewByStatusWithLocation(false);
  return report(written);
}

void SpotloomViewController::exchange() {
  const Status left = mFixedLocation.leaveForRoute();
  report(left);
  if (isLeft(mServices.files, Mode::FixedLocation, left)) mServices.screens.changeToRouter();
}

void SpotloomViewController::regionWillChange() {
  mIsMapMoving = true;
  update([](View& view) { view.coordinatesText.clear(); });
  showAddress({});
}

void SpotloomViewController::regionDidChange() {
  mIsMapMoving = false;
  if (std::exchange(mMustFollow, false) && followPosition()) return;
  if (mMustPlace) {
    refreshViewByStatusWithLocation(false);
    if (mFixedLocation.coordinate()) return;  // The file's place is shown now.
  }
  // A position that no map shows stays where it is until the map is moved away from it.
  const bool stays = isBeyondTheEdge(*mMainMapView, shownCoordinate());
  const Coordinate center = stays ? shownCoordinate() : mMainMapView->region().center;
  if (!mIsFollowing && !stays && !mMustPlace) moved(mFixedLocation.centerMoved(center));
  update(
      [&](View& view) { view.coordinatesText = QString::fromStdString(coordinateText(center)); });
  mAsked.push_back(center);
  mServices.location.addressWithCoordinate(center, this);
}

void SpotloomViewController::moved(const Status& written) {
  // Where there is no file nothing was written, which tells nothing of an earlier failure.
  if (written && !mFixedLocation.hasSettings()) return;
  if (mActivity.kind == FixedActivity::Kind::NothingFound) mActivity = {};
  report(written);
}

void SpotloomViewController::showAddress(const QString& address) {
  update([&](View& view) {
    view.addressText = address;
    view.spinning = address.isEmpty();
  });
}

void SpotloomViewController::startLocation() {
  mServices.location.sharedInstacneWithDelegate(this).startLocation();
}

void SpotloomViewController::mineLocationButtonClicked() {
  update([](View& view) { view.overlayShown = true; });
  startLocation();
}

void SpotloomViewController::locationSuccess(Location* /*location*/, double latitude,
                                             double longitude) {
  update([](View& view) { view.overlayShown = false; });
  moveToPoint(*mMainMapView, {latitude, longitude});
}

void SpotloomViewController::locationFailed(Location* /*location*/,
                                            const std::optional<std::string>& /*error*/) {
  update([](View& view) { view.overlayShown = false; });
}

void SpotloomViewController::addToFavorites() {
  nameFavorite(mView.addressText, std::nullopt);
}

void SpotloomViewController::nameFavorite(const QString& name, std::optional<Coordinate> place) {
  mNamedPlace = place;
  update([&](View& view) {
    view.favoriteName = name;
    view.namingFavorite = true;
  });
}

void SpotloomViewController::okButtonClicked() {
  if (!mView.namingFavorite) return;  // The panel is fading out already.
  const Status added =
      mFavorites.add(mView.favoriteName.toStdString(), mNamedPlace.value_or(shownCoordinate()),
                     localizedText("Unknow").toStdString());
  if (!report(added)) return;
  cancelButtonClicked();
  mStars.followFiles();
}

void SpotloomViewController::cancelButtonClicked() {
  update([](View& view) { view.namingFavorite = false; });
}

void SpotloomViewController::showFavoritesView() {
  mServices.screens.presentFavorites(*this);
}

void SpotloomViewController::showInfoView() {
  mServices.screens.presentInfo();
}

void SpotloomViewController::favoritesDidSelected() {
  refreshViewByStatusWithLocation(true);
}

void SpotloomViewController::setFavoriteName(const QString& name) {
  update([&](View& view) { view.favoriteName = name; });
}

}  // namespace wayloom
