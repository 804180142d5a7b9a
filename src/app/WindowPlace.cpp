#include "app/WindowPlace.h"

#include <chrono>

#include <QtCore/QSettings>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace wayloom {

namespace {

const QString kKey = QStringLiteral("window/place");
// As much of a window must be on a screen as it takes to see and seize it.
constexpr int kSeizable = 64;

QList<QRect> screens() {
  QList<QRect> result;
  for (const QScreen* screen : QGuiApplication::screens()) result << screen->availableGeometry();
  return result;
}

}  // namespace

WindowPlace::WindowPlace(QWindow& window) : mWindow(window) {
  const QRect remembered = QSettings().value(kKey).toRect();
  const QRect place = usable(remembered, window.minimumSize(), screens());
  if (!place.isNull()) window.setGeometry(place);

  mChanged.setSingleShot(true);
  mChanged.setInterval(std::chrono::seconds(1));
  QObject::connect(&mChanged, &QTimer::timeout, &window, [this] { store(); });
  for (const auto changed :
       {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged}) {
    QObject::connect(&window, changed, &mChanged, [this] { mChanged.start(); });
  }
}

WindowPlace::~WindowPlace() {
  store();
}

void WindowPlace::store() const {
  // A window that fills the screen shall not do so for ever.
  if (mWindow.windowStates() == Qt::WindowNoState) QSettings().setValue(kKey, mWindow.geometry());
}

QRect WindowPlace::usable(const QRect& remembered, QSize smallest, const QList<QRect>& screens) {
  if (!remembered.isValid()) return {};
  for (const QRect& screen : screens) {
    const QRect seen = remembered & screen;
    if (seen.width() < kSeizable || seen.height() < kSeizable) continue;
    // Its upper edge is where a window is moved by.
    if (remembered.top() < screen.top() || remembered.top() > screen.bottom()) continue;
    const QSize size = remembered.size().boundedTo(screen.size()).expandedTo(smallest);
    return {remembered.topLeft(), size};
  }
  return {};
}

}  // namespace wayloom
