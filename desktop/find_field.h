#pragma once

#include <QLineEdit>
#include <functional>

#include "desktop/setting_widgets.h"

class QCompleter;
class QStandardItemModel;

namespace desktop {

/// Finds a setting by words of its label, its key or its help. Return goes to the one picked, or to
/// the first.
class FindField : public QLineEdit {
  Q_OBJECT

 public:
  /// `tabOf` names the tab of a setting; `go` shows one and gives it the focus.
  FindField(const SettingWidgets& settingWidgets,
            std::function<QString(const SettingWidget&)> tabOf,
            std::function<void(const SettingWidget&)> go);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] bool hasOpenList() const;
  void buildList();
  void nameHits();
  void goTo(const QModelIndex& hit);

  const SettingWidgets& settingWidgets_;
  QStandardItemModel* hits_ = nullptr;  // a row for each setting
  std::function<QString(const SettingWidget&)> tabOf_;
  std::function<void(const SettingWidget&)> go_;
};

}  // namespace desktop
