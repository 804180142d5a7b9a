#pragma once

#include <QtCore/QTimer>

#include "kit/ModalViewController.h"
#include "lists/Favorites.h"
#include "lists/FavoritesDelegate.h"
#include "lists/FavoritesModel.h"

namespace wayloom {

/// The favourites screen: choose one to be there at once, swipe or edit to delete one. It reads the
/// files when it is made and works on those copies. Made for each presentation; main thread only.
class FavoritesViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(wayloom::FavoritesModel* favorites READ favorites CONSTANT)
  Q_PROPERTY(QString editTitle READ editTitle NOTIFY editTitleChanged)
  Q_PROPERTY(bool editEnabled READ editEnabled CONSTANT)
  Q_PROPERTY(bool editing READ editing NOTIFY editingChanged)
  Q_PROPERTY(bool undoShown READ undoShown NOTIFY undoChanged)
  Q_PROPERTY(QString deletedName READ deletedName NOTIFY undoChanged)

 public:
  /// Both must outlive this object.
  FavoritesViewController(SettingsFiles& files, FavoritesDelegate& delegate,
                          QObject* parent = nullptr);

  Q_INVOKABLE void edit();
  Q_INVOKABLE void didSelectRow(int row);
  Q_INVOKABLE void deleteRow(int row);
  /// Puts the entry that was deleted last back where it was.
  Q_INVOKABLE void undoDelete();

  FavoritesModel* favorites() { return &mModel; }
  QString editTitle() const { return mEditTitle; }
  bool editEnabled() const { return mEditEnabled; }
  bool editing() const { return mEditing; }
  bool undoShown() const { return mUndoEnd.isActive(); }
  QString deletedName() const { return mDeleted.name; }

 Q_SIGNALS:
  void editTitleChanged();
  void editingChanged();
  void undoChanged();

 private:
  bool isRow(int row) const { return row >= 0 && row < mModel.rowCount(); }

  Favorites mFavorites;
  FavoritesModel mModel;
  FavoritesDelegate& mDelegate;
  QString mEditTitle;
  bool mEditEnabled;
  bool mEditing = false;

  struct Deleted {
    int row = 0;
    PropertyList entry;
    QString name;
  };
  Deleted mDeleted;
  QTimer mUndoEnd;
};

}  // namespace wayloom
