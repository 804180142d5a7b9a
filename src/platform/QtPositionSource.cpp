#include "platform/QtPositionSource.h"

#include <QtPositioning/QGeoCoordinate>

namespace wayloom {

namespace {

/// The accuracy of a fix that does not say one: a valid fix all the same.
double accuracyOf(const QGeoPositionInfo& info) {
  return info.hasAttribute(QGeoPositionInfo::HorizontalAccuracy)
             ? info.attribute(QGeoPositionInfo::HorizontalAccuracy)
             : 0;
}

}  // namespace

std::unique_ptr<PositionSource> QtPositionSource::make(std::unique_ptr<PositionSource> standIn) {
  std::unique_ptr<QGeoPositionInfoSource> source(
      QGeoPositionInfoSource::createDefaultSource(nullptr));
  if (!source) return standIn;
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
  mSource->startUpdates();
}

void QtPositionSource::stopUpdatingLocation() {
  mSource->stopUpdates();
  mStandIn->stopUpdatingLocation();
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
    mSource->stopUpdates();
    mStandIn->startUpdatingLocation();
  }
}

}  // namespace wayloom
