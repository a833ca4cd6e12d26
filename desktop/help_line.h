#pragma once

#include <QLabel>

namespace desktop {

/// A few lines of text that explain the widget under the mouse, else the one with the focus.
class HelpLine : public QLabel {
  Q_OBJECT

 public:
  HelpLine();

  // As wide as there is room, at a height of its own: laying the text out only to ask how large it
  // would like to be takes longer than showing it.
  [[nodiscard]] QSize sizeHint() const override { return {0, height()}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
  [[nodiscard]] bool hasHeightForWidth() const override { return false; }

  /// Explains the widgets inside `parent` that have something to tell.
  void follow(QWidget* parent);

  /// Shows a text until there is something else to explain.
  void tell(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void explain(const QWidget* widget);
};

}  // namespace desktop
