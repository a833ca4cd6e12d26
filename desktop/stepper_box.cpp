#include "desktop/stepper_box.h"

#include <QStyleOptionSpinBox>

#include "desktop/texts.h"

namespace desktop {

StepperBox::StepperBox(platform::Stepper& stepper, platform::TextField& text)
    : stepper_(stepper), text_(text) {
  lineEdit()->setReadOnly(true);
}

void StepperBox::showState() {
  setEnabled(stepper_.isEnabled());
  lineEdit()->setText(toQString(text_.stringValue()));
  update();
}

void StepperBox::stepBy(int steps) {
  stepper_.edit([&] { stepper_.setIntegerValue(stepper_.valueAfter(steps)); });
  lineEdit()->selectAll();
}

QAbstractSpinBox::StepEnabled StepperBox::stepEnabled() const {
  StepEnabled enabled = StepNone;
  enabled.setFlag(StepUpEnabled, stepper_.canStep(1));
  enabled.setFlag(StepDownEnabled, stepper_.canStep(-1));
  return enabled;
}

QSize StepperBox::sizeHint() const {
  ensurePolished();
  const int digits = static_cast<int>(std::to_string(stepper_.range().maximum).size());
  const int width = fontMetrics().horizontalAdvance(QString(digits + 3, QLatin1Char('0')));
  QStyleOptionSpinBox option;
  initStyleOption(&option);
  const QSize content(width, lineEdit()->sizeHint().height());
  return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

}  // namespace desktop
