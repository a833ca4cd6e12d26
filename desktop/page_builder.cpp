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

void PageBuilder::row(editor::Setting& setting, const char* label, QWidget* widget) {
  const QString text = translatedLabel(label);
  form_->addRow(text + QLatin1Char(':'), widget);
  // The line edit inside a combo box or a stepper is an object of its own in the accessibility
  // tree.
  for (QWidget* const named : {widget, static_cast<QWidget*>(widget->findChild<QLineEdit*>())}) {
    if (named != nullptr) {
      named->setAccessibleName(plainText(text));
      named->setAccessibleDescription(widget->accessibleDescription());
    }
  }
  addSettingWidget(setting, text, form_->labelForField(widget), widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting, QWidget* button) {
  const QString text = translatedLabel(setting.label());
  QWidget* const widget = controls_.pathField(setting.field, helpOf(setting));
  auto* const line = new QHBoxLayout;
  line->addWidget(widget, 1);
  line->addWidget(button);
  auto* const title = new QLabel(text + QLatin1Char(':'));
  title->setBuddy(widget);
  form_->addRow(title, line);
  widget->setAccessibleName(plainText(text));
  addSettingWidget(setting, text, title, widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting) {
  row(setting, setting.label(), controls_.pathField(setting.field, helpOf(setting)));
}

void PageBuilder::choice(editor::PopUpSetting& setting) {
  row(setting, setting.label(), controls_.popUpButton(setting.button, helpOf(setting)));
}

QComboBox* PageBuilder::combo(editor::ComboBoxSetting& setting) {
  QComboBox* const box = controls_.comboBox(setting.box, helpOf(setting));
  row(setting, setting.label(), box);
  return box;
}

void PageBuilder::check(editor::CheckBoxSetting& setting) {
  const QString text = translatedLabel(setting.label());
  QWidget* const box = controls_.checkBox(setting.box, text, helpOf(setting));
  form_->addRow(QString(), box);
  addSettingWidget(setting, text, box, box);
}

void PageBuilder::steps(editor::StepperSetting& setting) {
  row(setting, setting.label(), controls_.stepper(setting.stepper, setting.field, helpOf(setting)));
}

void PageBuilder::screen(editor::ScreenSetting& setting) {
  using Screen = editor::ScreenSetting;
  const QString help = helpOf(setting);
  row(setting, Screen::partLabels[Screen::type], controls_.popUpButton(setting.screenType, help));
  row(setting, Screen::partLabels[Screen::width], controls_.comboBox(setting.screenWidth, help));
  row(setting, Screen::partLabels[Screen::height], controls_.comboBox(setting.screenHeight, help));
}

QWidget* PageBuilder::page() const {
  auto* const page = new QWidget;
  page->setLayout(form_);
  return page;
}

}  // namespace desktop
