#pragma once

#include <functional>
#include <memory>

#include <QtCore/QPointer>

#include "kit/BaseViewController.h"
#include "map/MapView.h"
#include "places/LocationClass.h"
#include "places/SearchList.h"
#include "platform/Alerts.h"

namespace wayloom {

/// The address picker: the place under the pin in the middle of its map is the pick. Presented over
/// another screen, to which it hands the pick; main thread only.
class SelectAddressViewController : public wayloom::BaseViewController, public LocationDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY changed)
  Q_PROPERTY(QString addressText READ addressText NOTIFY changed)
  Q_PROPERTY(QString coordinatesText READ coordinatesText NOTIFY changed)
  Q_PROPERTY(bool spinning READ spinning NOTIFY changed)
  Q_PROPERTY(wayloom::SearchList* searchList READ searchList CONSTANT)

 public:
  /// Latitude and longitude in degrees, and the address. All are zero and empty after a cancel.
  using Block = std::function<void(double latitude, double longitude, const QString& address)>;

  struct Services {
    LocationClass& location;
    Alerts& alerts;
    std::shared_ptr<TileSource> tiles;
    /// What the search field offers; may be left out.
    SearchOffers* offers = nullptr;
  };

  /// `block` is called once, when the screen begins to leave.
  SelectAddressViewController(const Services& services, Block block, QObject* parent = nullptr);

  /// The layout is there and about to appear; `mainMapView` belongs to it.
  Q_INVOKABLE void viewDidLoad(wayloom::MapView* mainMapView);

  Q_INVOKABLE void searchButtonClicked();
  Q_INVOKABLE bool textFieldShouldReturn();
  /// Offers what fits the search field's text.
  Q_INVOKABLE void offerSearches();
  /// Searches what a row of the list offers, as if it had been typed.
  Q_INVOKABLE void chooseSearch(int row);
  Q_INVOKABLE void mineLocationButtonClicked();
  /// Copies the position whose address is shown.
  Q_INVOKABLE void copyCoordinates();
  Q_INVOKABLE void okButtonClicked();
  Q_INVOKABLE void cancelButtonClicked();
  /// Leaving by key is a cancel.
  void done() override { cancelButtonClicked(); }

  void locationSuccess(Location* location, double latitude, double longitude) override;
  void locationFailed(Location* location, const std::optional<std::string>& error) override;
  void reverseGeocoderSuccess(Location* location, const std::string& address) override;
  void reverseGeocoderFailed(Location* location, const std::optional<std::string>& error) override;
  void geocoderSuccess(Location* location, Coordinate coordinate) override;
  void geocoderFailed(Location* location, const std::optional<std::string>& error) override;
  // For geocoding services that report this way; Location does not.
  void geocoderSuccess(Location* location, const std::string& address);
  void geocoderCoordinateFailed(Location* location, const std::optional<std::string>& error);

  QString searchText() const { return mSearchText; }
  void setSearchText(const QString& text);
  QString addressText() const { return mAddressText; }
  /// Empty while the map moves.
  QString coordinatesText() const { return mCoordinatesText; }
  bool spinning() const { return mSpinning; }
  SearchList* searchList() { return &mSearchList; }

 Q_SIGNALS:
  void changed();
  /// The search field gives up the keyboard.
  void keyboardDismissed();

 private:
  void regionWillChange();
  void regionDidChange();
  void showAddress(const QString& text, bool spinning);
  void search(const RecentSearch& wanted);
  void leave(Coordinate pick, const QString& address);

  Services mServices;
  SearchList mSearchList;
  QPointer<MapView> mMainMapView;

  double latitude = 0;
  double longitude = 0;
  QString address;
  Block mBlock;
  bool mIsLoading = false;

  QString mSearchText;
  QString mAddressText;
  QString mCoordinatesText;
  bool mSpinning = false;
};

}  // namespace wayloom
