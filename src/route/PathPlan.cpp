#include "route/PathPlan.h"

#include <algorithm>
#include <utility>

#include <QtGui/QImage>
#include <QtGui/QImageReader>

#include "geo/MapRegion.h"
#include "route/RouteSimulation.h"

namespace wayloom {

namespace {

constexpr std::int32_t kStartTag = 111111;
constexpr std::int32_t kEndTag = 222222;

constexpr double kLineWidthPoints = 2.5;
const QColor kLineColor = QColor::fromRgbF(0, 1, 0);

QImage markerImage(const char* name) {
  // Finer than most screens, so that it is crisp on all.
  constexpr int kScale = 3;
  QImageReader reader(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(name)));
  reader.setScaledSize(reader.size() * kScale);
  QImage image = reader.read();
  image.setDevicePixelRatio(kScale);
  return image;
}

std::shared_ptr<const MapPointAnnotation> marker(Coordinate place, std::int32_t tag) {
  static const QImage kStart = markerImage("icon_start");
  static const QImage kEnd = markerImage("icon_end");
  return std::make_shared<const MapPointAnnotation>(MapPointAnnotation{
      .coordinate = place, .tag = tag, .image = tag == kStartTag ? kStart : kEnd});
}

}  // namespace

PathPlan::PathPlan(Directions& directions, QObject* parent)
    : QObject(parent), mDirections(directions) {}

void PathPlan::setPoints(RoutePoints points) {
  mPoints = std::make_shared<RoutePoints>(std::move(points));
}

void PathPlan::drawMapLine(Coordinate start, Coordinate end) {
  if (isChosen(start) && isChosen(end)) findDirectionsFromTo(start, end);
}

void PathPlan::findDirectionsFromTo(Coordinate source, Coordinate destination) {
  Q_EMIT started();
  mIsRouteError = false;
  mDrive.reset();
  mDirections.calculate(
      {.source = source, .destination = destination, .requestsAlternateRoutes = true},
      [self = QPointer(this), source, destination](const DirectionsAnswer& answer) {
        if (self) self->complete(source, destination, answer);
      });
}

void PathPlan::complete(Coordinate source, Coordinate destination, const DirectionsAnswer& answer) {
  Q_EMIT ended();
  cleanStart();
  cleanEnd();
  cleanPath();
  if (answer.error || answer.routes.empty() || answer.routes.front().polyline.empty()) {
    mIsRouteError = true;
    mDrive = PlannedDrive{.hasFailed = true};
    Q_EMIT answered();
    return;
  }
  const Route& route = answer.routes.front();
  const std::vector<Coordinate>& path = route.polyline;
  mDrive = PlannedDrive{.metres = route.distanceMetres, .seconds = route.expectedSeconds};
  *mPoints = RoutePoints::planned(path);
  Q_EMIT planned();
  Q_EMIT answered();
  if (!mMapView) return;
  buildStart();
  buildEnd();
  mMapView->addOverlay(std::make_shared<const MapPolyline>(MapPolyline{
      std::make_shared<const std::vector<Coordinate>>(path), kLineWidthPoints, kLineColor}));
  mMapView->setRegion(mMapView->regionThatFits(regionBetween(source, destination)), Animated::Yes);
}

// On purpose, the start marker stands at the end of the path and the end marker at its start.

void PathPlan::buildStart() {
  mMapView->addAnnotation(marker(mPoints->last(), kStartTag));
}

void PathPlan::buildEnd() {
  mMapView->addAnnotation(marker(mPoints->first(), kEndTag));
}

void PathPlan::cleanStart() {
  removeFirst(kStartTag);
}

void PathPlan::cleanEnd() {
  removeFirst(kEndTag);
}

void PathPlan::removeFirst(std::int32_t tag) {
  if (!mMapView) return;
  const auto annotations = mMapView->annotations();
  const auto found = std::find_if(annotations.begin(), annotations.end(),
                                  [tag](const auto& annotation) { return annotation->tag == tag; });
  if (found != annotations.end()) mMapView->removeAnnotation(*found);
}

void PathPlan::cleanPath() {
  if (!mMapView) return;
  for (const auto& overlay : mMapView->overlays()) mMapView->removeOverlay(overlay);
}

}  // namespace wayloom
