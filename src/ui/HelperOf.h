#pragma once

#include <QtCore/QObject>

namespace wayloom {

/// The child of this type that serves `object`, or null.
template <typename Helper>
Helper* helperOf(const QObject& object) {
  for (QObject* child : object.children()) {
    if (auto* helper = dynamic_cast<Helper*>(child)) return helper;
  }
  return nullptr;
}

}  // namespace wayloom
