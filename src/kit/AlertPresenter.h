#pragma once

#include <QtCore/QObject>
#include <QtCore/QQueue>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "platform/Alerts.h"

namespace wayloom {

/// Keeps the alerts that wait to be read; an AlertPanel shows the first. Owned by the application,
/// main thread only.
class AlertPresenter : public QObject, public Alerts {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(bool showing READ showing NOTIFY changed)
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString message READ message NOTIFY changed)
  Q_PROPERTY(QString button READ button NOTIFY changed)

 public:
  void show(const std::string& title, const std::string& message,
            const std::string& button) override;

  bool showing() const { return !mWaiting.isEmpty(); }
  QString title() const { return showing() ? mWaiting.head().title : QString(); }
  QString message() const { return showing() ? mWaiting.head().message : QString(); }
  QString button() const { return showing() ? mWaiting.head().button : QString(); }

  /// The user has read the shown alert.
  Q_INVOKABLE void dismiss();

 Q_SIGNALS:
  void changed();

 private:
  struct Alert {
    QString title;
    QString message;
    QString button;
  };
  QQueue<Alert> mWaiting;
};

}  // namespace wayloom
