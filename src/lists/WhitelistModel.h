#pragma once

#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "lists/Whitelist.h"
#include "platform/HomeScreen.h"

namespace wayloom {

/// The rows of the whitelist screen: each installed application's name, icon address and tick, in
/// the home screen's order. Owned by the screen's controller, main thread only.
class WhitelistModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  /// Asks the home screen for identifiers and names. The whitelist must outlive the model.
  WhitelistModel(Whitelist& whitelist, const HomeScreen& homeScreen, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Shows the ticks as they are now.
  void update();
  /// Turns a row's tick over, in the file as well.
  [[nodiscard]] Status toggle(int row);

 private:
  enum Role { NameRole = Qt::DisplayRole, IconRole = Qt::DecorationRole, TickRole = Qt::UserRole };

  struct Application {
    std::string bundle;
    std::string name;
  };

  Whitelist& mWhitelist;
  std::vector<Application> mApplications;
};

}  // namespace wayloom
