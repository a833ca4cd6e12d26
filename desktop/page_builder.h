#pragma once

#include <QFormLayout>
#include <QLabel>
#include <QString>
#include <QWidget>
#include <vector>

#include "desktop/controls.h"
#include "desktop/section.h"
#include "desktop/setting_widgets.h"
#include "editor/display.h"
#include "editor/shapes.h"

namespace desktop {

/// Builds a page row by row, a row for each setting, and records where each setting went. A label
/// is the setting's own; the letter behind "&" in it leads to the widget.
class PageBuilder {
 public:
  PageBuilder(Controls& controls, SettingWidgets& settingWidgets)
      : controls_(controls), settingWidgets_(settingWidgets) {}

  /// Begins a part of the page. One that has no title holds what comes before the first.
  void section(const QString& title);
  void field(editor::TextFieldSetting& setting);
  void field(editor::TextFieldSetting& setting, QWidget* button);
  void choice(editor::PopUpSetting& setting);
  QComboBox* combo(editor::ComboBoxSetting& setting);
  void check(editor::CheckBoxSetting& setting);
  void steps(editor::StepperSetting& setting);
  /// Three rows.
  void screen(editor::ScreenSetting& setting);

  /// What has been built, one part below the other, for a place of any width.
  [[nodiscard]] QWidget* sections();

  /// A page with it, where no line is longer than can be read well.
  [[nodiscard]] QWidget* page();

 private:
  QFormLayout* form();
  void row(editor::Setting& setting, const char* label, QWidget* widget);
  void addSettingWidget(editor::Setting& setting, const QString& label, QWidget* labelWidget,
                        QWidget* widget);

  Controls& controls_;
  SettingWidgets& settingWidgets_;
  std::vector<Section*> sections_;
  std::vector<QLabel*> labels_;
};

}  // namespace desktop
