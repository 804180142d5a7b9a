#include "lists/FavoritesViewController.h"

#include <algorithm>
#include <chrono>

#include "kit/FailureText.h"
#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kUndoDuration{8};

}  // namespace

FavoritesViewController::FavoritesViewController(SettingsFiles& files, FavoritesDelegate& delegate,
                                                 QObject* parent)
    : ModalViewController(parent),
      mFavorites(files),
      mModel(mFavorites),
      mDelegate(delegate),
      mEditTitle(localizedText("Edit")),
      mEditEnabled(false) {
  report(mFavorites.load());
  mEditEnabled = mModel.rowCount() > 0;
  mUndoEnd.setSingleShot(true);
  mUndoEnd.setInterval(kUndoDuration);
  connect(&mUndoEnd, &QTimer::timeout, this, [this] {
    mDeleted.clear();
    Q_EMIT undoChanged();
  });
}

void FavoritesViewController::followFiles() {
  if (!mFavorites.isCurrent()) report(mFavorites.load());
}

void FavoritesViewController::edit() {
  // Unlike the first title, these two stay as they are in every language.
  mEditTitle = mEditing ? QStringLiteral("Edit") : QStringLiteral("Done");
  mEditing = !mEditing;
  Q_EMIT editTitleChanged();
  Q_EMIT editingChanged();
}

void FavoritesViewController::didSelectRow(int row) {
  if (!isRow(row) || mEditing) return;
  if (!report(mFavorites.choose(static_cast<std::size_t>(row)))) return;
  done();
  mDelegate.favoritesDidSelected();
}

void FavoritesViewController::deleteRow(int row) {
  if (!isRow(row)) return;
  const auto index = static_cast<std::size_t>(row);
  Deleted deleted{row, mFavorites.entries()[index], mModel.name(row)};
  if (!report(mFavorites.removeAt(index))) return;
  mDeleted.push_back(std::move(deleted));
  mUndoEnd.start();
  Q_EMIT undoChanged();
}

void FavoritesViewController::undoDelete() {
  if (!undoShown()) return;
  const Deleted& last = mDeleted.back();
  const auto place = std::min(static_cast<std::size_t>(last.row), mFavorites.entries().size());
  if (!report(mFavorites.insertAt(place, last.entry))) return;
  mDeleted.pop_back();
  if (mDeleted.empty()) {
    mUndoEnd.stop();
  } else {
    mUndoEnd.start();
  }
  Q_EMIT undoChanged();
}

bool FavoritesViewController::report(const Status& status) {
  mModel.update();
  mStatusText = failureText(status);
  Q_EMIT statusTextChanged();
  return static_cast<bool>(status);
}

}  // namespace wayloom
