#include "places/SelectAddressViewController.h"

#include <utility>

#include "kit/CopiedPosition.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"
#include "settings/TextConversions.h"
#include "settings/TrimmedText.h"

namespace wayloom {

SelectAddressViewController::SelectAddressViewController(const Services& services, Block block,
                                                         QObject* parent)
    : BaseViewController(parent),
      mServices(services),
      mSearchList(services.offers),
      mBlock(std::move(block)) {}

void SelectAddressViewController::viewDidLoad(MapView* mainMapView) {
  mMainMapView = mainMapView;
  mainMapView->setTileSource(mServices.tiles);
  connect(mainMapView, &MapView::regionWillChange, this,
          &SelectAddressViewController::regionWillChange);
  connect(mainMapView, &MapView::regionDidChange, this,
          &SelectAddressViewController::regionDidChange);
  mineLocationButtonClicked();
}

void SelectAddressViewController::mineLocationButtonClicked() {
  showHUDView();
  mServices.location.sharedInstacneWithDelegate(this).startLocation();
}

void SelectAddressViewController::locationSuccess(Location* /*location*/, double /*latitude*/,
                                                  double /*longitude*/) {
  hideHUDView();
  if (!mMainMapView) return;
  moveToPoint(*mMainMapView, {mServices.location.latitude(), mServices.location.longitude()});
}

void SelectAddressViewController::locationFailed(Location* /*location*/,
                                                 const std::optional<std::string>& /*error*/) {
  hideHUDView();
}

void SelectAddressViewController::regionWillChange() {
  // Until the map has settled there is nothing that OK could hand back.
  mIsLoading = true;
  mCoordinatesText.clear();
  showAddress({}, true);
}

void SelectAddressViewController::regionDidChange() {
  mIsLoading = true;
  const Coordinate center = mMainMapView->region().center;
  latitude = center.latitude;
  longitude = center.longitude;
  mCoordinatesText = QString::fromStdString(coordinateText(center));
  Q_EMIT changed();
  mServices.location.addressWithCoordinate(center, this);
}

void SelectAddressViewController::showAddress(const QString& text, bool spinning) {
  mAddressText = text;
  mSpinning = spinning;
  Q_EMIT changed();
}

void SelectAddressViewController::reverseGeocoderSuccess(Location* /*location*/,
                                                         const std::string& found) {
  mIsLoading = false;
  address = found.empty() ? localizedText("Unknow") : QString::fromStdString(found);
  showAddress(address, false);
}

void SelectAddressViewController::reverseGeocoderFailed(
    Location* location, const std::optional<std::string>& /*error*/) {
  reverseGeocoderSuccess(location, {});
}

void SelectAddressViewController::searchButtonClicked() {
  const std::string typed = trimmedText(mSearchText.toStdString());
  if (!typed.empty()) search({typed, typed});
}

void SelectAddressViewController::search(const RecentSearch& wanted) {
  setSearchText({});
  mSearchList.close();
  Q_EMIT keyboardDismissed();
  mSearchList.remember(wanted);
  showHUDView();
  mServices.location.coordinateWithAddress(wanted.query, this);
}

void SelectAddressViewController::offerSearches() {
  mSearchList.look(mSearchText, mMainMapView->region().center);
}

void SelectAddressViewController::chooseSearch(int row) {
  if (const auto chosen = mSearchList.choose(row)) search(*chosen);
}

bool SelectAddressViewController::textFieldShouldReturn() {
  searchButtonClicked();
  return true;
}

void SelectAddressViewController::geocoderSuccess(Location* /*location*/, Coordinate coordinate) {
  mIsLoading = false;
  hideHUDView();
  longitude = coordinate.longitude;
  latitude = coordinate.latitude;
  if (mMainMapView) showPoint(*mMainMapView, coordinate);
}

void SelectAddressViewController::geocoderFailed(Location* /*location*/,
                                                 const std::optional<std::string>& /*error*/) {
  mIsLoading = false;
  showAddress(localizedText("Unknow"), false);
}

void SelectAddressViewController::geocoderSuccess(Location* location, const std::string& found) {
  reverseGeocoderSuccess(location, found);
}

void SelectAddressViewController::geocoderCoordinateFailed(
    Location* /*location*/, const std::optional<std::string>& /*error*/) {
  mIsLoading = false;
  hideHUDView();
  mServices.alerts.show("", "Search Failed", "OK");
}

void SelectAddressViewController::copyCoordinates() {
  const QString hint = copiedPosition({latitude, longitude});
  if (!hint.isEmpty()) showHUDHintText(hint);
}

void SelectAddressViewController::okButtonClicked() {
  if (mIsLoading) {
    showHUDHintText(localizedText("Address is loading, please wait"));
    return;
  }
  if (address.isEmpty()) address = localizedText("Unknow");
  leave({latitude, longitude}, address);
}

void SelectAddressViewController::cancelButtonClicked() {
  leave({}, {});
}

void SelectAddressViewController::leave(Coordinate pick, const QString& pickedAddress) {
  Q_EMIT dismissed();
  if (const Block block = std::exchange(mBlock, {})) {
    block(pick.latitude, pick.longitude, pickedAddress);
  }
}

void SelectAddressViewController::setSearchText(const QString& text) {
  if (text == mSearchText) return;
  mSearchText = text;
  Q_EMIT changed();
}

}  // namespace wayloom
