// The search field of the fixed-location screen, and what geocoders answer.

#include "fixed/SearchInput.h"
#include "fixed/SpotloomViewController.h"
#include "kit/LocalizedText.h"
#include "map/ShownPoint.h"
#include "settings/TrimmedText.h"

namespace wayloom {

void SpotloomViewController::setSearchText(const QString& text) {
  update([&](View& view) { view.searchText = text; });
}

void SpotloomViewController::searchButtonClicked() {
  const std::string typed = mView.searchText.toStdString();
  search({typed, typed});
}

void SpotloomViewController::search(const RecentSearch& wanted) {
  const SearchInput input = parseSearchInput(wanted.query);
  const auto begun = [&] {
    setSearchText({});
    mSearchList.close();
    Q_EMIT keyboardDismissed();
    mSearchList.remember({trimmedText(wanted.text), trimmedText(wanted.query)});
  };
  if (const auto* coordinate = std::get_if<Coordinate>(&input)) {
    begun();
    showPoint(*mMainMapView, *coordinate);
  } else if (const auto* address = std::get_if<AddressSearch>(&input)) {
    if (!report(mFixedLocation.beginAddressSearch())) return;
    begun();
    mOverlayAttached = true;
    update([](View& view) {
      view.overlayText = localizedText("Searching");
      view.overlayShown = true;
    });
    begin({FixedActivity::Kind::Searching, trimmedText(wanted.text)});
    mServices.location.coordinateWithAddress(address->address, this);
  }
}

void SpotloomViewController::offerSearches() {
  mSearchList.look(mView.searchText, mMainMapView->region().center);
}

void SpotloomViewController::chooseSearch(int row) {
  if (const auto chosen = mSearchList.choose(row)) search(*chosen);
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
