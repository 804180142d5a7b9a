#pragma once

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "lists/Favorites.h"

namespace wayloom {

/// The rows of the favourites screen: one name each, made only for the rows that are looked at.
/// Owned by the screen's controller, main thread only.
class FavoritesModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  /// The list must outlive the model.
  explicit FavoritesModel(Favorites& favorites, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// The name as a row shows it: one line, cut where no row is so wide.
  QString name(int row) const;

  /// Shows the list as it is now. What came, went or moved in one place is announced as
  /// such.
  void update();

 private:
  Favorites& mFavorites;
  PropertyList::Array mShown;
};

}  // namespace wayloom
