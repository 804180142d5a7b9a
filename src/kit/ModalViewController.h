#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace wayloom {

/// A screen that is shown over another one until it is dismissed. The presenter owns it while it is
/// presented. Main thread only.
/// A class that derives from it names it with its namespace, else QML's tools do not find it.
class ModalViewController : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")

 public:
  using QObject::QObject;

  /// The layout that shows it: the one named after the concrete class.
  QString layoutName() const {
    return QString::fromLatin1(metaObject()->className()).section(QStringLiteral("::"), -1);
  }

  /// Another program may have changed a settings file: the screen comes in line with it.
  virtual void followFiles() {}

  /// The back button: gives way to the screen below.
  Q_INVOKABLE virtual void done() { Q_EMIT dismissed(); }

 Q_SIGNALS:
  void dismissed();
};

}  // namespace wayloom
