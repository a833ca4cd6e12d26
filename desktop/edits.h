#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

#include "platform/control.h"

namespace desktop {

class PendingEdit;

/// All text fields of the program, each of which may hold typed text that its control does not have
/// yet.
class Edits {
 public:
  void add(PendingEdit* edit) { edits_.emplace_back(edit); }

  /// Commits whatever has been typed.
  void endEditing();

  /// The widget that shows a text field and takes the focus; null when none does.
  [[nodiscard]] QWidget* widgetOf(const platform::TextField& control) const;

 private:
  std::vector<QPointer<PendingEdit>> edits_;
};

/// Tells what a person typed into a line edit: on Return, when the focus leaves, or on request, and
/// as a rule only if there is something new. A program that sets the text on the person's behalf,
/// as screen readers do, counts as well.
class PendingEdit : public QObject {
  Q_OBJECT

 public:
  /// On Return and when the focus leaves.
  enum class Commits { whenNew, always };

  using TextCallback = std::function<void(const QString&)>;

  /// `typed` gets the text while it is being typed, `commit` when that has ended.
  PendingEdit(QLineEdit* field, const platform::TextField& control, Edits& edits,
              TextCallback typed, TextCallback commit, Commits commits);

  [[nodiscard]] const platform::TextField& control() const { return control_; }

  /// What has the focus while something is typed: inside an editable box that is the box.
  [[nodiscard]] QWidget* focusWidget() const {
    return field_->focusProxy() != nullptr ? field_->focusProxy() : field_.data();
  }

  /// Takes the text of the field as committed.
  void settle();

  void endEditing();

  /// Whether this very text has been typed and not committed yet.
  [[nodiscard]] bool isTyped(const QString& text) const { return typed_ && text_ == text; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isPending() const {
    return field_ != nullptr && (typed_ || field_->text() != settled_);
  }
  void finish();
  void returnPressed();

  QPointer<QLineEdit> field_;
  const platform::TextField& control_;
  TextCallback commit_;
  Commits commits_;
  QString settled_;
  QString text_;  // as typed: a completion that was only looked at does not count
  bool typed_ = false;
};

}  // namespace desktop
