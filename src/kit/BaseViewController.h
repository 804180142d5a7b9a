#pragma once

#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include "kit/ModalViewController.h"

namespace wayloom {

/// What the screens with a busy indicator and short hints share: one progress overlay, on the
/// screen's view or on the window, and hints that go by themselves. A BaseView in the layout shows
/// both. Offsets are points below the middle. Main thread only.
class BaseViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(bool hudShown READ hudShown NOTIFY hudChanged)
  Q_PROPERTY(bool hudOnWindow READ hudOnWindow NOTIFY hudChanged)
  Q_PROPERTY(QString hudText READ hudText NOTIFY hudChanged)
  Q_PROPERTY(double hudYOffset READ hudYOffset NOTIFY hudChanged)

 public:
  using ModalViewController::ModalViewController;

  void showHUDView() { showHUDViewWithTextYOffset({}, 0); }
  void showHUDViewWithText(const QString& text) { showHUDViewWithTextYOffset(text, 0); }
  void showHUDViewYOffset(float yOffset) { showHUDViewWithTextYOffset({}, yOffset); }
  void showHUDViewWithTextYOffset(const QString& text, float yOffset);

  void showHUDViewOnWindow() { showHUDViewOnWindowWithTextYOffset({}, 0); }
  void showHUDViewOnWindowWithText(const QString& text) {
    showHUDViewOnWindowWithTextYOffset(text, 0);
  }
  void showHUDViewOnWindowYOffset(float yOffset) {
    showHUDViewOnWindowWithTextYOffset({}, yOffset);
  }
  void showHUDViewOnWindowWithTextYOffset(const QString& text, float yOffset);

  void hideHUDView();

  /// A text that is gone after a second; several may overlap.
  void showHUDHintText(const QString& text) { showHUDHintTextYOffset(text, 0); }
  void showHUDHintTextYOffset(const QString& text, float yOffset);

  bool hudShown() const { return mHUD.shown; }
  bool hudOnWindow() const { return mHUD.onWindow; }
  QString hudText() const { return mHUD.text; }
  double hudYOffset() const { return mHUD.yOffset; }

 Q_SIGNALS:
  void hudChanged();
  void hintShown(const QString& text, double yOffset);

 private:
  struct HUD {
    bool shown = false;
    bool onWindow = false;
    QString text;
    float yOffset = 0;
  };

  void show(const HUD& hud);

  HUD mHUD;
};

}  // namespace wayloom
