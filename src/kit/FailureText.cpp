#include "kit/FailureText.h"

#include "kit/ShownText.h"

namespace wayloom {

QString failureText(const Status& status) {
  QString text = shownText(status.message());
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

QString failureText(const Status& status, Alerts& alerts) {
  if (!status.isRefused()) return failureText(status);
  alerts.show("", status.message(), "OK");
  return {};
}

}  // namespace wayloom
