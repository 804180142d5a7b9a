#pragma once

#include <memory>

#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include "fixed/FixedLocation.h"
#include "kit/BaseViewController.h"
#include "kit/DatePicker.h"
#include "kit/ScreenSwitcher.h"
#include "kit/StatusText.h"
#include "lists/FavoriteStars.h"
#include "map/MapView.h"
#include "places/AddressQuestion.h"
#include "places/LocationClass.h"
#include "platform/Alerts.h"
#include "route/PathPlan.h"
#include "route/RouteSimulation.h"

namespace wayloom {

/// The route screen: two places, two times, and the drive between them. While the drive is on, the
/// map follows it once a second and every choice is locked. Made by the application and alive as
/// long as it; main thread only.
class WayloomViewController : public wayloom::BaseViewController, public LocationDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(bool enabled READ enabled NOTIFY changed)
  Q_PROPERTY(bool collapsed READ collapsed NOTIFY changed)
  Q_PROPERTY(bool pickerShown READ pickerShown NOTIFY changed)
  Q_PROPERTY(QString startText READ startText NOTIFY changed)
  Q_PROPERTY(QString endText READ endText NOTIFY changed)
  Q_PROPERTY(QString startTimeText READ startTimeText NOTIFY changed)
  Q_PROPERTY(QString endTimeText READ endTimeText NOTIFY changed)
  Q_PROPERTY(QString tipText READ tipText NOTIFY changed)
  Q_PROPERTY(wayloom::StatusText* status READ status CONSTANT)
  Q_PROPERTY(wayloom::FavoriteStars* stars READ stars CONSTANT)
  Q_PROPERTY(wayloom::DatePicker* picker READ picker CONSTANT)

 public:
  struct Services {
    SettingsFiles& files;
    const Clock& clock;
    /// Where and how the files of long drives are written.
    RouteSimulation::Background background;
    Directions& directions;
    LocationClass& location;
    Alerts& alerts;
    ScreenSwitcher& screens;
    std::shared_ptr<TileSource> tiles;
  };

  explicit WayloomViewController(const Services& services, QObject* parent = nullptr);

  /// The layout is there; `mv_main` belongs to it.
  Q_INVOKABLE void viewDidLoad(wayloom::MapView* mv_main);
  bool isViewLoaded() const { return mv_main; }
  /// The screen appears, or the application came to the front while it is the current one.
  void viewWillAppear();
  /// Another program may have changed the route file: a drive that was turned on there goes on here
  /// as after a start, one that was turned off ends.
  void followFiles() override;
  /// What the status line says of the drive if the route file says that it is on, shown or not.
  std::optional<Phrase> statusOfDrive();

  Q_INVOKABLE void setEnable(bool on);
  /// Shows where the drive is now.
  void refreshLocation();
  Q_INVOKABLE void exchange();
  Q_INVOKABLE void showInfoView();
  Q_INVOKABLE void mineLocationButtonClicked();
  void hideKeyboard() {}

  Q_INVOKABLE void startTapped();
  Q_INVOKABLE void endTapped();
  Q_INVOKABLE void startTimeTapped();
  Q_INVOKABLE void endTimeTapped();

  // Of the map's menu, to which a place is a point of a longitude and a latitude. A place without a
  // name is given its address.
  Q_INVOKABLE void startAt(QPointF place, const QString& name);
  Q_INVOKABLE void endAt(QPointF place, const QString& name);
  Q_INVOKABLE void saveFavoriteAt(QPointF place);
  Q_INVOKABLE void copyPosition(QPointF place);

  void showDatePicker();
  void hideDatePicker();
  void pickerValueChanged();
  Q_INVOKABLE void pickerButtonClicked();

  void up();
  void down();
  Q_INVOKABLE void upDown();

  void locationSuccess(Location* location, double latitude, double longitude) override;
  void locationFailed(Location* location, const std::optional<std::string>& error) override;
  void reverseGeocoderSuccess(Location* location, const std::string& address) override;
  void reverseGeocoderFailed(Location* location, const std::optional<std::string>& error) override;

  bool enabled() const { return mView.enabled; }
  bool collapsed() const { return mView.collapsed; }
  bool pickerShown() const { return mView.pickerShown; }
  QString startText() const { return mView.startText; }
  QString endText() const { return mView.endText; }
  QString startTimeText() const { return mView.startTimeText; }
  QString endTimeText() const { return mView.endTimeText; }
  QString tipText() const { return mView.tipText; }
  StatusText* status() { return &mStatus; }
  DatePicker* picker() { return &dp_drive; }
  FavoriteStars* stars() { return &mStars; }

 Q_SIGNALS:
  void changed();

 private:
  /// What the controls show.
  struct View {
    bool enabled = false;
    bool collapsed = false;
    bool pickerShown = false;
    QString startText;
    QString endText;
    QString startTimeText;
    QString endTimeText;
    QString tipText;

    bool operator==(const View&) const = default;
  };

  /// Applies a change to what the controls show and announces it if there is one.
  template <typename Change>
  void update(Change&& change) {
    const View before = mView;
    change(mView);
    if (mView != before) Q_EMIT changed();
  }

  void turnOn();
  void turnedOn(const Result<double>& startTime);
  void turnOff();
  void turnedOff(const Status& status);
  /// What shows a drive goes.
  void endDrive();
  /// Shows what kept something from being done: a rule in an alert, anything else in the status
  /// line, which a success clears. True after a success.
  bool report(const Status& status);
  /// Reads the file again.
  void refresh();
  void showStatus();
  Phrase statusPhrase();
  /// The address of the fixed position, which may be on while this screen is shown; empty while it
  /// is asked for.
  const std::string& addressOf(const FixedLocationState& fixed);
  void addressKnown(const std::string& address);
  /// The status line says what is chosen, from now on.
  void showChoices();
  /// The switch shows what the file says.
  void showSwitch();
  void restore();
  void follow(std::optional<Coordinate> position);
  void drawMapLine();
  /// Shows a hint and is true while the drive is on.
  bool refusesEdit();
  void chooseAddress(Coordinate& place, QString View::*label);
  void choosePlace(QPointF chosen, const QString& name, Coordinate& place, QString View::*label,
                   AddressQuestion& question);
  void setPlace(Coordinate& place, QString View::*label, Coordinate chosen, const QString& address);
  RouteChoices choices() const;
  /// A chosen time as its label shows it.
  static QString timeText(double secondsSince1970);

  Services mServices;
  RouteSimulation mSimulation;
  PathPlan mPlan;
  Favorites mFavorites;
  FavoriteStars mStars;
  AddressQuestion mStartQuestion, mEndQuestion, mFavoriteQuestion;
  DatePicker dp_drive;
  QPointer<MapView> mv_main;
  QTimer mTimer;
  View mView;
  StatusText mStatus;
  /// Something was chosen, or planned, since the last drive.
  bool mIsChoosing = false;
  /// Brings the time that a chosen drive has left up to date.
  QTimer mChoiceTimer;
  /// Whose address was asked for last, its address, and how many answers are to come.
  std::optional<Coordinate> mAsked;
  std::string mAddress;
  int mAnswersDue = 0;

  /// The drive's file that tip, panel, path and timer belong to.
  std::optional<FileVersion> mShownVersion;
  bool mIsStart = true;
  Coordinate mStartCoordinate;
  Coordinate mEndCoordinate;
  /// Whole seconds since 1970; 0 when not chosen.
  double mStartTime = 0;
  double mEndTime = 0;
};

}  // namespace wayloom
