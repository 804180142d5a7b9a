#pragma once

#include <functional>

#include <QtQuick/QQuickItem>

namespace wayloom {

// Items that appear and vanish softly. Main thread.
//
// A fade that starts while another of the same item runs ends that one first: what was to vanish is
// hidden, then the new fade begins. `complete` always runs from the event loop, exactly once and in
// the order in which the fades ended, however they ended; not if the item is destroyed before.

/// Three tenths of a second, as a float says it.
inline constexpr double kFadeSeconds = 0.3F;

/// Shows the item, at first wholly transparent, and makes it opaque.
void fadeShowAnimation(QQuickItem& item);
void fadeShowAnimationComplete(QQuickItem& item, std::function<void()> complete);
void fadeShowAnimationDuration(QQuickItem& item, double seconds, std::function<void()> complete);

/// Makes the item transparent from what it is now, then hides it and leaves it opaque, so that
/// showing it again needs no more than that.
void fadeHideAnimation(QQuickItem& item);
void fadeHideAnimationComplete(QQuickItem& item, std::function<void()> complete);
void fadeHideAnimationDuration(QQuickItem& item, double seconds, std::function<void()> complete);

}  // namespace wayloom
