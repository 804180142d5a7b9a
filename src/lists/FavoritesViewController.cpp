#include "lists/FavoritesViewController.h"

#include <algorithm>
#include <chrono>

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>

#include "kit/FailureText.h"
#include "kit/LocalizedText.h"
#include "lists/FavoriteFiles.h"

namespace wayloom {

namespace {

constexpr std::chrono::seconds kUndoDuration{8};

/// The text with the name in its gap; isolated, a name that turns the writing's direction leaves
/// the rest as it is.
QString aboutName(const QString& text, const QString& name) {
  return text.arg(QChar(0x2068) + name + QChar(0x2069));
}

Phrase::Number counted(std::size_t count) {
  return {static_cast<double>(count), 0};
}

std::filesystem::path pathOf(const QString& file) {
  const QString text = file.trimmed();
  if (text.startsWith(u"file:")) return QUrl(text).toLocalFile().toStdString();
  const bool isInHome = text == u"~" || text.startsWith(u"~/");
  return (isInHome ? QDir::homePath() + text.mid(1) : text).toStdString();
}

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
    mSteps.clear();
    Q_EMIT undoChanged();
  });
}

void FavoritesViewController::followFiles() {
  if (mFavorites.isCurrent()) return;
  // While rows come and go, none has the field.
  std::optional<Renamed> renamed;
  std::swap(renamed, mRenamed);
  if (renamed) Q_EMIT renamedRowChanged();
  report(mFavorites.load());
  if (!renamed) return;
  const auto row = mFavorites.find(renamed->entry, static_cast<std::size_t>(renamed->row));
  if (!row) return say(localizedText("It was changed elsewhere meanwhile"), true);
  renamed->row = static_cast<int>(*row);
  mRenamed = std::move(renamed);
  Q_EMIT renamedRowChanged();
}

void FavoritesViewController::edit() {
  commitName();
  // Unlike the first title, these two stay as they are in every language.
  mEditTitle = mEditing ? QStringLiteral("Edit") : QStringLiteral("Done");
  mEditing = !mEditing;
  Q_EMIT editTitleChanged();
  Q_EMIT editingChanged();
}

void FavoritesViewController::didSelectRow(int row) {
  const auto index = settledRow(row);
  if (!index) return;
  if (mEditing) {
    const int shown = static_cast<int>(*index);
    mRenamed = Renamed{shown, mFavorites.entries()[*index], mModel.name(shown)};
    setTypedName(mRenamed->name);
    Q_EMIT renamedRowChanged();
    return;
  }
  if (!report(mFavorites.choose(*index))) return;
  done();
  mDelegate.favoritesDidSelected();
}

void FavoritesViewController::deleteRow(int row) {
  if (row == renamedRow()) cancelName();
  const auto index = settledRow(row);
  if (!index) return;
  const int shown = static_cast<int>(*index);
  const QString text = aboutName(localizedText("Deleted “%1”"), mModel.name(shown));
  Step step{shown, std::nullopt, mFavorites.entries()[*index], text};
  if (report(mFavorites.removeAt(*index))) addStep(std::move(step));
}

void FavoritesViewController::moveRow(int row, int to) {
  if (!isRow(to) || row == to) return;
  const auto index = settledRow(row);
  if (!index || !isRow(to)) return;
  const int shown = static_cast<int>(*index);
  const QString text = aboutName(localizedText("Moved “%1”"), mModel.name(shown));
  Step step{shown, to, mFavorites.entries()[*index], text};
  if (report(mFavorites.move(*index, static_cast<std::size_t>(to)))) addStep(std::move(step));
}

std::optional<std::size_t> FavoritesViewController::settledRow(int row) {
  if (!isRow(row)) return std::nullopt;
  const auto index = static_cast<std::size_t>(row);
  if (!mRenamed) return index;
  if (row == mRenamed->row) return endRenaming() ? std::optional(index) : std::nullopt;
  const PropertyList entry = mFavorites.entries()[index];
  commitName();
  return mFavorites.find(entry, index);
}

void FavoritesViewController::addStep(Step step) {
  mSteps.push_back(std::move(step));
  mUndoEnd.start();
  Q_EMIT undoChanged();
}

void FavoritesViewController::undo() {
  commitName();
  if (!undoShown() || !report(takeBack(mSteps.back()))) return;
  mSteps.pop_back();
  if (mSteps.empty()) {
    mUndoEnd.stop();
  } else {
    mUndoEnd.start();
  }
  Q_EMIT undoChanged();
}

Status FavoritesViewController::takeBack(const Step& step) {
  const std::size_t count = mFavorites.entries().size();
  const auto row = static_cast<std::size_t>(step.row);
  if (!step.to) return mFavorites.insertAt(std::min(row, count), step.entry);
  const auto there = mFavorites.find(step.entry, static_cast<std::size_t>(*step.to));
  // What was deleted meanwhile has no place to go back to.
  if (there) return mFavorites.move(*there, std::min(row, count - 1));
  return failed("it was changed or deleted elsewhere meanwhile");
}

void FavoritesViewController::setTypedName(const QString& name) {
  if (name == mTypedName) return;
  mTypedName = name;
  Q_EMIT typedNameChanged();
}

void FavoritesViewController::commitName() {
  endRenaming();
}

bool FavoritesViewController::endRenaming() {
  if (!mRenamed) return true;
  const auto row = static_cast<std::size_t>(mRenamed->row);
  const bool isSame = mTypedName == mRenamed->name;
  const PropertyList before = mRenamed->entry;
  mRenamed.reset();
  const bool isDone = isSame || report(mFavorites.rename(row, mTypedName.toStdString()));
  if (isDone && !isSame) {
    // It can still be put back where it was.
    for (Step& step : mSteps) {
      if (step.to && step.entry == before) step.entry = mFavorites.entries()[row];
    }
  }
  Q_EMIT renamedRowChanged();
  return isDone;
}

void FavoritesViewController::cancelName() {
  if (!mRenamed) return;
  mRenamed.reset();
  Q_EMIT renamedRowChanged();
}

void FavoritesViewController::importFile(const QString& file) {
  commitName();
  const auto added =
      importFavorites(mFavorites, pathOf(file), localizedText("Unknow").toStdString());
  if (!report(added.status())) return;
  say(localizedText(Phrase{"%1 added, %2 were there before",
                           {counted(added->added), counted(added->skipped)}}),
      false);
}

void FavoritesViewController::exportFile(const QString& file) {
  commitName();
  const auto exported = exportFavorites(mFavorites, pathOf(file));
  if (!report(exported.status())) return;
  const auto written = counted(exported->places.size());
  say(exported->leftOut == 0 ? localizedText(Phrase{"%1 exported", {written}})
                             : localizedText(Phrase{"%1 exported, %2 without a position left out",
                                                    {written, counted(exported->leftOut)}}),
      exported->leftOut > 0);
}

QString FavoritesViewController::suggestedFile() const {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return documents + QStringLiteral("/favorites.gpx");
}

bool FavoritesViewController::report(const Status& status) {
  mModel.update();
  say(failureText(status), true);
  return static_cast<bool>(status);
}

void FavoritesViewController::say(const QString& text, bool isFailure) {
  mStatusText = text;
  mStatusIsFailure = isFailure;
  Q_EMIT statusTextChanged();
}

}  // namespace wayloom
