#include "kit/ModalPresenter.h"

namespace wayloom {

ModalPresenter::ModalPresenter(QObject* parent) : QAbstractListModel(parent) {}
ModalPresenter::~ModalPresenter() = default;

void ModalPresenter::present(std::unique_ptr<ModalViewController> controller,
                             Transition transition) {
  beginInsertRows({}, count(), count());
  mScreens.push_back({std::move(controller), transition});
  endInsertRows();
  Q_EMIT countChanged();
}

void ModalPresenter::followFiles() {
  for (const Screen& screen : mScreens) screen.controller->followFiles();
}

void ModalPresenter::removeTop() {
  if (mScreens.empty()) return;
  beginRemoveRows({}, count() - 1, count() - 1);
  Screen gone = std::move(mScreens.back());
  mScreens.pop_back();
  endRemoveRows();
  // Its layout, which goes with the row, still refers to it until the next round of events.
  gone.controller.release()->deleteLater();
  Q_EMIT countChanged();
}

int ModalPresenter::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count();
}

QVariant ModalPresenter::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Screen& screen = mScreens[static_cast<std::size_t>(index.row())];
  switch (role) {
    case LayoutRole:
      return screen.controller->layoutName();
    case ControllerRole:
      return QVariant::fromValue(screen.controller.get());
    case TransitionRole:
      return QVariant::fromValue(screen.transition);
    default:
      return {};
  }
}

QHash<int, QByteArray> ModalPresenter::roleNames() const {
  return {{LayoutRole, "layout"}, {ControllerRole, "controller"}, {TransitionRole, "transition"}};
}

}  // namespace wayloom
