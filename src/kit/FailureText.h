#pragma once

#include <QtCore/QString>

#include "platform/Alerts.h"
#include "settings/Result.h"

namespace wayloom {

/// What a status line shows after an operation: why it went wrong, or nothing after a success.
QString failureText(const Status& status);
/// The same, with an alert instead for what a rule forbids.
QString failureText(const Status& status, Alerts& alerts);

}  // namespace wayloom
