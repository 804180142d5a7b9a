#pragma once

#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "lists/Whitelist.h"
#include "platform/HomeScreen.h"

namespace wayloom {

/// The rows of the whitelist screen: each installed application's name, icon address and tick, in
/// the home screen's order. Owned by the screen's controller, main thread only.
class ApplicationsModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  /// Asks the home screen for identifiers and names. The whitelist is loaded already and must
  /// outlive the model.
  ApplicationsModel(Whitelist& whitelist, const HomeScreen& homeScreen, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Turns a row's tick over, in the file as well.
  void toggle(int row);

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
