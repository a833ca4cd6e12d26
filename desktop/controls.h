#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QString>

#include "desktop/edits.h"
#include "platform/control.h"

namespace desktop {

/// Makes the widget for a control of the core and ties the two: the widget shows the control's
/// state, and what a person does goes into the state and runs the action. Each widget gets the
/// control's name as its object name and the help as tool tip, What's This and accessible
/// description.
class Controls {
 public:
  explicit Controls(Edits& edits) : edits_(edits) {}

  /// The control's own title, where it has one, stands for `text`. A button that takes no focus on
  /// a click leaves an edit in another field open.
  QPushButton* pushButton(platform::Button& control, const QString& text, const QString& help);
  QCheckBox* checkBox(platform::Button& control, const QString& text, const QString& help);
  QRadioButton* radioButton(platform::Button& control, const QString& text, const QString& help);
  /// A menu entry with a check mark.
  QAction* menuEntry(platform::Button& control, const QString& text, QObject* parent);
  QLineEdit* lineEdit(platform::TextField& control, const QString& help);
  QComboBox* comboBox(platform::ComboBox& control, const QString& help);
  QComboBox* popUpButton(platform::PopUpButton& control, const QString& help);

  /// Two arrows around the read-only field that shows the number.
  QWidget* stepper(platform::Stepper& control, platform::TextField& field, const QString& help);

  /// A text that tells how things went, in its colour.
  static QLabel* statusLine(platform::TextField& control);
  static QProgressBar* progressBar(platform::ProgressIndicator& control);

  [[nodiscard]] Edits& edits() const { return edits_; }

 private:
  template <typename ButtonWidget>
  ButtonWidget* checkable(platform::Button& control, const QString& text, const QString& help);

  Edits& edits_;
};

/// Sets what every widget has.
void describe(QWidget* widget, const platform::Control& control, const QString& help);

/// Deletes what is in a window. A window that owns its controller needs this in its destructor: the
/// widgets must go before the controls that they show.
void deleteWidgets(QWidget& window);

/// Keeps the wheel from changing a widget on the way past: the page scrolls instead.
void guardWheel(QWidget* widget);

}  // namespace desktop
