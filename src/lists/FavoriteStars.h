#pragma once

#include <optional>
#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

#include "lists/Favorites.h"
#include "map/MapView.h"

namespace wayloom {

/// The favourites that a map has in view, for its stars: at most fifty, the first of the list.
/// Those that have no position on the globe have no star. Owned by the screen's controller; main
/// thread only.
class FavoriteStars : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a controller owns it")

 public:
  enum Role { Name = Qt::DisplayRole, Place = Qt::UserRole };

  /// `files` must outlive this object.
  explicit FavoriteStars(SettingsFiles& files, QObject* parent = nullptr);

  /// Whose view counts from now on.
  void setMap(MapView* map);
  /// Reads the list again if it is another than before.
  void followFiles();
  /// Favorites::choose for a star; a star that is there no more does nothing.
  [[nodiscard]] Status choose(int row);

  int rowCount(const QModelIndex& parent = {}) const override;
  /// A Place is a point of a longitude and a latitude, as MapView takes it.
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  struct Star {
    std::size_t index = 0;
    Coordinate coordinate;

    bool operator==(const Star&) const = default;
  };

  void showView();
  std::optional<Coordinate> coordinateOf(std::size_t index) const;

  Favorites mFavorites;
  QPointer<MapView> mMap;
  std::vector<Star> mAll, mShown;
  QTimer mSoon;
};

}  // namespace wayloom
