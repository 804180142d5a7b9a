#pragma once

#include <filesystem>
#include <vector>

#include <QtCore/QStringList>

#include "kit/ModalViewController.h"
#include "lists/Whitelist.h"
#include "lists/WhitelistModel.h"
#include "lists/WhitelistSets.h"

namespace wayloom {

/// The whitelist screen: every installed application, each with a tick that a touch turns over,
/// all or those that are sought; and ticks that are kept under names. It reads file and
/// applications when it is made and writes the file after each touch. Made for each presentation;
/// main thread only.
class WhitelistViewController : public wayloom::ModalViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the application makes it")
  Q_PROPERTY(wayloom::WhitelistModel* appArray READ appArray CONSTANT)
  Q_PROPERTY(QString soughtText READ soughtText WRITE setSoughtText NOTIFY filterChanged)
  Q_PROPERTY(bool tickedOnly READ tickedOnly WRITE setTickedOnly NOTIFY filterChanged)
  Q_PROPERTY(bool hasApplications READ hasApplications CONSTANT)
  Q_PROPERTY(QString countText READ countText NOTIFY countChanged)
  Q_PROPERTY(QStringList setNames READ setNames NOTIFY setsChanged)
  Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged)

 public:
  /// `files` and `homeScreen` must outlive this object; `sets` is the file of the named sets.
  WhitelistViewController(SettingsFiles& files, const HomeScreen& homeScreen,
                          const std::filesystem::path& sets = WhitelistSets::defaultFile(),
                          QObject* parent = nullptr);

  void followFiles() override;

  Q_INVOKABLE void didSelectRow(int row);

  /// Reads the sets as they are now; numbers of sets count from 0 in the list that came of it.
  Q_INVOKABLE void readSets();
  Q_INVOKABLE void useSet(int number);
  Q_INVOKABLE void removeSet(int number);
  /// True when the ticks are kept under this name.
  Q_INVOKABLE bool saveSet(const QString& name);

  WhitelistModel* appArray() { return &mAppArray; }
  QString soughtText() const { return mSoughtText; }
  void setSoughtText(const QString& text);
  bool tickedOnly() const { return mTickedOnly; }
  void setTickedOnly(bool only);
  bool hasApplications() const { return mAppArray.count() > 0; }
  QString countText() const;
  QStringList setNames() const;
  QString statusText() const { return mStatusText; }

 Q_SIGNALS:
  void filterChanged();
  void countChanged();
  void setsChanged();
  void statusTextChanged();

 private:
  void report(const Status& status);
  /// Shows the ticks and the rows as they are now.
  void showList();

  Whitelist mWhiteListPreferences;
  WhitelistModel mAppArray;
  WhitelistSets mSets;
  std::vector<WhitelistSets::Set> mReadSets;
  QString mSoughtText;
  bool mTickedOnly = false;
  QString mStatusText;
};

}  // namespace wayloom
