#pragma once

#include <QAbstractItemView>
#include <QObject>
#include <QPointer>
#include <QTabWidget>
#include <functional>

#include "desktop/checks_line.h"
#include "desktop/checks_list.h"
#include "desktop/checks_runner.h"
#include "desktop/setting_widgets.h"
#include "desktop/volume_view.h"

namespace desktop {

/// Shows in the settings window what the checks find: in a line and a list, on the tabs, and in the
/// descriptions of the controls.
class ChecksView : public QObject {
  Q_OBJECT

 public:
  /// The parts of the settings window, which stay for as long as this object is there.
  struct Window {
    QWidget* itself;
    ChecksLine* line;
    QTabWidget* tabs;
    SettingWidgets& settings;  // more are added while the pages are being made
    QWidget* fileField;
    VolumeView* volumes;
    QWidget* preferencesButton;
    std::function<QWidget*()> showLocation;  // opens what shows where Quillon is
  };

  ChecksView(const editor::ViewController& controller, FactsSource source, Window window);

  /// Begins to check; called when the window has been painted and has all its pages.
  void start() { runner_.gather(); }

  /// Checks a state that has changed.
  void refresh();

  /// Marks the tabs with findings once more, after they have come anew.
  void markTabs();

 signals:
  /// The findings are other ones than before.
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show();
  void describeControls();
  void openList();
  void go(const checks::Finding& finding);
  [[nodiscard]] QWidget* widgetOf(const checks::Subject& subject) const;

  Window window_;
  ChecksRunner runner_;
  QPointer<ChecksList> list_;
};

}  // namespace desktop
