// The menu and the stars of the fixed-location screen's map.

#include "fixed/SpotloomViewController.h"
#include "kit/CopiedPosition.h"
#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

Coordinate coordinateOf(QPointF place) {
  return {place.y(), place.x()};
}

}  // namespace

void SpotloomViewController::pinAt(QPointF place) {
  mMainMapView->setCenterCoordinate(coordinateOf(place), Animated::Yes);
}

void SpotloomViewController::saveFavoriteAt(QPointF place) {
  const Coordinate named = coordinateOf(place);
  mQuestion.ask(mServices.location, named, [this, named](const std::string& address) {
    if (mView.namingFavorite) return;  // Another is being named already.
    nameFavorite(address.empty() ? localizedText("Unknow") : QString::fromStdString(address),
                 named);
  });
}

void SpotloomViewController::copyPosition(QPointF place) {
  const QString hint = copiedPosition(coordinateOf(place));
  if (!hint.isEmpty()) Q_EMIT hintShown(hint);
}

void SpotloomViewController::copyCoordinates() {
  const Coordinate shown = shownCoordinate();
  copyPosition({shown.longitude, shown.latitude});
}

void SpotloomViewController::chooseFavorite(int star) {
  if (report(mStars.choose(star))) favoritesDidSelected();
}

}  // namespace wayloom
