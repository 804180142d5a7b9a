#pragma once

#include <memory>
#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "kit/ModalViewController.h"

namespace wayloom {

/// The modal screens over the main one, the topmost last; a ModalStack shows them. Owned by the
/// application, main thread only.
class ModalPresenter : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  enum class Transition { Flip, Slide };
  Q_ENUM(Transition)

  explicit ModalPresenter(QObject* parent = nullptr);
  ~ModalPresenter() override;

  /// Presents a screen over all others.
  void present(std::unique_ptr<ModalViewController> controller, Transition transition);

  /// Brings every screen in line with the settings files.
  void followFiles();

  /// The topmost screen has left the window for good: it goes, with its controller.
  Q_INVOKABLE void removeTop();

  int count() const { return static_cast<int>(mScreens.size()); }
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 Q_SIGNALS:
  void countChanged();

 private:
  enum Role { LayoutRole = Qt::UserRole, ControllerRole, TransitionRole };

  struct Screen {
    std::unique_ptr<ModalViewController> controller;
    Transition transition;
  };
  std::vector<Screen> mScreens;
};

}  // namespace wayloom
