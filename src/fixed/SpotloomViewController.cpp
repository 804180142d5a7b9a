#include "fixed/SpotloomViewController.h"

#include "fixed/SearchInput.h"
#include "kit/FailureText.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"
#include "settings/ModeSwitch.h"

namespace wayloom {

namespace {

constexpr int kButtonInset = 86;
constexpr int kAutoPanelInset = 44;

}  // namespace

SpotloomViewController::SpotloomViewController(const Services& services, QObject* parent)
    : QObject(parent),
      mServices(services),
      mFixedLocation(services.files, services.notice),
      mFavorites(services.files) {}

template <typename Change>
void SpotloomViewController::update(Change&& change) {
  const View before = mView;
  change(mView);
  if (mView != before) Q_EMIT changed();
}

void SpotloomViewController::viewDidLoad(MapView* mainMapView) {
  mMainMapView = mainMapView;
  mainMapView->setTileSource(mServices.tiles);
  connect(mainMapView, &MapView::regionWillChange, this, &SpotloomViewController::regionWillChange);
  connect(mainMapView, &MapView::regionDidChange, this, &SpotloomViewController::regionDidChange);
  refreshViewByStatusWithLocation(true);
}

void SpotloomViewController::viewWillAppear() {
  refreshViewByStatusWithLocation(false);
}

void SpotloomViewController::followFiles() {
  if (!mMainMapView) return;
  if (!mFixedLocation.isCurrent()) refreshViewByStatusWithLocation(false);
  followPosition();
}

bool SpotloomViewController::followPosition() {
  const auto state = readFixedLocation(mServices.files);
  const bool isElsewhere = state && state->enabled && state->hasCoordinate &&
                           !isSamePosition(state->coordinate, mFixedLocation.coordinate());
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
  if (!report(refreshed.status())) return;
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

  if (!withLocation) return;
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
  update([&](View& view) { view.enabled = on; });
  if (keep(mFixedLocation.setEnable(on), before)) refreshViewByStatusWithLocation(false);
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
  const QString text = failureText(status, mServices.alerts);
  update([&](View& view) { view.statusText = text; });
  return static_cast<bool>(status);
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
  showAddress({});
}

void SpotloomViewController::regionDidChange() {
  mIsMapMoving = false;
  if (std::exchange(mMustFollow, false) && followPosition()) return;
  // A position that no map shows stays where it is until the map is moved away from it.
  const bool stays = isBeyondTheEdge(*mMainMapView, mFixedLocation.coordinate());
  const Coordinate center = stays ? mFixedLocation.coordinate() : mMainMapView->region().center;
  if (!mIsFollowing && !stays) report(mFixedLocation.centerMoved(center));
  mServices.location.addressWithCoordinate(center, this);
}

/// An empty address is one that is still being looked up.
void SpotloomViewController::showAddress(const QString& address) {
  update([&](View& view) {
    view.addressText = address;
    view.spinning = address.isEmpty();
  });
}

void SpotloomViewController::searchButtonClicked() {
  const SearchInput search = parseSearchInput(mView.searchText.toStdString());
  const auto clearField = [this] {
    setSearchText({});
    Q_EMIT keyboardDismissed();
  };
  if (const auto* coordinate = std::get_if<Coordinate>(&search)) {
    clearField();
    showPoint(*mMainMapView, *coordinate);
  } else if (const auto* address = std::get_if<AddressSearch>(&search)) {
    if (!report(mFixedLocation.beginAddressSearch())) return;
    clearField();
    mOverlayAttached = true;
    update([](View& view) {
      view.overlayText = localizedText("Searching");
      view.overlayShown = true;
    });
    mServices.location.coordinateWithAddress(address->address, this);
  }
}

bool SpotloomViewController::textFieldShouldReturn() {
  searchButtonClicked();
  return true;
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

void SpotloomViewController::reverseGeocoderSuccess(Location* /*location*/,
                                                    const std::string& address) {
  update([&](View& view) {
    view.addressText = QString::fromStdString(address);
    view.spinning = false;
  });
}

void SpotloomViewController::reverseGeocoderFailed(Location* location,
                                                   const std::optional<std::string>& /*error*/) {
  reverseGeocoderSuccess(location, localizedText("Unknow").toStdString());
}

void SpotloomViewController::geocoderSuccess(Location* /*location*/, Coordinate coordinate) {
  update([](View& view) { view.overlayShown = false; });
  mFixedLocation.setCoordinate(coordinate);
  showPoint(*mMainMapView, coordinate);
  report(mFixedLocation.endAddressSearch(mView.enabled));
}

void SpotloomViewController::geocoderFailed(Location* location,
                                            const std::optional<std::string>& error) {
  reverseGeocoderFailed(location, error);
}

void SpotloomViewController::geocoderSuccess(Location* location, const std::string& address) {
  reverseGeocoderSuccess(location, address);
}

void SpotloomViewController::geocoderCoordinateFailed(Location* /*location*/,
                                                      const std::optional<std::string>& /*error*/) {
  update([](View& view) { view.overlayShown = false; });
  mServices.alerts.show("", "Search Failed", "OK");
}

void SpotloomViewController::addToFavorites() {
  update([](View& view) {
    view.favoriteName = view.addressText;
    view.namingFavorite = true;
  });
}

void SpotloomViewController::okButtonClicked() {
  if (!mView.namingFavorite) return;  // The panel is fading out already.
  const Status added = mFavorites.add(mView.favoriteName.toStdString(), mFixedLocation.coordinate(),
                                      localizedText("Unknow").toStdString());
  if (report(added)) cancelButtonClicked();
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

void SpotloomViewController::setSearchText(const QString& text) {
  update([&](View& view) { view.searchText = text; });
}

void SpotloomViewController::setFavoriteName(const QString& name) {
  update([&](View& view) { view.favoriteName = name; });
}

}  // namespace wayloom
