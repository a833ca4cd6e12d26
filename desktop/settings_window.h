#pragma once

#include <QMainWindow>
#include <QTabWidget>
#include <map>

#include "desktop/controls.h"
#include "editor/view_controller.h"
#include "platform/application.h"

namespace desktop {

/// The settings window: seven tabs, and below them, always in sight, the file and the buttons.
class SettingsWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `images` is the folder with the pictures.
  SettingsWindow(editor::ViewController& controller, Edits& edits, const QString& images);
  ~SettingsWindow() override;
  SettingsWindow(const SettingsWindow&) = delete;
  SettingsWindow& operator=(const SettingsWindow&) = delete;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildPages(const QString& images);
  void buildMenus();
  [[nodiscard]] QLayout* fileRow();
  [[nodiscard]] QLayout* buttonRow();
  void showTabs();

  editor::ViewController& controller_;
  Controls controls_;
  platform::Window delegate_;
  QTabWidget* tabs_;
  std::map<const platform::View*, QWidget*> pages_;
};

}  // namespace desktop
