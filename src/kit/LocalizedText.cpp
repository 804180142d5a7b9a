#include "kit/LocalizedText.h"

#include <QtCore/QCoreApplication>

namespace wayloom {

QString localizedText(const char* key) {
  return QCoreApplication::translate("Wayloom", key);
}

}  // namespace wayloom
