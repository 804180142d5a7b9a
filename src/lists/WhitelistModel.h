#pragma once

#include <vector>

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include "lists/Whitelist.h"
#include "platform/HomeScreen.h"

namespace wayloom {

/// The rows of the whitelist screen: each installed application's name, icon address and tick, in
/// the home screen's order; all of them at first. Owned by the screen's controller, main thread
/// only.
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
  /// Shows only the applications whose name or identifier has `text` in it, in any case, and if
  /// asked for only those that are ticked now. Who loses the tick later stays until the next time.
  void filter(const QString& text, bool tickedOnly);

  /// Of all applications, shown or not.
  int count() const { return static_cast<int>(mApplications.size()); }
  int tickedCount() const;
  /// Turns a row's tick over, in the file as well.
  [[nodiscard]] Status toggle(int row);

 private:
  enum Role { NameRole = Qt::DisplayRole, IconRole = Qt::DecorationRole, TickRole = Qt::UserRole };

  struct Application {
    std::string bundle;
    std::string name;
  };

  /// The row's, which must be one.
  const Application& at(int row) const {
    return mApplications[mShown[static_cast<std::size_t>(row)]];
  }

  Whitelist& mWhitelist;
  std::vector<Application> mApplications;
  /// Which of them the rows show, in the same order.
  std::vector<std::size_t> mShown;
};

}  // namespace wayloom
