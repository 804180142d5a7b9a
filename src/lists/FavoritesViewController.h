#pragma once

#include <optional>
#include <vector>

#include <QtCore/QTimer>

#include "kit/ModalViewController.h"
#include "lists/Favorites.h"
#include "lists/FavoritesDelegate.h"
#include "lists/FavoritesModel.h"

namespace wayloom {

/// The favourites screen: choose one to be there at once, swipe or edit to delete one, edit to
/// rename and to sort, and let other programs have the list. It reads the files when it is made and
/// works on those copies. Made for each presentation; main thread only.
class FavoritesViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(wayloom::FavoritesModel* favorites READ favorites CONSTANT)
  Q_PROPERTY(QString editTitle READ editTitle NOTIFY editTitleChanged)
  Q_PROPERTY(bool editEnabled READ editEnabled CONSTANT)
  Q_PROPERTY(bool editing READ editing NOTIFY editingChanged)
  Q_PROPERTY(bool undoShown READ undoShown NOTIFY undoChanged)
  Q_PROPERTY(QString undoText READ undoText NOTIFY undoChanged)
  Q_PROPERTY(int renamedRow READ renamedRow NOTIFY renamedRowChanged)
  Q_PROPERTY(QString typedName READ typedName WRITE setTypedName NOTIFY typedNameChanged)
  Q_PROPERTY(QString suggestedFile READ suggestedFile CONSTANT)
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)
  Q_PROPERTY(bool statusIsFailure READ statusIsFailure NOTIFY statusTextChanged)

 public:
  /// Both must outlive this object.
  FavoritesViewController(SettingsFiles& files, FavoritesDelegate& delegate,
                          QObject* parent = nullptr);

  void followFiles() override;

  Q_INVOKABLE void edit();
  /// Chooses the row's favourite; while editing, its name can be typed instead.
  Q_INVOKABLE void didSelectRow(int row);
  Q_INVOKABLE void deleteRow(int row);
  /// `to` is the row's number when it is there.
  Q_INVOKABLE void moveRow(int row, int to);
  /// Takes the last deletion or move back; once more, the one before it.
  Q_INVOKABLE void undo();

  /// Gives the row the typed name, unless nothing was typed.
  Q_INVOKABLE void commitName();
  Q_INVOKABLE void cancelName();

  // A file is named by its path, "~" standing for the user's home, or by its address.

  Q_INVOKABLE void importFile(const QString& file);
  Q_INVOKABLE void exportFile(const QString& file);

  FavoritesModel* favorites() { return &mModel; }
  QString editTitle() const { return mEditTitle; }
  bool editEnabled() const { return mEditEnabled; }
  bool editing() const { return mEditing; }
  bool undoShown() const { return mUndoEnd.isActive(); }
  QString undoText() const { return mSteps.empty() ? QString() : mSteps.back().text; }
  /// The row whose name is being typed; -1 for none.
  int renamedRow() const { return mRenamed ? mRenamed->row : -1; }
  QString typedName() const { return mTypedName; }
  void setTypedName(const QString& name);
  /// Where an export may go.
  QString suggestedFile() const;
  QString statusText() const { return mStatusText; }
  bool statusIsFailure() const { return mStatusIsFailure; }

 Q_SIGNALS:
  void editTitleChanged();
  void editingChanged();
  void undoChanged();
  void renamedRowChanged();
  void typedNameChanged();
  void statusTextChanged();

 private:
  /// Shows the list as it is now, and what went wrong. True after a success.
  bool report(const Status& status);
  void say(const QString& text, bool isFailure);
  bool isRow(int row) const { return row >= 0 && row < mModel.rowCount(); }

  Favorites mFavorites;
  FavoritesModel mModel;
  FavoritesDelegate& mDelegate;
  QString mEditTitle;
  bool mEditEnabled;
  bool mEditing = false;

  /// What can be taken back.
  struct Step {
    int row = 0;
    /// Where it was moved to; none when it was deleted.
    std::optional<int> to;
    PropertyList entry;
    QString text;
  };
  void addStep(Step step);
  Status takeBack(const Step& step);
  /// The latest last.
  std::vector<Step> mSteps;
  QTimer mUndoEnd;

  struct Renamed {
    int row = 0;
    PropertyList entry;
    QString name;
  };
  /// False when the typed name could not be given.
  bool endRenaming();
  /// Ends a renaming before something else is done to a row; none when there is no such row, or it
  /// was lost in doing so.
  std::optional<std::size_t> settledRow(int row);
  std::optional<Renamed> mRenamed;
  QString mTypedName;

  QString mStatusText;
  bool mStatusIsFailure = false;
};

}  // namespace wayloom
