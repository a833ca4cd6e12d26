#pragma once

#include <QFormLayout>
#include <QString>
#include <QWidget>

#include "desktop/controls.h"
#include "desktop/setting_widgets.h"
#include "editor/display.h"
#include "editor/shapes.h"

namespace desktop {

/// Builds a form row by row, a row for each setting, and records where each setting went. A label
/// is the setting's own; the letter behind "&" in it leads to the widget.
class PageBuilder {
 public:
  PageBuilder(Controls& controls, SettingWidgets& settingWidgets)
      : controls_(controls), settingWidgets_(settingWidgets), form_(new QFormLayout) {
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  }

  void heading(const QString& text);
  void field(editor::TextFieldSetting& setting);
  void field(editor::TextFieldSetting& setting, QWidget* button);
  void choice(editor::PopUpSetting& setting);
  QComboBox* combo(editor::ComboBoxSetting& setting);
  void check(editor::CheckBoxSetting& setting);
  void steps(editor::StepperSetting& setting);
  /// Three rows.
  void screen(editor::ScreenSetting& setting);

  [[nodiscard]] QFormLayout* form() const { return form_; }

  /// A page with the form in it.
  [[nodiscard]] QWidget* page() const;

 private:
  void row(editor::Setting& setting, const char* label, QWidget* widget);
  void addSettingWidget(editor::Setting& setting, const QString& label, QWidget* labelWidget,
                        QWidget* widget);

  Controls& controls_;
  SettingWidgets& settingWidgets_;
  QFormLayout* form_;
};

}  // namespace desktop
