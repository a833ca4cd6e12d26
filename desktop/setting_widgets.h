#pragma once

#include <QLabel>
#include <QString>
#include <QWidget>
#include <vector>

#include "editor/display.h"
#include "editor/setting.h"

namespace desktop {

/// Where a setting is in the window.
struct SettingWidget {
  editor::Setting* setting;
  QString title;       // the label as plain text
  QWidget* label;      // shows the title; for a check box it is the same as `widget`
  QWidget* widget;     // shows the value
  QString findings{};  // what the checks have found about it, for screen readers
};

using SettingWidgets = std::vector<SettingWidget>;

/// Ends the program, with a word to the developer, when a setting that has a control is on no page.
void requireEverySetting(const SettingWidgets& shown);

/// The place of the setting that enables a disabled one; none for an enabled one.
const SettingWidget* enablerOf(const SettingWidget& place, const SettingWidgets& all);

/// What there is to tell of a setting, in sentences.
struct Help {
  QString use;      // what it does
  QString usual;    // what to leave it at
  QString written;  // what stands in the file

  [[nodiscard]] QString whole() const {
    return use + QLatin1Char(' ') + usual + QLatin1Char(' ') + written;
  }
};

Help helpOf(const editor::Setting& setting);

/// Offers to reset a setting in its widget's context menu.
void offerReset(const SettingWidget& place);

/// Shows in the label and tells screen readers what there is to know of a setting's value.
void showState(const SettingWidget& place, bool isChanged, bool isDefault);

/// Makes labels that stand below each other as wide as the widest is with all marks that showState
/// may give it: what is beside them stays in its place when the marks come and go.
void keepRoomForMarks(const std::vector<QLabel*>& labels);

/// A value as Setting::shownText has it, in the person's language.
QString translatedValue(const std::string& text);

/// The same of the screen, whose value has three entries in it.
QString translatedScreen(const editor::ScreenSetting& screen, std::string_view value);

/// The label of a setting, or of a part of one, in the person's language.
QString translatedLabel(const char* label);

/// A label without the marks of the letters that lead to widgets.
QString plainText(const QString& label);

}  // namespace desktop
