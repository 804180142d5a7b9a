#include "lists/FavoritesViewController.h"

#include <chrono>

#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kUndoDuration{8};

Favorites loaded(SettingsFiles& files) {
  Favorites favorites(files);
  favorites.load();
  return favorites;
}

}  // namespace

FavoritesViewController::FavoritesViewController(SettingsFiles& files, FavoritesDelegate& delegate,
                                                 QObject* parent)
    : ModalViewController(parent),
      mFavorites(loaded(files)),
      mModel(mFavorites),
      mDelegate(delegate),
      mEditTitle(localizedText("Edit")),
      mEditEnabled(mModel.rowCount() > 0) {
  mUndoEnd.setSingleShot(true);
  mUndoEnd.setInterval(kUndoDuration);
  connect(&mUndoEnd, &QTimer::timeout, this, &FavoritesViewController::undoChanged);
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
  (void)mFavorites.choose(static_cast<std::size_t>(row));
  done();
  mDelegate.favoritesDidSelected();
}

void FavoritesViewController::deleteRow(int row) {
  if (!isRow(row)) return;
  const QString name = mModel.name(row);
  mDeleted = {row, mModel.remove(row), name};
  mUndoEnd.start();
  Q_EMIT undoChanged();
}

void FavoritesViewController::undoDelete() {
  if (!undoShown()) return;
  mUndoEnd.stop();
  mModel.insert(mDeleted.row, mDeleted.entry);
  Q_EMIT undoChanged();
}

}  // namespace wayloom
