#include "lists/WhitelistViewController.h"

#include "kit/FailureText.h"
#include "kit/LocalizedText.h"
#include "kit/ShownText.h"

namespace wayloom {

WhitelistViewController::WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                                                 const std::filesystem::path& sets, QObject* parent)
    : ModalViewController(parent),
      mWhiteListPreferences(files),
      mAppArray(mWhiteListPreferences, homeScreen),
      mSets(sets) {
  report(mWhiteListPreferences.load());
}

void WhitelistViewController::followFiles() {
  if (mWhiteListPreferences.isCurrent()) return;
  report(mWhiteListPreferences.load());
  showList();
}

void WhitelistViewController::didSelectRow(int row) {
  if (row < 0 || row >= mAppArray.rowCount()) return;
  report(mAppArray.toggle(row));
  Q_EMIT countChanged();
}

void WhitelistViewController::setSoughtText(const QString& text) {
  if (text == mSoughtText) return;
  mSoughtText = text;
  mAppArray.filter(mSoughtText, mTickedOnly);
  Q_EMIT filterChanged();
}

void WhitelistViewController::setTickedOnly(bool only) {
  if (only == mTickedOnly) return;
  mTickedOnly = only;
  mAppArray.filter(mSoughtText, mTickedOnly);
  Q_EMIT filterChanged();
}

QString WhitelistViewController::countText() const {
  const auto number = [](int count) { return Phrase::Number{static_cast<double>(count), 0}; };
  return localizedText(
      Phrase{"%1 of %2 ticked", {number(mAppArray.tickedCount()), number(mAppArray.count())}});
}

void WhitelistViewController::readSets() {
  const auto sets = mSets.all();
  mReadSets = sets ? *sets : std::vector<WhitelistSets::Set>();
  if (!sets) report(sets.status());
  Q_EMIT setsChanged();
}

QStringList WhitelistViewController::setNames() const {
  QStringList names;
  for (const WhitelistSets::Set& set : mReadSets) names.push_back(shownText(set.name));
  return names;
}

void WhitelistViewController::useSet(int number) {
  if (number < 0 || number >= static_cast<int>(mReadSets.size())) return;
  report(mSets.use(mReadSets[static_cast<std::size_t>(number)].name, mWhiteListPreferences));
  showList();
}

void WhitelistViewController::removeSet(int number) {
  if (number < 0 || number >= static_cast<int>(mReadSets.size())) return;
  report(mSets.remove(mReadSets[static_cast<std::size_t>(number)].name));
  readSets();
}

bool WhitelistViewController::saveSet(const QString& name) {
  const Status saved = mSets.save(name.toStdString(), mWhiteListPreferences);
  report(saved);
  readSets();
  return static_cast<bool>(saved);
}

void WhitelistViewController::showList() {
  mAppArray.update();
  mAppArray.filter(mSoughtText, mTickedOnly);
  Q_EMIT countChanged();
}

void WhitelistViewController::report(const Status& status) {
  mStatusText = failureText(status);
  Q_EMIT statusTextChanged();
}

}  // namespace wayloom
