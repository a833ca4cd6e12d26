#include "desktop/page_builder.h"

#include <QHBoxLayout>
#include <QLabel>

#include "desktop/texts.h"

namespace desktop {

void PageBuilder::addSettingWidget(editor::Setting& setting, const QString& label,
                                   QWidget* labelWidget, QWidget* widget) {
  const std::string action(document::rowOf(setting.key()).action);
  widget->setProperty("action", QString::fromStdString(action));
  labelWidget->setToolTip(widget->toolTip());
  labelWidget->setWhatsThis(widget->whatsThis());
  settingWidgets_.push_back({&setting, plainText(label), labelWidget, widget});
  offerReset(settingWidgets_.back());
}

void PageBuilder::heading(const QString& text) {
  auto* const heading = new QLabel(text);
  QFont font = heading->font();
  font.setItalic(true);
  heading->setFont(font);
  heading->setAlignment(leadingSide() | Qt::AlignVCenter);
  form_->addRow(heading);
}

void PageBuilder::row(editor::Setting& setting, const QString& label, QWidget* widget) {
  form_->addRow(label, widget);
  // A screen reader comes upon the field inside a box or an arrow pair as well.
  for (QWidget* const named : {widget, static_cast<QWidget*>(widget->findChild<QLineEdit*>())}) {
    if (named != nullptr) {
      named->setAccessibleName(plainText(label));
      named->setAccessibleDescription(widget->accessibleDescription());
    }
  }
  addSettingWidget(setting, label, form_->labelForField(widget), widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting, const QString& label, QWidget* button) {
  QWidget* const widget = controls_.lineEdit(setting.field, helpOf(setting));
  auto* const line = new QHBoxLayout;
  line->addWidget(widget, 1);
  line->addWidget(button);
  auto* const title = new QLabel(label);
  title->setBuddy(widget);
  form_->addRow(title, line);
  widget->setAccessibleName(plainText(label));
  addSettingWidget(setting, label, title, widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting, const QString& label) {
  row(setting, label, controls_.lineEdit(setting.field, helpOf(setting)));
}

void PageBuilder::choice(editor::PopUpSetting& setting, const QString& label) {
  row(setting, label, controls_.popUpButton(setting.button, helpOf(setting)));
}

QComboBox* PageBuilder::combo(editor::ComboBoxSetting& setting, const QString& label) {
  QComboBox* const box = controls_.comboBox(setting.box, helpOf(setting));
  row(setting, label, box);
  return box;
}

void PageBuilder::check(editor::CheckBoxSetting& setting, const QString& text) {
  QWidget* const box = controls_.checkBox(setting.box, text, helpOf(setting));
  form_->addRow(QString(), box);
  addSettingWidget(setting, text, box, box);
}

void PageBuilder::steps(editor::StepperSetting& setting, const QString& label) {
  row(setting, label, controls_.stepper(setting.stepper, setting.field, helpOf(setting)));
}

QWidget* PageBuilder::page() const {
  auto* const page = new QWidget;
  page->setLayout(form_);
  return page;
}

}  // namespace desktop
