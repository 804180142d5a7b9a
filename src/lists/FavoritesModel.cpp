#include "lists/FavoritesModel.h"

#include <algorithm>
#include <iterator>

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
  // What is between an unchanged beginning and an unchanged end went, came, or was turned round.
  const auto tail = std::mismatch(mShown.rbegin(), std::make_reverse_iterator(gone), now.rbegin(),
                                  std::make_reverse_iterator(come));
  const auto goneEnd = tail.first.base();
  const auto comeEnd = tail.second.base();
  const int row = static_cast<int>(gone - mShown.begin());
  const int went = static_cast<int>(goneEnd - gone);
  const int came = static_cast<int>(comeEnd - come);
  if (went == 0) {
    beginInsertRows({}, row, row + came - 1);
    mShown = now;
    endInsertRows();
  } else if (came == 0) {
    beginRemoveRows({}, row, row + went - 1);
    mShown = now;
    endRemoveRows();
  } else if (went == 1 && came == 1) {
    mShown = now;
    Q_EMIT dataChanged(index(row), index(row), {Qt::DisplayRole});
  } else if (went == came && *gone == *(comeEnd - 1) && std::equal(gone + 1, goneEnd, come)) {
    beginMoveRows({}, row, row, {}, row + went);
    mShown = now;
    endMoveRows();
  } else if (went == came && *(goneEnd - 1) == *come && std::equal(gone, goneEnd - 1, come + 1)) {
    beginMoveRows({}, row + went - 1, row + went - 1, {}, row);
    mShown = now;
    endMoveRows();
  } else {
    beginResetModel();
    mShown = now;
    endResetModel();
  }
}

}  // namespace wayloom
