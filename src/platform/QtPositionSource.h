#pragma once

#include <functional>
#include <memory>

#include <QtCore/QObject>
#include <QtPositioning/QGeoPositionInfoSource>

#include "platform/PositionSource.h"

namespace wayloom {

/// The position service of the system through Qt Positioning. Where the service turns out not to
/// run, a stand-in answers in its place. Main thread only.
class QtPositionSource : public QObject, public PositionSource {
  Q_OBJECT

 public:
  /// The system's default source, or `standIn` itself when there is none.
  static std::unique_ptr<PositionSource> make(std::unique_ptr<PositionSource> standIn);

  QtPositionSource(std::unique_ptr<QGeoPositionInfoSource> source,
                   std::unique_ptr<PositionSource> standIn);

  void setDelegate(PositionSourceDelegate* delegate) override;
  void setDesiredAccuracyBest() override;
  void setDistanceFilter(double metres) override { mDistanceFilterMetres = metres; }
  void requestWhenInUseAuthorization() override {}
  void requestAlwaysAuthorization() override {}
  void startUpdatingLocation() override;
  void stopUpdatingLocation() override;

 private:
  void positionUpdated(const QGeoPositionInfo& info);
  void errorOccurred(QGeoPositionInfoSource::Error error);
  void stopSource();

  std::unique_ptr<QGeoPositionInfoSource> mSource;
  std::unique_ptr<PositionSource> mStandIn;
  PositionSourceDelegate* mDelegate = nullptr;
  double mDistanceFilterMetres = 0;
  Coordinate mLastReported;
  bool mHasReported = false;
  bool mIsUpdating = false;
};

}  // namespace wayloom
