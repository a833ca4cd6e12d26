#pragma once

#include <QTabWidget>
#include <QWidget>
#include <array>
#include <optional>

#include "desktop/change_marks.h"
#include "desktop/checks_view.h"
#include "desktop/controls.h"
#include "desktop/find_field.h"
#include "desktop/help_pane.h"
#include "desktop/menus.h"
#include "desktop/opened_windows.h"
#include "desktop/search_places.h"
#include "desktop/setting_widgets.h"
#include "desktop/state_watch.h"
#include "desktop/window_memory.h"
#include "editor/view_controller.h"
#include "platform/host.h"

namespace desktop {

/// The settings window: the tabs, and below them, always in sight, the file and the buttons. It is
/// no QMainWindow: the style Breeze 6 calls menuBar() of each, which deletes any other widget that
/// was set as the menu.
class SettingsWindow : public QWidget {
  Q_OBJECT

 public:
  /// `facts` is where the checks get the facts about files from.
  SettingsWindow(editor::ViewController& controller, const platform::Host& host, Edits& edits,
                 FactsSource facts = checks::gather);
  SettingsWindow(const SettingsWindow&) = delete;
  SettingsWindow& operator=(const SettingsWindow&) = delete;
  ~SettingsWindow() override;

  /// What is stored when this window goes, if it has changed since it was first painted.
  [[nodiscard]] WindowMemory& memory() { return memory_; }

  /// Makes the pages that are still empty. Before the window is shown only the first one is made:
  /// all of them would delay the first paint.
  void completePages();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void followState();
  void restore();
  void remember();
  void makePages();
  void fillPage(editor::TabId id);
  [[nodiscard]] QWidget* topRow();
  void buildShortcuts();
  [[nodiscard]] QLayout* fileRow();
  [[nodiscard]] QLayout* buttonRow();
  [[nodiscard]] ChecksView::Window checkedWindow(ChecksLine* line);
  void showTabs();
  [[nodiscard]] SearchIndex searchable();
  void startSearch();
  void showStart(QPushButton* button);
  void showIcon() const;
  void resetPage();
  void guardStart();
  void tellAbout();

  editor::ViewController& controller_;
  platform::Host host_;
  WindowMemory memory_;
  Controls controls_;
  OpenedWindows opened_;
  platform::Window delegate_;
  QTabWidget* tabs_;
  SettingWidgets settingWidgets_;
  HelpPane* help_;
  Menus* menus_ = nullptr;
  FindField* find_ = nullptr;
  std::optional<SearchPlaces> searchPlaces_;  // when somebody has searched
  std::array<QWidget*, editor::tabCount> pages_{};
  bool painted_ = false;
  bool pagesComplete_ = false;
  WindowMemory stored_;
  QWidget* volumesLabel_ = nullptr;
  UnsavedBar* unsaved_ = nullptr;
  QWidget* fileField_ = nullptr;
  QWidget* preferencesButton_ = nullptr;
  std::optional<ChangeMarks> changeMarks_;
  std::optional<ChecksView> checks_;
  std::optional<StateWatch> watch_;
  platform::Subscription tabsShown_;
  platform::Subscription startShown_;
};

}  // namespace desktop
