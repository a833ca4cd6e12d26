#pragma once

#include <QLabel>

namespace desktop {

/// A few lines of text that explain the widget under the mouse, else the one with the focus.
class HelpLine : public QLabel {
  Q_OBJECT

 public:
  HelpLine();

  /// Explains the widgets inside `parent` that have something to tell.
  void follow(QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void explain(const QWidget* widget);
};

}  // namespace desktop
