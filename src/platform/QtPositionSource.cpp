#include "platform/QtPositionSource.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtPositioning/QGeoCoordinate>

namespace wayloom {

namespace {

/// The accuracy of a fix that does not say one: a valid fix all the same.
double accuracyOf(const QGeoPositionInfo& info) {
  return info.hasAttribute(QGeoPositionInfo::HorizontalAccuracy)
             ? info.attribute(QGeoPositionInfo::HorizontalAccuracy)
             : 0;
}

/// Whether the desktop's service can be there at all. Its plugin is often installed without it, and
/// then reports every request as denied.
bool isGeoClueInstalled() {
  return QFile::exists(QStringLiteral("/run/dbus/system_bus_socket")) &&
         !QStandardPaths::locate(
              QStandardPaths::GenericDataLocation,
              QStringLiteral("dbus-1/system-services/org.freedesktop.GeoClue2.service"))
              .isEmpty();
}

}  // namespace

std::unique_ptr<PositionSource> QtPositionSource::make(std::unique_ptr<PositionSource> standIn) {
  std::unique_ptr<QGeoPositionInfoSource> source(
      QGeoPositionInfoSource::createDefaultSource(nullptr));
  const bool isGeoClue = source && source->sourceName() == QLatin1String("geoclue2");
  if (!source || (isGeoClue && !isGeoClueInstalled())) return standIn;
  return std::make_unique<QtPositionSource>(std::move(source), std::move(standIn));
}

QtPositionSource::QtPositionSource(std::unique_ptr<QGeoPositionInfoSource> source,
                                   std::unique_ptr<PositionSource> standIn)
    : mSource(std::move(source)), mStandIn(std::move(standIn)) {
  connect(mSource.get(), &QGeoPositionInfoSource::positionUpdated, this,
          &QtPositionSource::positionUpdated);
  connect(mSource.get(), &QGeoPositionInfoSource::errorOccurred, this,
          &QtPositionSource::errorOccurred);
}

void QtPositionSource::setDelegate(PositionSourceDelegate* delegate) {
  mDelegate = delegate;
  mStandIn->setDelegate(delegate);
}

void QtPositionSource::setDesiredAccuracyBest() {
  mSource->setPreferredPositioningMethods(QGeoPositionInfoSource::AllPositioningMethods);
}

void QtPositionSource::startUpdatingLocation() {
  mHasReported = false;
  mIsUpdating = true;
  mSource->startUpdates();
}

void QtPositionSource::stopUpdatingLocation() {
  stopSource();
  mStandIn->stopUpdatingLocation();
}

void QtPositionSource::stopSource() {
  if (mIsUpdating) mSource->stopUpdates();
  mIsUpdating = false;
}

void QtPositionSource::positionUpdated(const QGeoPositionInfo& info) {
  if (!mDelegate) return;
  const QGeoCoordinate position = info.coordinate();
  if (!position.isValid()) {
    mDelegate->didUpdateToLocation(std::nullopt);
    return;
  }
  const Coordinate coordinate{position.latitude(), position.longitude()};
  const QGeoCoordinate last(mLastReported.latitude, mLastReported.longitude);
  if (mHasReported && last.distanceTo(position) < mDistanceFilterMetres) return;
  mHasReported = true;
  mLastReported = coordinate;
  mDelegate->didUpdateToLocation(PositionFix{coordinate, accuracyOf(info)});
}

void QtPositionSource::errorOccurred(QGeoPositionInfoSource::Error error) {
  if (error == QGeoPositionInfoSource::NoError || !mDelegate) return;
  if (error == QGeoPositionInfoSource::AccessError) {
    mDelegate->didFailWithError(
        PositionError{PositionError::kDenied, "The system denied access to the position"});
  } else if (error == QGeoPositionInfoSource::UpdateTimeoutError) {
    mDelegate->didFailWithError(PositionError{0, "The position service gave no position"});
  } else {
    // The service is not there after all.
    stopSource();
    mStandIn->startUpdatingLocation();
  }
}

}  // namespace wayloom
