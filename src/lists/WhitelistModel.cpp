#include "lists/WhitelistModel.h"

#include <algorithm>
#include <numeric>

#include "kit/ShownText.h"
#include "lists/ApplicationIcons.h"
#include "lists/ApplicationList.h"

namespace wayloom {

namespace {

/// Blanks, marks without width and directions alone leave a row empty.
bool showsNothing(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar character) {
    return character.isSpace() || character.category() == QChar::Other_Format;
  });
}

QString rowText(const std::string& name, const std::string& bundle) {
  QString text = shownText(name);
  return showsNothing(text) ? shownText(bundle) : text;
}

}  // namespace

WhitelistModel::WhitelistModel(Whitelist& whitelist, const HomeScreen& homeScreen, QObject* parent)
    : QAbstractListModel(parent), mWhitelist(whitelist) {
  for (std::string& bundle :
       ApplicationList::installedAppBundle(homeScreen).value_or(std::vector<std::string>())) {
    std::string name = ApplicationModel::appNameWithBundle(homeScreen, bundle);
    mApplications.push_back({std::move(bundle), std::move(name)});
  }
  mShown.resize(mApplications.size());
  std::iota(mShown.begin(), mShown.end(), 0);
}

int WhitelistModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mShown.size());
}

QVariant WhitelistModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Application& application = at(index.row());
  switch (role) {
    case NameRole:
      return rowText(application.name, application.bundle);
    case IconRole:
      return ApplicationIcons::address(application.bundle);
    case TickRole:
      return mWhitelist.isTicked(application.bundle);
    default:
      return {};
  }
}

QHash<int, QByteArray> WhitelistModel::roleNames() const {
  return {{NameRole, "appName"}, {IconRole, "appIcon"}, {TickRole, "ticked"}};
}

Status WhitelistModel::toggle(int row) {
  Status toggled = mWhitelist.toggle(at(row).bundle);
  // An identifier may stand in the list twice.
  update();
  return toggled;
}

void WhitelistModel::update() {
  if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TickRole});
}

void WhitelistModel::filter(const QString& text, bool tickedOnly) {
  const QString sought = text.trimmed();
  std::vector<std::size_t> shown;
  for (std::size_t at = 0; at < mApplications.size(); ++at) {
    const auto& [bundle, name] = mApplications[at];
    if (tickedOnly && !mWhitelist.isTicked(bundle)) continue;
    const bool isSought = sought.isEmpty() ||
                          rowText(name, bundle).contains(sought, Qt::CaseInsensitive) ||
                          shownText(bundle).contains(sought, Qt::CaseInsensitive);
    if (isSought) shown.push_back(at);
  }
  if (shown == mShown) return;
  beginResetModel();
  mShown = std::move(shown);
  endResetModel();
}

int WhitelistModel::tickedCount() const {
  return static_cast<int>(std::count_if(
      mApplications.begin(), mApplications.end(),
      [this](const Application& application) { return mWhitelist.isTicked(application.bundle); }));
}

}  // namespace wayloom
