#pragma once

#include <QtCore/QSettings>

#include "platform/UserDefaults.h"

namespace wayloom {

/// The user defaults in Qt's settings of the application. Main thread only.
class SettingsDefaults : public UserDefaults {
 public:
  std::optional<double> number(const std::string& key) const override;
  void setNumber(const std::string& key, double value) override;
  void synchronize() override;

 private:
  QSettings mSettings;
};

}  // namespace wayloom
