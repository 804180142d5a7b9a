#pragma once
#include <QtQuick/QQuickItem>
class MapView : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
};
