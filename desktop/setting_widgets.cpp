#include "desktop/setting_widgets.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <memory>
#include <string>

#include "desktop/texts.h"

namespace desktop {
namespace {

// Stands behind the label of what is not the default.
QString differenceMark() { return QLatin1Char(' ') + QChar(0x2022); }

QString keyWord(const document::KeyRow& row) { return toQString(std::string(row.text)).trimmed(); }

QString shownDefault(const editor::Setting& setting) {
  if (const auto* const screen = dynamic_cast<const editor::ScreenSetting*>(&setting)) {
    return translatedScreen(*screen, document::rowOf(screen->key()).defaultValue);
  }
  return translatedValue(setting.shownDefault());
}

void showMenu(QWidget* widget, const QPoint& position, editor::Setting& setting) {
  auto* field = qobject_cast<QLineEdit*>(widget);
  if (field == nullptr) {
    field = widget->findChild<QLineEdit*>();
  }
  const std::unique_ptr<QMenu> menu(field != nullptr ? field->createStandardContextMenu()
                                                     : new QMenu);
  if (!menu->isEmpty()) {
    menu->addSeparator();
  }
  const QString value = shownDefault(setting);
  QAction* const reset = menu->addAction(value.isEmpty() ? tr("Reset to Default (empty)")
                                                         : tr("Reset to Default (%1)").arg(value));
  reset->setObjectName(QLatin1String("resetSetting"));
  reset->setEnabled(!setting.isDefault());
  QObject::connect(reset, &QAction::triggered, [&setting] { setting.reset(); });
  menu->exec(widget->mapToGlobal(position));
}

}  // namespace

const SettingWidget* enablerOf(const SettingWidget& place, const SettingWidgets& all) {
  const editor::Setting* const enabler =
      place.widget->isEnabled() ? nullptr : place.setting->enabledBy();
  const auto found = std::find_if(
      all.begin(), all.end(), [&](const SettingWidget& other) { return other.setting == enabler; });
  return found == all.end() ? nullptr : &*found;
}

Help helpOf(const editor::Setting& setting) {
  const document::KeyRow& row = document::rowOf(setting.explainedKey());
  const QString value = shownDefault(setting);
  const QString word = keyWord(row);
  return {
      QCoreApplication::translate("Help", row.help),
      value.isEmpty()   ? tr("If unsure, leave it empty.")
      : row.defaultAsks ? tr("Until you choose one it says \"%1\".").arg(value)
                        : tr("If unsure, leave it at \"%1\".").arg(value),
      row.written == nullptr
          ? tr("Writes \"%1\".").arg(word)
          : tr("Writes \"%1\", %2.").arg(word, QCoreApplication::translate("Help", row.written))};
}

void requireEverySetting(const SettingWidgets& shown) {
  for (const document::KeyRow& row : document::keyTable) {
    const bool isShown = std::any_of(shown.begin(), shown.end(), [&](const SettingWidget& place) {
      return document::rowOf(place.setting->key()).control == row.control;
    });
    if (!isShown && !row.control.empty()) {
      qFatal("No page shows the setting %s", std::string(row.text).c_str());
    }
  }
}

void offerReset(const SettingWidget& place) {
  // The line edit inside a combo box or a stepper gets the event, and would show its own menu.
  for (QWidget* const widget : {place.widget, place.widget->findChild<QWidget*>()}) {
    if (widget == nullptr ||
        (widget != place.widget && qobject_cast<QLineEdit*>(widget) == nullptr)) {
      continue;
    }
    widget->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(widget, &QWidget::customContextMenuRequested, widget,
                     [widget, &setting = *place.setting](const QPoint& position) {
                       showMenu(widget, position, setting);
                     });
  }
}

// The title of an entry is translated under "Items", the state of a check box under "Help". All
// other texts are the file's own, and no translation knows them.
QString translatedValue(const std::string& text) {
  const QString word = QCoreApplication::translate("Help", text.c_str());
  return word == toQString(text) ? translatedItem(text) : word;
}

QString translatedScreen(const editor::ScreenSetting& screen, std::string_view value) {
  const auto [type, width, height] = screen.shownParts(value);
  return tr("%1, %2 × %3").arg(translatedItem(type), translatedItem(width), translatedItem(height));
}

void showState(const SettingWidget& place, bool isChanged, bool isDefault) {
  QFont font = place.label->font();
  if (font.bold() != isChanged) {
    font.setBold(isChanged);
    place.label->setFont(font);
  }
  const QString mark = differenceMark();
  QString text = place.label->property("text").toString();
  if (text.endsWith(mark) == isDefault) {
    text = isDefault ? text.chopped(mark.size()) : text + mark;
    place.label->setProperty("text", text);
  }
  QStringList told;
  if (isChanged) {
    told.append(tr("Changed."));
  }
  if (!isDefault) {
    told.append(tr("Not the default."));
  }
  if (!place.findings.isEmpty()) {
    told.append(place.findings);
  }
  told.append(place.widget->whatsThis());
  const QString description = told.join(QLatin1Char(' '));
  for (QWidget* const widget :
       {place.widget, static_cast<QWidget*>(place.widget->findChild<QLineEdit*>()), place.label}) {
    if (widget != nullptr && widget->accessibleDescription() != description) {
      widget->setAccessibleDescription(description);
    }
  }
}

// Bold letters are at most a fifth wider. They are not measured: the first paint would wait until
// their face is loaded.
void keepRoomForMarks(const std::vector<QLabel*>& labels) {
  int width = 0;
  for (const QLabel* const label : labels) {
    const QLabel marked(label->text() + differenceMark());
    width = std::max(width, marked.sizeHint().width() * 6 / 5);
  }
  for (QLabel* const label : labels) {
    label->setMinimumWidth(width);
  }
}

QString translatedLabel(const char* label) {
  return QCoreApplication::translate("Settings", label);
}

QString plainText(const QString& label) {
  QString plain;
  for (qsizetype at = 0; at < label.size(); ++at) {
    // "(&F)" holds the letter where a script has none of its own, as the Japanese does.
    if (label.mid(at, 2) == QLatin1String("(&") && label.mid(at + 3, 1) == QLatin1String(")")) {
      at += 3;
      continue;
    }
    // "&&" stands for one "&".
    at += label[at] == QLatin1Char('&') ? 1 : 0;
    if (at < label.size()) {
      plain += label[at];
    }
  }
  return plain;
}

}  // namespace desktop
