#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>

#include "platform/control.h"

namespace desktop {

/// The arrows of a stepper beside the text that goes with it, which need not be a number and cannot
/// be typed.
class StepperBox : public QAbstractSpinBox {
  Q_OBJECT
  Q_PROPERTY(int value READ value)

 public:
  StepperBox(platform::Stepper& stepper, platform::TextField& text);

  [[nodiscard]] int value() const { return stepper_.integerValue(); }
  [[nodiscard]] QLineEdit* field() const { return lineEdit(); }
  void showState();
  void stepBy(int steps) override;
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  [[nodiscard]] StepEnabled stepEnabled() const override;

 private:
  platform::Stepper& stepper_;
  platform::TextField& text_;
};

}  // namespace desktop
