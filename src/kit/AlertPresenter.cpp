#include "kit/AlertPresenter.h"

#include "kit/LocalizedText.h"

namespace wayloom {

void AlertPresenter::show(const std::string& title, const std::string& message,
                          const std::string& button) {
  mWaiting.enqueue({title.empty() ? QString() : localizedText(title.c_str()),
                    localizedText(message.c_str()), localizedText(button.c_str())});
  Q_EMIT changed();
}

void AlertPresenter::dismiss() {
  if (mWaiting.isEmpty()) return;
  mWaiting.dequeue();
  Q_EMIT changed();
}

}  // namespace wayloom
