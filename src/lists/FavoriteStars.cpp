#include "lists/FavoriteStars.h"

#include <chrono>
#include <utility>

#include "kit/ShownText.h"
#include "settings/TextConversions.h"

namespace wayloom {

namespace {
constexpr std::size_t kMostStars = 50;
// A moving map is not looked through for each of its steps.
constexpr std::chrono::milliseconds kPause{50};
}  // namespace

FavoriteStars::FavoriteStars(SettingsFiles& files, QObject* parent)
    : QAbstractListModel(parent), mFavorites(files) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kPause);
  connect(&mSoon, &QTimer::timeout, this, &FavoriteStars::showView);
}

void FavoriteStars::setMap(MapView* map) {
  mMap = map;
  connect(map, &MapView::cameraMoved, this, [this] {
    if (!mSoon.isActive()) mSoon.start();
  });
  followFiles();
}

void FavoriteStars::followFiles() {
  if (mFavorites.isCurrent() && !mAll.empty()) return;
  // What cannot be read leaves the stars as they were.
  static_cast<void>(mFavorites.load());
  beginResetModel();
  mAll.clear();
  mShown.clear();
  for (std::size_t index = 0; index < mFavorites.entries().size(); ++index) {
    if (const auto place = coordinateOf(index)) mAll.push_back({index, *place});
  }
  endResetModel();
  showView();
}

std::optional<Coordinate> FavoriteStars::coordinateOf(std::size_t index) const {
  const PropertyList* latitude = mFavorites.value(index, "latitude");
  const PropertyList* longitude = mFavorites.value(index, "longitude");
  if (!latitude || !longitude) return std::nullopt;
  const Coordinate place{doubleValue(latitude), doubleValue(longitude)};
  return isOnGlobe(place) ? std::optional(place) : std::nullopt;
}

void FavoriteStars::showView() {
  if (!mMap) return;
  const QRectF view = mMap->boundingRect();
  std::vector<Star> shown;
  for (const Star& star : mAll) {
    if (shown.size() == kMostStars) break;
    if (view.contains(mMap->viewPoint(star.coordinate))) shown.push_back(star);
  }
  if (shown == mShown) return;
  beginResetModel();
  mShown = std::move(shown);
  endResetModel();
}

Status FavoriteStars::choose(int row) {
  if (row < 0 || row >= rowCount()) return done();
  return mFavorites.choose(mShown[static_cast<std::size_t>(row)].index);
}

int FavoriteStars::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mShown.size());
}

QVariant FavoriteStars::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Star& star = mShown[static_cast<std::size_t>(index.row())];
  if (role == Name) return shownText(mFavorites.name(star.index));
  if (role == Place) return QPointF(star.coordinate.longitude, star.coordinate.latitude);
  return {};
}

QHash<int, QByteArray> FavoriteStars::roleNames() const {
  return {{Name, "name"}, {Place, "place"}};
}

}  // namespace wayloom
