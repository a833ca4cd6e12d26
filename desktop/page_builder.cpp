#include "desktop/page_builder.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/texts.h"

namespace desktop {
namespace {

// In French a space goes before the colon.
QString caption(const QString& label) { return tr("%1:").arg(label); }

// Would like to be as wide as a line that can be read well. It takes more only where its widgets
// cannot do with less.
class Column : public QWidget {
 public:
  [[nodiscard]] QSize sizeHint() const override {
    constexpr int longestLine = 70;  // letters
    const int width = longestLine * fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return QSize(width, QWidget::sizeHint().height()).expandedTo(minimumSizeHint());
  }
};

}  // namespace

void PageBuilder::addSettingWidget(editor::Setting& setting, const QString& label,
                                   QWidget* labelWidget, QWidget* widget) {
  const std::string action(document::rowOf(setting.key()).action);
  widget->setProperty("action", QString::fromStdString(action));
  labelWidget->setToolTip(widget->toolTip());
  labelWidget->setWhatsThis(widget->whatsThis());
  // Without the mark that the label may bear.
  labelWidget->setAccessibleName(plainText(label));
  if (auto* const text = qobject_cast<QLabel*>(labelWidget)) {
    // Wider than its text, it stands where the style has the labels of forms.
    const bool endsAtField = (form()->labelAlignment() & Qt::AlignRight) != 0;
    // QFormLayout keeps a label lower than a tall field, and its text above that of the field.
    text->setMinimumHeight(widget->sizeHint().height());
    text->setAlignment((endsAtField ? trailingSide() : leadingSide()) | Qt::AlignVCenter);
    labels_.push_back(text);
  }
  settingWidgets_.push_back({&setting, plainText(label), labelWidget, widget});
  offerReset(settingWidgets_.back());
}

void PageBuilder::section(const QString& title) { sections_.push_back(new Section(title)); }

QFormLayout* PageBuilder::form() {
  if (sections_.empty()) {
    section({});
  }
  return sections_.back()->form();
}

void PageBuilder::row(editor::Setting& setting, const char* label, QWidget* widget) {
  const QString text = translatedLabel(label);
  form()->addRow(caption(text), widget);
  // The line edit inside a combo box or a stepper is an object of its own in the accessibility
  // tree.
  for (QWidget* const named : {widget, static_cast<QWidget*>(widget->findChild<QLineEdit*>())}) {
    if (named != nullptr) {
      named->setAccessibleName(plainText(text));
      named->setAccessibleDescription(widget->accessibleDescription());
    }
  }
  addSettingWidget(setting, text, form()->labelForField(widget), widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting, QWidget* button) {
  const QString text = translatedLabel(setting.label());
  QWidget* const widget = controls_.pathField(setting.field, helpOf(setting).whole());
  auto* const line = new QHBoxLayout;
  line->addWidget(widget, 1);
  line->addWidget(button);
  auto* const title = new QLabel(caption(text));
  title->setBuddy(widget);
  form()->addRow(title, line);
  widget->setAccessibleName(plainText(text));
  addSettingWidget(setting, text, title, widget);
}

void PageBuilder::field(editor::TextFieldSetting& setting) {
  row(setting, setting.label(), controls_.pathField(setting.field, helpOf(setting).whole()));
}

void PageBuilder::choice(editor::PopUpSetting& setting) {
  row(setting, setting.label(), controls_.popUpButton(setting.button, helpOf(setting).whole()));
}

QComboBox* PageBuilder::combo(editor::ComboBoxSetting& setting) {
  QComboBox* const box = controls_.comboBox(setting.box, helpOf(setting).whole());
  row(setting, setting.label(), box);
  return box;
}

void PageBuilder::check(editor::CheckBoxSetting& setting) {
  const QString text = translatedLabel(setting.label());
  QWidget* const box = controls_.checkBox(setting.box, text, helpOf(setting).whole());
  // Also where no other row of the part has a label, the box stands where the fields do.
  auto* const noLabel = new QLabel;
  labels_.push_back(noLabel);
  form()->addRow(noLabel, box);
  addSettingWidget(setting, text, box, box);
}

void PageBuilder::steps(editor::StepperSetting& setting) {
  row(setting, setting.label(),
      controls_.stepper(setting.stepper, setting.field, helpOf(setting).whole()));
}

void PageBuilder::screen(editor::ScreenSetting& setting) {
  using Screen = editor::ScreenSetting;
  const QString help = helpOf(setting).whole();
  row(setting, Screen::partLabels[Screen::type], controls_.popUpButton(setting.screenType, help));
  row(setting, Screen::partLabels[Screen::width], controls_.comboBox(setting.screenWidth, help));
  row(setting, Screen::partLabels[Screen::height], controls_.comboBox(setting.screenHeight, help));
}

QWidget* PageBuilder::sections() {
  auto* const column = new Column;
  auto* const layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  for (Section* const section : sections_) {
    if (section != sections_.front()) {
      layout->addSpacing(column->fontMetrics().lineSpacing());
    }
    layout->addWidget(section);
  }
  keepRoomForMarks(labels_);
  return column;
}

QWidget* PageBuilder::page() {
  auto* const page = new QWidget;
  auto* const layout = new QGridLayout(page);
  layout->addWidget(sections(), 0, 0);
  layout->setColumnStretch(1, 1);  // takes what is left over
  layout->setRowStretch(1, 1);
  return page;
}

}  // namespace desktop
