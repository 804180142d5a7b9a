#include "kit/BaseViewController.h"

namespace wayloom {

void BaseViewController::show(const HUD& hud) {
  mHUD = hud;
  Q_EMIT hudChanged();
}

void BaseViewController::showHUDViewWithTextYOffset(const QString& text, float yOffset) {
  show({.shown = true, .onWindow = false, .text = text, .yOffset = yOffset});
}

void BaseViewController::showHUDViewOnWindowWithTextYOffset(const QString& text, float yOffset) {
  show({.shown = true, .onWindow = true, .text = text, .yOffset = yOffset});
}

void BaseViewController::hideHUDView() {
  mHUD.shown = false;
  Q_EMIT hudChanged();
}

void BaseViewController::showHUDHintTextYOffset(const QString& text, float yOffset) {
  Q_EMIT hintShown(text, yOffset);
}

}  // namespace wayloom
