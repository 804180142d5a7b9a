#include "kit/FoundItem.h"

#include <QtCore/QVariant>

namespace wayloom {

QQuickItem* foundItem(const QQuickItem* within, const QString& objectName) {
  const QList<QQuickItem*> children = within->childItems();
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    const QVariant isCurrent = (*child)->property("isCurrent");
    if (isCurrent.isValid() && !isCurrent.toBool()) continue;
    if (QQuickItem* found = foundItem(*child, objectName)) return found;
    if ((*child)->objectName() == objectName) return *child;
  }
  return nullptr;
}

}  // namespace wayloom
