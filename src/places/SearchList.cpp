#include "places/SearchList.h"

#include <utility>

#include "kit/LocalizedText.h"
#include "kit/ShownText.h"

namespace wayloom {

SearchList::SearchList(SearchOffers* offers, QObject* parent)
    : QAbstractListModel(parent), mOffers(offers) {}

void SearchList::look(const QString& text, std::optional<Coordinate> near) {
  if (!mOffers) return;
  const bool isEmpty = text.trimmed().isEmpty();
  mOffers->ask(text.toStdString(), near,
               [list = QPointer(this), isEmpty](std::vector<SearchOffer> offers) {
                 if (list) list->show(std::move(offers), isEmpty);
               });
}

void SearchList::close() {
  if (mOffers) mOffers->forget();
  show({}, false);
}

std::optional<RecentSearch> SearchList::choose(int row) {
  if (isOffer(row)) return mRows[static_cast<std::size_t>(row)].search;
  if (row != static_cast<int>(mRows.size()) || !mAreRecent) return std::nullopt;
  // What could not be removed is still shown.
  static_cast<void>(mOffers->recent().clear());
  look({}, std::nullopt);
  return std::nullopt;
}

void SearchList::remove(int row) {
  if (!isOffer(row) || !mAreRecent) return;
  static_cast<void>(mOffers->recent().remove(mRows[static_cast<std::size_t>(row)].search));
  look({}, std::nullopt);
}

void SearchList::remember(const RecentSearch& search) {
  // A search that is not remembered is one all the same.
  if (mOffers) static_cast<void>(mOffers->recent().add(search));
}

int SearchList::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || mRows.empty()) return 0;
  return static_cast<int>(mRows.size()) + (mAreRecent ? 1 : 0);
}

QVariant SearchList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (!isOffer(index.row())) {
    if (role == Title) return localizedText("Forget recent searches");
    return role == Removable ? QVariant(false) : QVariant(QString());
  }
  const SearchOffer& offer = mRows[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Title:
      return shownText(offer.search.text);
    case Detail: {
      const QString kind = offer.kind ? localizedText(*offer.kind) : QString();
      const QString whereabouts = shownText(offer.whereabouts);
      return whereabouts.isEmpty() ? kind : kind + QStringLiteral(" · ") + whereabouts;
    }
    case Distance:
      return offer.metres ? localizedText(distancePhrase(*offer.metres)) : QString();
    case Removable:
      return mAreRecent;
    default:
      return {};
  }
}

QHash<int, QByteArray> SearchList::roleNames() const {
  return {{Title, "title"}, {Detail, "detail"}, {Distance, "distance"}, {Removable, "removable"}};
}

void SearchList::show(std::vector<SearchOffer> offers, bool areRecent) {
  if (offers.empty() && mRows.empty()) return;
  beginResetModel();
  mRows = std::move(offers);
  mAreRecent = areRecent;
  endResetModel();
}

}  // namespace wayloom
