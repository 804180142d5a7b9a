#include "fixed/SpotloomViewController.h"

#include "fixed/SearchInput.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"

namespace wayloom {

namespace {

constexpr int kButtonInset = 86;
constexpr int kAutoPanelInset = 44;

/// Write results are for the command line; on the screen the files themselves tell.
void ignore(const Status& /*result*/) {}

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

void SpotloomViewController::refreshViewByStatusWithLocation(bool withLocation) {
  const FixedLocationState state = mFixedLocation.refresh();
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
  update([&](View& view) { view.enabled = on; });
  ignore(mFixedLocation.setEnable(on));
  refreshViewByStatusWithLocation(false);
}

void SpotloomViewController::setAuto(bool on) {
  update([&](View& view) { view.drifting = on; });
  ignore(mFixedLocation.setAuto(on, static_cast<float>(mView.driftSpeed)));
  refreshAuotViewWithEnable(on);
}

void SpotloomViewController::autoSlide(double speed) {
  update([&](View& view) { view.driftSpeed = speed; });
  ignore(mFixedLocation.autoSlide(mView.drifting, static_cast<float>(speed)));
}

void SpotloomViewController::exchange() {
  if (const char* refusal = mFixedLocation.refusalToLeave()) {
    mServices.alerts.show("", refusal, "OK");
    return;
  }
  ignore(mFixedLocation.leaveForRoute());
  mServices.screens.changeToRouter();
}

void SpotloomViewController::regionWillChange() {
  showAddress({});
}

void SpotloomViewController::regionDidChange() {
  const Coordinate center = mMainMapView->region().center;
  ignore(mFixedLocation.centerMoved(center));
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
    ignore(mFixedLocation.beginAddressSearch());
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
  ignore(mFixedLocation.endAddressSearch(mView.enabled));
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
  ignore(mFavorites.add(mView.favoriteName.toStdString(), mFixedLocation.coordinate(),
                        localizedText("Unknow").toStdString()));
  cancelButtonClicked();
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
