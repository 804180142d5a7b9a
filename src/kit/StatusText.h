#pragma once

#include <optional>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include "settings/Phrase.h"
#include "settings/SettingsFiles.h"

namespace wayloom {

/// What the status line of a main screen says: what last went wrong, else which settings file is
/// damaged, else what is on. Owned by the screen's controller; main thread only.
class StatusText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("a controller owns it")
  Q_PROPERTY(QString text READ text NOTIFY changed)
  Q_PROPERTY(bool isFailure READ isFailure NOTIFY changed)
  /// How far a drive is, 0 to 1; negative when there is none.
  Q_PROPERTY(double progress READ progress NOTIFY changed)

 public:
  using QObject::QObject;

  /// What came of the last touch, as failureText() says it; empty after a success.
  void setFailure(const QString& failure);
  /// What came of reading the files the last time.
  void setReading(const Status& reading);
  /// What is on, and how far it is. The first of `files` that was damaged when it was last read is
  /// named instead.
  void show(const Phrase& state, std::optional<double> progress, const SettingsFiles& files,
            std::initializer_list<SettingsFile> names);

  QString text() const { return mShown.text; }
  bool isFailure() const { return mShown.isFailure; }
  double progress() const { return mShown.progress; }

  /// Lets screen readers hear each announced text from `line`, which shows it.
  Q_INVOKABLE void announceFrom(QQuickItem* line);

 Q_SIGNALS:
  void changed();
  /// The text has become another one that is worth hearing: not each percent of a drive.
  void announced();

 private:
  struct Shown {
    QString text;
    bool isFailure = false;
    double progress = -1;

    bool operator==(const Shown&) const = default;
  };

  void update();

  QString mFailure, mUnread, mState;
  double mProgress = -1;
  Shown mShown;
};

}  // namespace wayloom
