#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "editor/setting.h"

namespace desktop {

/// Where a setting is in the window.
struct SettingWidget {
  editor::Setting* setting;
  QString title;    // the label as plain text
  QWidget* label;   // says what it is; the widget itself where that does
  QWidget* widget;  // shows the value
};

using SettingWidgets = std::vector<SettingWidget>;

/// What to know of a setting: what it does, what to leave it at, and what is written.
QString helpOf(const editor::Setting& setting);

/// Offers to reset a setting in its widget's context menu.
void offerReset(const SettingWidget& place);

/// A label without what only the keyboard needs.
QString plainText(const QString& label);

}  // namespace desktop
