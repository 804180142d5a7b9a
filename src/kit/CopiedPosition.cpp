#include "kit/CopiedPosition.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include "kit/LocalizedText.h"
#include "settings/TextConversions.h"

namespace wayloom {

QString copiedPosition(Coordinate position) {
  const QString text = QString::fromStdString(coordinateText(position));
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->setText(text);
  if (clipboard->text() != text) return {};
  return localizedText("Copied") + u'\n' + text;
}

}  // namespace wayloom
