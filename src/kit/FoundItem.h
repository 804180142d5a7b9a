#pragma once

#include <QtQuick/QQuickItem>

namespace wayloom {

/// The item of this name within another; of several, the uppermost. Screens that lie over one
/// another name some controls alike. A main screen that is not the current one is passed over.
QQuickItem* foundItem(const QQuickItem* within, const QString& objectName);

}  // namespace wayloom
