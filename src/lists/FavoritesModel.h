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
  /// Both must outlive the model; the list is loaded already.
  explicit FavoritesModel(Favorites& favorites, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// The name as a row shows it: one line, cut where no row is so wide.
  QString name(int row) const;

  /// Takes a row out of list and file; answers the entry.
  PropertyList remove(int row);
  void insert(int row, const PropertyList& entry);

 private:
  Favorites& mFavorites;
};

}  // namespace wayloom
