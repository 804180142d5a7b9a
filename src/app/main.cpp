#include <QtGui/QGuiApplication>
#include <QtQml/QQmlEngine>
#include <QtQuick/QQuickView>

int main(int argc, char* argv[]) {
  QGuiApplication application(argc, argv);
  QQuickView view;
  view.engine()->addImportPath("qrc:/qt/qml");
  view.setSource(QUrl("qrc:/qt/qml/Wayloom/Layouts/SpotloomViewController.qml"));
  view.resize(375, 667);
  view.show();
  for (const auto& e : view.errors()) qWarning() << e.toString();
  return QGuiApplication::exec();
}
