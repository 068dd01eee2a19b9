#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <span>

#include "shell/app_services.h"
#include "shell/frame/view_controller.h"
#include "shell/menu/menu_table.h"

namespace tavi {

/// The side menu: the screens, two ways to reach us and, once the remote records know of both kinds, the
/// family's other applications. Built once; it lives as long as the window.
class LeftViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QAbstractItemModel* table READ table CONSTANT)

 public:
  enum Section { mainSection, contactSection, multiAppsSection, singleAppsSection };

  using MakeScreen = std::function<std::shared_ptr<ViewController>()>;

  /// Screens that rows lead to, made anew at each tap.
  struct Screens {
    MakeScreen makeRoot;  ///< The pages under their toolbar.
    MakeScreen makeHistory;
  };

  explicit LeftViewController(Screens screens, AppServices services = {});

  /// All four sections with both kinds of applications, otherwise the first two.
  int numberOfSections() const;
  QStringList rowTitles(int section) const;
  MenuTable* table() { return &table_; }

  /// Takes the applications that the remote records list now.
  void didUpdateMenu();

  /// Opens this application's page in its store and reports that. Says that there is no network if the
  /// record of this application is missing, and does nothing if that knows no such page. A record without an
  /// English name or with a link that is no address is a fatal stop.
  void openRatingPage();

  /// Opens the settings over the menu.
  void showSettings();

  // What the page calls.
  /// The text over a section, empty over the first one.
  Q_INVOKABLE static QString titleForHeader(int section);
  /// The tap on a row. A row that is not there is a fatal stop, and so are an application's links that are no
  /// addresses and, for the history, a menu without a drawer around the pages.
  Q_INVOKABLE void didSelectRow(int section, int row);

 protected:
  void viewDidLoad() override;
  void viewWillAppear() override;
  void viewWillDisappear() override;

 private:
  /// A row of the first two sections.
  struct Row {
    const char* key;  ///< Of its title.
    QLatin1StringView event;
    void (LeftViewController::*action)();
  };

  static std::span<const Row> mainRows();
  static std::span<const Row> contactRows();
  /// Reports the tap on the row, which must be there, and answers it.
  static const Row& tapped(std::span<const Row> rows, int row);
  static QStringList titles(std::span<const Row> rows);
  QStringList names(const QList<AppMetaData>& apps) const;
  void reloadTable();
  /// A row that leads to an address is there only while that is known.
  bool isShown(int section, int row) const;

  void rebuildRoot();
  void openHistory();
  void showIntroduction();
  void showPrivacyPolicy();
  void openCommunity();
  void openApp(std::span<const AppMetaData> apps, int row) const;
  bool openIfPossible(const QString& text) const;

  Screens screens_;
  AppServices services_;
  QStringList mainSectionRows_;
  QStringList contactSectionRows_;
  QList<AppMetaData> multiApps_;
  QList<AppMetaData> singleApps_;
  MenuTable table_;
  std::unique_ptr<QObject> observer_;  ///< There while the menu is on the screen.
};

}  // namespace tavi
