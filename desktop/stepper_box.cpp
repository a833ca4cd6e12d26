#include "desktop/stepper_box.h"

#include <QStyleOptionSpinBox>
#include <algorithm>
#include <cstdint>

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
  const platform::Stepper::Range& range = stepper_.range();
  const auto wanted = std::int64_t{stepper_.integerValue()} + std::int64_t{steps} * range.increment;
  const auto value = std::clamp<std::int64_t>(wanted, range.minimum, range.maximum);
  stepper_.edit([&] { stepper_.setIntegerValue(static_cast<std::int32_t>(value)); });
  lineEdit()->selectAll();
}

QAbstractSpinBox::StepEnabled StepperBox::stepEnabled() const {
  StepEnabled enabled = StepNone;
  if (stepper_.integerValue() < stepper_.range().maximum) {
    enabled |= StepUpEnabled;
  }
  if (stepper_.integerValue() > stepper_.range().minimum) {
    enabled |= StepDownEnabled;
  }
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
