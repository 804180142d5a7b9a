#pragma once

#include <deque>
#include <functional>

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include "fixed/FixedStatus.h"
#include "kit/ScreenSwitcher.h"
#include "kit/StatusText.h"
#include "lists/FavoriteStars.h"
#include "lists/Favorites.h"
#include "lists/FavoritesDelegate.h"
#include "map/MapView.h"
#include "places/AddressQuestion.h"
#include "places/LocationClass.h"
#include "places/SearchList.h"
#include "platform/Alerts.h"

namespace wayloom {

/// The fixed-location screen: the centre of its map is the position that can be pinned. It brings
/// the controls in line with the location settings file and hands every touch to FixedLocation.
/// Made by the application and alive as long as it; main thread only.
class SpotloomViewController : public QObject, public LocationDelegate, public FavoritesDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
  Q_PROPERTY(bool autoPanelShown READ autoPanelShown NOTIFY changed)
  Q_PROPERTY(bool drifting READ drifting NOTIFY changed)
  Q_PROPERTY(double driftSpeed READ driftSpeed NOTIFY changed)
  Q_PROPERTY(double driftSpeedMinimum READ driftSpeedMinimum CONSTANT)
  Q_PROPERTY(double driftSpeedMaximum READ driftSpeedMaximum CONSTANT)
  Q_PROPERTY(bool sliderAcceptsTouches READ sliderAcceptsTouches NOTIFY changed)
  Q_PROPERTY(int buttonInset READ buttonInset NOTIFY changed)
  Q_PROPERTY(QString addressText READ addressText NOTIFY changed)
  Q_PROPERTY(QString coordinatesText READ coordinatesText NOTIFY changed)
  Q_PROPERTY(bool spinning READ spinning NOTIFY changed)
  Q_PROPERTY(bool overlayShown READ overlayShown NOTIFY changed)
  Q_PROPERTY(QString overlayText READ overlayText NOTIFY changed)
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY changed)
  Q_PROPERTY(QString favoriteName READ favoriteName WRITE setFavoriteName NOTIFY changed)
  Q_PROPERTY(bool namingFavorite READ namingFavorite NOTIFY changed)
  Q_PROPERTY(wayloom::StatusText* status READ status CONSTANT)
  Q_PROPERTY(wayloom::FavoriteStars* stars READ stars CONSTANT)
  Q_PROPERTY(wayloom::SearchList* searchList READ searchList CONSTANT)

 public:
  struct Services {
    SettingsFiles& files;
    ChangeNotice& notice;
    LocationClass& location;
    Alerts& alerts;
    ScreenSwitcher& screens;
    std::shared_ptr<TileSource> tiles;
    /// What the status line says of the drive if the route file says that it is on; may be left
    /// out.
    std::function<std::optional<Phrase>()> drive = {};
    /// What the search field offers; may be left out.
    SearchOffers* offers = nullptr;
  };

  explicit SpotloomViewController(const Services& services, QObject* parent = nullptr);

  /// The layout is there; `mainMapView` belongs to it.
  Q_INVOKABLE void viewDidLoad(wayloom::MapView* mainMapView);
  bool isViewLoaded() const { return mMainMapView; }
  /// The screen appears, or the application came to the front while it is the current one.
  void viewWillAppear();
  /// Another program may have changed the settings: the controls come in line with them and, while
  /// the position is on, the map; that move writes nothing.
  void followFiles();

  /// Reloads the settings and brings every control in line with them; with location, or where that
  /// failed before and no place was chosen since, the map too.
  void refreshViewByStatusWithLocation(bool withLocation);
  void refreshButtonWithEnable(bool enabled);
  void refreshAuotViewWithEnable(bool on);

  Q_INVOKABLE void setEnable(bool on);
  Q_INVOKABLE void exchange();
  Q_INVOKABLE void setAuto(bool on);
  Q_INVOKABLE void autoSlide(double speed);
  Q_INVOKABLE void searchButtonClicked();
  Q_INVOKABLE bool textFieldShouldReturn();
  /// Offers what fits the search field's text.
  Q_INVOKABLE void offerSearches();
  /// Searches what a row of the list offers, as if it had been typed.
  Q_INVOKABLE void chooseSearch(int row);
  Q_INVOKABLE void mineLocationButtonClicked();
  Q_INVOKABLE void addToFavorites();
  Q_INVOKABLE void okButtonClicked();
  Q_INVOKABLE void cancelButtonClicked();
  Q_INVOKABLE void showFavoritesView();
  Q_INVOKABLE void showInfoView();

  // Of the map: its menu, to which a place is a point of a longitude and a latitude, and its stars.
  Q_INVOKABLE void pinAt(QPointF place);
  /// Asks for the name of a new favorite, once the address of the place is known.
  Q_INVOKABLE void saveFavoriteAt(QPointF place);
  Q_INVOKABLE void copyPosition(QPointF place);
  /// Copies the position whose address is shown.
  Q_INVOKABLE void copyCoordinates();
  Q_INVOKABLE void chooseFavorite(int star);

  void favoritesDidSelected() override;

  void locationSuccess(Location* location, double latitude, double longitude) override;
  void locationFailed(Location* location, const std::optional<std::string>& error) override;
  void reverseGeocoderSuccess(Location* location, const std::string& address) override;
  void reverseGeocoderFailed(Location* location, const std::optional<std::string>& error) override;
  void geocoderSuccess(Location* location, Coordinate coordinate) override;
  void geocoderFailed(Location* location, const std::optional<std::string>& error) override;
  // For geocoding services that report this way; Location does not.
  void geocoderSuccess(Location* location, const std::string& address);
  void geocoderCoordinateFailed(Location* location, const std::optional<std::string>& error);

  bool enabled() const { return mView.enabled; }
  bool autoPanelShown() const { return mView.autoPanelShown; }
  bool drifting() const { return mView.drifting; }
  double driftSpeed() const { return mView.driftSpeed; }
  double driftSpeedMinimum() const { return kDriftSpeedMinimum; }
  double driftSpeedMaximum() const { return kDriftSpeedMaximum; }
  bool sliderAcceptsTouches() const { return mView.sliderAcceptsTouches; }
  int buttonInset() const { return mView.buttonInset; }
  QString addressText() const { return mView.addressText; }
  QString coordinatesText() const { return mView.coordinatesText; }
  bool spinning() const { return mView.spinning; }
  bool overlayShown() const { return mView.overlayShown && mOverlayAttached; }
  QString overlayText() const { return mView.overlayText; }
  QString searchText() const { return mView.searchText; }
  void setSearchText(const QString& text);
  QString favoriteName() const { return mView.favoriteName; }
  void setFavoriteName(const QString& name);
  bool namingFavorite() const { return mView.namingFavorite; }
  StatusText* status() { return &mStatus; }
  FavoriteStars* stars() { return &mStars; }
  SearchList* searchList() { return &mSearchList; }

 Q_SIGNALS:
  void changed();
  /// The search field gives up the keyboard.
  void keyboardDismissed();
  void hintShown(const QString& text);

 private:
  /// What the controls show.
  struct View {
    bool enabled = false;
    bool autoPanelShown = false;
    bool drifting = false;
    double driftSpeed = kDriftSpeedMinimum;
    bool sliderAcceptsTouches = false;
    int buttonInset = 0;
    QString addressText;
    QString coordinatesText;
    bool spinning = false;
    bool overlayShown = false;
    QString overlayText;
    QString searchText;
    QString favoriteName;
    bool namingFavorite = false;

    bool operator==(const View&) const = default;
  };

  /// Applies a change to what the controls show and announces it if there is one.
  template <typename Change>
  void update(Change&& change) {
    const View before = mView;
    change(mView);
    if (mView != before) Q_EMIT changed();
  }

  /// Shows what kept something from being done: a rule in an alert, anything else in the status
  /// line, which a success clears. True after a success.
  bool report(const Status& status);
  /// The same for what a switch or the slider wrote: after a failure they show what they showed
  /// `before`, or what the file says if it can be read.
  bool keep(const Status& written, const View& before);
  void showStatus();
  /// What is going on, which no file says, from now on.
  void begin(FixedActivity activity);
  /// The position that was chosen, or what the map shows as long as none was.
  Coordinate shownCoordinate() const;
  /// Moves the map to the file's position if that is on and elsewhere; true if it did.
  bool followPosition();
  void regionWillChange();
  void regionDidChange();
  void moved(const Status& written);
  void addressKnown(const std::string& address);
  /// An empty address is one that is still being looked up.
  void showAddress(const QString& address);
  void startLocation();
  void search(const RecentSearch& wanted);
  void nameFavorite(const QString& name, std::optional<Coordinate> place);

  Services mServices;
  FixedLocation mFixedLocation;
  Favorites mFavorites;
  QPointer<MapView> mMainMapView;
  View mView;
  StatusText mStatus;
  SearchList mSearchList;
  FavoriteStars mStars;
  AddressQuestion mQuestion;
  /// The place that is being named; the pinned position without one.
  std::optional<Coordinate> mNamedPlace;
  FixedActivity mActivity;
  /// Whose addresses were asked for and are not known yet; the answers come in this order.
  std::deque<Coordinate> mAsked;
  /// The address that came last, empty where there is none, and of which place.
  std::string mAddress;
  Coordinate mAddressPlace;
  /// While a drive is on, how far it is.
  QTimer mDriveTimer;
  /// A move of the map is under way.
  bool mIsMapMoving = false;
  /// That move only follows the file.
  bool mIsFollowing = false;
  /// The files could not be read when the map was to be placed by them: it is once they can.
  bool mMustPlace = false;
  /// The file's position changed meanwhile: it is followed when the move ends.
  bool mMustFollow = false;
  /// The overlay is attached to no view until the first address search; showing it before that
  /// shows nothing.
  bool mOverlayAttached = false;
};

}  // namespace wayloom
