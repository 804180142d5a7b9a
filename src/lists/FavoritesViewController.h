#pragma once

#include <vector>

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
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)

 public:
  /// Both must outlive this object.
  FavoritesViewController(SettingsFiles& files, FavoritesDelegate& delegate,
                          QObject* parent = nullptr);

  void followFiles() override;

  Q_INVOKABLE void edit();
  Q_INVOKABLE void didSelectRow(int row);
  Q_INVOKABLE void deleteRow(int row);
  /// Puts the entry that was deleted last back where it was; once more, the one before it.
  Q_INVOKABLE void undoDelete();

  FavoritesModel* favorites() { return &mModel; }
  QString editTitle() const { return mEditTitle; }
  bool editEnabled() const { return mEditEnabled; }
  bool editing() const { return mEditing; }
  bool undoShown() const { return mUndoEnd.isActive(); }
  QString deletedName() const { return mDeleted.empty() ? QString() : mDeleted.back().name; }
  QString statusText() const { return mStatusText; }

 Q_SIGNALS:
  void editTitleChanged();
  void editingChanged();
  void undoChanged();
  void statusTextChanged();

 private:
  /// Shows the list as it is now, and what went wrong. True after a success.
  bool report(const Status& status);
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
  /// The latest last.
  std::vector<Deleted> mDeleted;
  QTimer mUndoEnd;
  QString mStatusText;
};

}  // namespace wayloom
