#include "lists/FavoritesModel.h"

#include <algorithm>

#include "kit/ShownText.h"

namespace wayloom {

FavoritesModel::FavoritesModel(Favorites& favorites, QObject* parent)
    : QAbstractListModel(parent), mFavorites(favorites), mShown(favorites.entries()) {}

int FavoritesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mShown.size());
}

QVariant FavoritesModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::DisplayRole) return {};
  return name(index.row());
}

QHash<int, QByteArray> FavoritesModel::roleNames() const {
  return {{Qt::DisplayRole, "name"}};
}

QString FavoritesModel::name(int row) const {
  return shownText(Favorites::nameOf(mShown[static_cast<std::size_t>(row)]));
}

void FavoritesModel::update() {
  const PropertyList::Array& now = mFavorites.entries();
  const auto [gone, come] = std::mismatch(mShown.begin(), mShown.end(), now.begin(), now.end());
  if (gone == mShown.end() && come == now.end()) return;
  const int row = static_cast<int>(gone - mShown.begin());
  if (gone != mShown.end() && std::equal(gone + 1, mShown.end(), come, now.end())) {
    beginRemoveRows({}, row, row);
    mShown = now;
    endRemoveRows();
  } else if (come != now.end() && std::equal(gone, mShown.end(), come + 1, now.end())) {
    beginInsertRows({}, row, row);
    mShown = now;
    endInsertRows();
  } else {
    beginResetModel();
    mShown = now;
    endResetModel();
  }
}

}  // namespace wayloom
