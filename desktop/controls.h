#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QString>
#include <QToolButton>
#include <memory>
#include <vector>

#include "desktop/edits.h"
#include "platform/control.h"

namespace desktop {

/// Makes the widgets of a window for controls of the core and ties them together: a widget shows
/// the control's state, and what a person does goes into the state and runs the action. Each widget
/// gets the control's name as its object name and the help as tool tip, What's This and accessible
/// description.
///
/// All ties end with this object. A window that owns its controller declares this behind it: then
/// they end before the controls go, and Qt may delete the widgets later.
class Controls {
 public:
  explicit Controls(Edits& edits) : edits_(edits) {}

  /// The control's own title, where it has one, stands for `text`. A button that takes no focus on
  /// a click leaves an edit in another field open. `icon` is the standard name of a picture.
  QPushButton* pushButton(platform::Button& control, const QString& text, const QString& help,
                          const char* icon = nullptr);
  /// No wider than its text.
  QToolButton* smallButton(platform::Button& control, const QString& text, const QString& help);
  QCheckBox* checkBox(platform::Button& control, const QString& text, const QString& help);
  QRadioButton* radioButton(platform::Button& control, const QString& text, const QString& help);
  /// A menu entry with a check mark.
  QAction* menuEntry(platform::Button& control, const QString& text, QObject* parent);
  QLineEdit* lineEdit(platform::TextField& control, const QString& help,
                      PendingEdit::Commits commits = PendingEdit::Commits::whenNew);
  /// A field with numbers to choose from, which are put into it as if they had been typed.
  QComboBox* lineEditWithChoices(platform::TextField& control, const QString& help,
                                 const QStringList& choices);
  /// A field of a path, on which a file can be dropped.
  QLineEdit* pathField(platform::TextField& control, const QString& help);
  QComboBox* comboBox(platform::ComboBox& control, const QString& help);
  QComboBox* popUpButton(platform::PopUpButton& control, const QString& help);

  /// Two arrows around the read-only field that shows the number.
  QWidget* stepper(platform::Stepper& control, platform::TextField& field, const QString& help);

  /// A text that tells how things went, in its colour.
  QLabel* statusLine(platform::TextField& control);
  /// A small sign that something is going on.
  QProgressBar* busyIndicator(platform::ProgressIndicator& control);

  [[nodiscard]] Edits& edits() const { return edits_; }

 private:
  template <typename ButtonWidget>
  ButtonWidget* pressed(ButtonWidget* button, platform::Button& control, const QString& help);
  template <typename ButtonWidget>
  ButtonWidget* checkable(platform::Button& control, const QString& text, const QString& help);

  void tie(platform::TextField& control, const QString& help, PendingEdit::Commits commits,
           QLineEdit* field);
  template <typename Show>
  void attach(platform::Control& control, const QObject* widget, Show show);
  PendingEdit* pendingEdit(QLineEdit* field, platform::TextField& control,
                           PendingEdit::TextCallback typed, PendingEdit::TextCallback commit,
                           PendingEdit::Commits commits = PendingEdit::Commits::whenNew);

  Edits& edits_;
  std::vector<std::unique_ptr<PendingEdit>> pendingEdits_;
  std::vector<platform::Subscription> views_;
  QObject connections_;  // the receiver of the widgets' signals
};

/// Sets what every widget has.
void describe(QWidget* widget, const platform::Control& control, const QString& help);

/// Keeps the wheel from changing a widget on the way past: the page scrolls instead.
void guardWheel(QWidget* widget);

}  // namespace desktop
