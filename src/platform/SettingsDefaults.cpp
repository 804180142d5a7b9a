#include "platform/SettingsDefaults.h"

namespace wayloom {

std::optional<double> SettingsDefaults::number(const std::string& key) const {
  const QVariant value = mSettings.value(QString::fromStdString(key));
  bool isNumber = false;
  const double number = value.toDouble(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

void SettingsDefaults::setNumber(const std::string& key, double value) {
  mSettings.setValue(QString::fromStdString(key), value);
}

void SettingsDefaults::synchronize() {
  mSettings.sync();
}

}  // namespace wayloom
