#include "kit/StatusText.h"

#include <algorithm>
#include <utility>

#include <QtGui/QAccessible>

#include "kit/FailureText.h"
#include "kit/LocalizedText.h"

namespace wayloom {

namespace {

/// Qt 6.4 has no event of its own for an announcement. Screen readers speak a notification that
/// comes into view, or an alert.
void announce(QQuickItem* line) {
  for (const auto type : {QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(line, type);
    QAccessible::updateAccessibility(&event);
  }
}

}  // namespace

void StatusText::setFailure(const QString& failure) {
  mFailure = failure;
  update();
}

void StatusText::setReading(const Status& reading) {
  mUnread = failureText(reading);
  update();
}

void StatusText::show(const Phrase& state, std::optional<double> progress,
                      const SettingsFiles& files, std::initializer_list<SettingsFile> names) {
  const auto* damaged = std::find_if(names.begin(), names.end(), [&](SettingsFile name) {
    const auto damage = files.file(name).damage();
    return damage && damage->keptAs.empty();
  });
  mState = damaged == names.end()
               ? localizedText(state)
               : localizedText(Phrase{"%1 is damaged and counts as empty",
                                      {files.path(*damaged).filename().string()}});
  mProgress = progress.value_or(-1);
  update();
}

void StatusText::update() {
  const QString& failure = mFailure.isEmpty() ? mUnread : mFailure;
  Shown now{failure.isEmpty() ? mState : failure, !failure.isEmpty(), mProgress};
  if (now == mShown) return;
  const bool onlyGoesOn = !now.isFailure && !mShown.isFailure && now.progress > mShown.progress &&
                          mShown.progress > 0 && now.progress < 1;
  const bool isNew = now.text != mShown.text;
  mShown = std::move(now);
  Q_EMIT changed();
  if (isNew && !onlyGoesOn) Q_EMIT announced();
}

void StatusText::announceFrom(QQuickItem* line) {
  connect(this, &StatusText::announced, line, [line] { announce(line); });
}

}  // namespace wayloom
