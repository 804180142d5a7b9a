// The search field of the fixed-location screen, and what geocoders answer.

#include "fixed/SearchInput.h"
#include "fixed/SpotloomViewController.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"

namespace wayloom {

void SpotloomViewController::setSearchText(const QString& text) {
  update([&](View& view) { view.searchText = text; });
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
    begin({FixedActivity::Kind::Searching, address->address});
    mServices.location.coordinateWithAddress(address->address, this);
  }
}

bool SpotloomViewController::textFieldShouldReturn() {
  searchButtonClicked();
  return true;
}

void SpotloomViewController::reverseGeocoderSuccess(Location* /*location*/,
                                                    const std::string& address) {
  update([&](View& view) {
    view.addressText = QString::fromStdString(address);
    view.spinning = false;
  });
  addressKnown(address);
}

void SpotloomViewController::addressKnown(const std::string& address) {
  if (mAsked.empty()) return;
  mAddress = address;
  mAddressPlace = mAsked.front();
  mAsked.pop_front();
  showStatus();
}

void SpotloomViewController::reverseGeocoderFailed(Location* /*location*/,
                                                   const std::optional<std::string>& /*error*/) {
  showAddress(localizedText("Unknow"));
  addressKnown({});
}

void SpotloomViewController::geocoderSuccess(Location* /*location*/, Coordinate coordinate) {
  update([](View& view) { view.overlayShown = false; });
  begin({});
  mFixedLocation.setCoordinate(coordinate);
  showPoint(*mMainMapView, coordinate);
  report(mFixedLocation.endAddressSearch(mView.enabled));
}

void SpotloomViewController::geocoderFailed(Location* /*location*/,
                                            const std::optional<std::string>& /*error*/) {
  begin({FixedActivity::Kind::NothingFound, mActivity.searched});
  showAddress(localizedText("Unknow"));
}

void SpotloomViewController::geocoderSuccess(Location* location, const std::string& address) {
  reverseGeocoderSuccess(location, address);
}

void SpotloomViewController::geocoderCoordinateFailed(Location* /*location*/,
                                                      const std::optional<std::string>& /*error*/) {
  update([](View& view) { view.overlayShown = false; });
  begin({FixedActivity::Kind::NothingFound, mActivity.searched});
  mServices.alerts.show("", "Search Failed", "OK");
}

}  // namespace wayloom
