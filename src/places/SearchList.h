#pragma once

#include <optional>
#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "places/SearchOffers.h"

namespace wayloom {

/// The rows under a search field: what is offered for its text or, while it is empty, the recent
/// searches, and a row that removes them all. Owned by the screen's controller; main thread only.
class SearchList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a controller owns it")

 public:
  enum Role { Title = Qt::DisplayRole, Detail = Qt::UserRole, Distance, Removable };

  /// A list without offers stays empty.
  explicit SearchList(SearchOffers* offers, QObject* parent = nullptr);

  /// Offers for a text typed while the map's middle is at `near`; rows of the text before stand
  /// until the answer is there.
  void look(const QString& text, std::optional<Coordinate> near);
  /// No rows, and none to come.
  void close();

  /// What is to be searched when a row is touched; nothing for the row that removes, which has done
  /// so.
  std::optional<RecentSearch> choose(int row);
  /// Takes a recent search out of the list, and out of the file.
  Q_INVOKABLE void remove(int row);
  void remember(const RecentSearch& search);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  void show(std::vector<SearchOffer> offers, bool areRecent);
  bool isOffer(int row) const { return row >= 0 && row < static_cast<int>(mRows.size()); }

  SearchOffers* mOffers;
  std::vector<SearchOffer> mRows;
  bool mAreRecent = false;
};

}  // namespace wayloom
