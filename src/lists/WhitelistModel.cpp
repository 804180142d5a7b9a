#include "lists/WhitelistModel.h"

#include <algorithm>

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

}  // namespace

WhitelistModel::WhitelistModel(Whitelist& whitelist, const HomeScreen& homeScreen, QObject* parent)
    : QAbstractListModel(parent), mWhitelist(whitelist) {
  for (std::string& bundle :
       ApplicationList::installedAppBundle(homeScreen).value_or(std::vector<std::string>())) {
    std::string name = ApplicationModel::appNameWithBundle(homeScreen, bundle);
    mApplications.push_back({std::move(bundle), std::move(name)});
  }
}

int WhitelistModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(mApplications.size());
}

QVariant WhitelistModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Application& application = mApplications[static_cast<std::size_t>(index.row())];
  switch (role) {
    case NameRole: {
      const QString name = shownText(application.name);
      return showsNothing(name) ? shownText(application.bundle) : name;
    }
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
  Status toggled = mWhitelist.toggle(mApplications[static_cast<std::size_t>(row)].bundle);
  // An identifier may stand in the list twice.
  update();
  return toggled;
}

void WhitelistModel::update() {
  if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1), {TickRole});
}

}  // namespace wayloom
