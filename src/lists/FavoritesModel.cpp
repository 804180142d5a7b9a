#include "lists/FavoritesModel.h"

#include "kit/ShownText.h"

namespace wayloom {

FavoritesModel::FavoritesModel(Favorites& favorites, QObject* parent)
    : QAbstractListModel(parent), mFavorites(favorites) {}

int FavoritesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mFavorites.entries().size());
}

QVariant FavoritesModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::DisplayRole) return {};
  return name(index.row());
}

QHash<int, QByteArray> FavoritesModel::roleNames() const {
  return {{Qt::DisplayRole, "name"}};
}

QString FavoritesModel::name(int row) const {
  return shownText(mFavorites.name(static_cast<std::size_t>(row)));
}

PropertyList FavoritesModel::remove(int row) {
  const auto index = static_cast<std::size_t>(row);
  PropertyList entry = mFavorites.entries()[index];
  beginRemoveRows({}, row, row);
  (void)mFavorites.removeAt(index);
  endRemoveRows();
  return entry;
}

void FavoritesModel::insert(int row, const PropertyList& entry) {
  beginInsertRows({}, row, row);
  (void)mFavorites.insertAt(static_cast<std::size_t>(row), entry);
  endInsertRows();
}

}  // namespace wayloom
