#pragma once

#include <QCoreApplication>
#include <QTabWidget>
#include <functional>

#include "desktop/help_pane.h"
#include "desktop/search_index.h"
#include "desktop/setting_widgets.h"
#include "desktop/volume_view.h"

namespace desktop {

/// What can be searched for in the program, and how each of it is shown.
class SearchPlaces {
  Q_DECLARE_TR_FUNCTIONS(SearchPlaces)

 public:
  /// The parts of the settings window, which stay for as long as this object is there.
  struct Window {
    QTabWidget& tabs;
    const SettingWidgets& settings;
    HelpPane& help;
    VolumeView& images;
    QWidget& scsi;                              // shown or not
    std::function<QWidget*()> openPreferences;  // returns the Preferences window
  };

  explicit SearchPlaces(Window window) : window_(std::move(window)) {}

  /// All of it as it is just now.
  [[nodiscard]] SearchIndex collect() const;

 private:
  void addSettings(SearchIndex& index) const;
  void addImages(SearchIndex& index) const;
  void addScsi(SearchIndex& index) const;
  void addPreferences(SearchIndex& index) const;
  void goTo(const SettingWidget& place) const;
  void goToImage(int row) const;
  [[nodiscard]] QString tabName(const QWidget* widget) const;

  Window window_;
};

}  // namespace desktop
