#pragma once

#include <QFrame>
#include <QLabel>

#include "desktop/setting_widgets.h"

namespace desktop {

/// Explains the widget under the mouse, else the one with the focus: its name, what it does and
/// what to leave it at, and in small print the line that a save writes for it.
class HelpPane : public QFrame {
  Q_OBJECT

 public:
  /// `settings` may still grow.
  explicit HelpPane(const SettingWidgets& settings);

  // As wide as there is room, at a height of its own: laying texts out only to ask how large they
  // would like to be takes longer than showing them.
  [[nodiscard]] QSize sizeHint() const override { return {0, height()}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  /// Explains the widgets inside `parent` that have something to tell.
  void follow(QWidget* parent);

  /// Shows a text until there is something else to explain.
  void tell(const QString& text);

  /// Brings the line of the file up to date after a change.
  void refresh();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void explain(const QWidget* widget);
  void show(const QString& name, const QString& text);
  void showLine();
  void arrange();

  const SettingWidgets& settings_;
  const editor::Setting* explained_ = nullptr;
  QLabel* name_;
  QLabel* text_;
  QLabel* smallPrint_;
  int lines_;  // that the text has room for
};

}  // namespace desktop
