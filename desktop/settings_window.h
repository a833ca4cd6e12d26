#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTabWidget>
#include <map>

#include "desktop/controls.h"
#include "desktop/setting_widgets.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

/// The settings window: seven tabs, and below them, always in sight, the file and the buttons.
class SettingsWindow : public QMainWindow {
  Q_OBJECT

 public:
  SettingsWindow(editor::ViewController& controller, const platform::Host& host, Edits& edits);
  ~SettingsWindow() override;
  SettingsWindow(const SettingsWindow&) = delete;
  SettingsWindow& operator=(const SettingsWindow&) = delete;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildPages();
  void buildMenus();
  void buildShortcuts();
  [[nodiscard]] QLayout* fileRow();
  [[nodiscard]] QLayout* buttonRow();
  void showTabs();
  void buildMarks();
  void updateMarks();
  void goTo(const SettingWidget& place);
  [[nodiscard]] int tabOf(const SettingWidget& place) const;
  void showStart(QPushButton* button);
  void openPreferences();
  void openAgreement();
  void openCreation();
  void tellAbout();

  editor::ViewController& controller_;
  platform::Host host_;
  Controls controls_;
  platform::Window delegate_;
  QTabWidget* tabs_;
  QAction* start_ = nullptr;
  QPointer<QWidget> preferences_;
  std::map<const platform::View*, QWidget*> pages_;
  SettingWidgets places_;
  QWidget* volumesLabel_ = nullptr;
};

}  // namespace desktop
