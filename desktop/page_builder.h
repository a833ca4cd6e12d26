#pragma once

#include <QFormLayout>
#include <QString>
#include <QWidget>

#include "desktop/controls.h"
#include "desktop/setting_widgets.h"
#include "editor/display.h"
#include "editor/shapes.h"

namespace desktop {

/// Builds a form row by row and notes where each setting went. The letter behind "&" in a label
/// leads to its widget.
class PageBuilder {
 public:
  PageBuilder(Controls& controls, SettingWidgets& settingWidgets)
      : controls_(controls), settingWidgets_(settingWidgets), form_(new QFormLayout) {
    form_->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
  }

  void heading(const QString& text);
  void field(editor::TextFieldSetting& setting, const QString& label, QWidget* button);
  void field(editor::TextFieldSetting& setting, const QString& label);
  void choice(editor::PopUpSetting& setting, const QString& label);
  QComboBox* combo(editor::ComboBoxSetting& setting, const QString& label);
  void check(editor::CheckBoxSetting& setting, const QString& text);
  void steps(editor::StepperSetting& setting, const QString& label);

  /// A row of a setting that has several.
  void row(editor::Setting& setting, const QString& label, QWidget* widget);

  [[nodiscard]] QFormLayout* form() const { return form_; }
  [[nodiscard]] Controls& controls() const { return controls_; }

  /// A page with the form in it.
  [[nodiscard]] QWidget* page() const;

 private:
  void addSettingWidget(editor::Setting& setting, const QString& label, QWidget* labelWidget,
                        QWidget* widget);

  Controls& controls_;
  SettingWidgets& settingWidgets_;
  QFormLayout* form_;
};

}  // namespace desktop
