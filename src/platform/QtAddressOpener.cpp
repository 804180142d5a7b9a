#include "platform/QtAddressOpener.h"

#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace wayloom {

void QtAddressOpener::open(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace wayloom
