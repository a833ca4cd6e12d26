#pragma once

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <functional>
#include <string>

namespace tests {

/// What a screen reader calls something. A combo box is named by its value: its label tells what it
/// is.
inline QString spokenName(const QAccessibleInterface& face) {
  const auto labels = face.relations(QAccessible::Label);
  return face.role() == QAccessible::ComboBox && !labels.empty()
             ? labels.front().first->text(QAccessible::Name)
             : face.text(QAccessible::Name);
}

/// What a person comes upon in a window, in the order of the Tab key: labels as they are written,
/// and each control with its kind, its accessible name, what it shows, and its help. `passes` tells
/// which widgets are described.
inline std::string described(QWidget& window, const std::function<bool(QWidget*)>& passes) {
  QString text;
  QWidget* widget = &window;
  do {
    const QString name = widget->objectName();
    const auto* const label = qobject_cast<QLabel*>(widget);
    const bool isControl = !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) &&
                           widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr;
    // The free space of the disk is another number each time.
    const bool varies = label != nullptr && label->text().contains(QLatin1String("Free space"));
    if (widget->isVisible() && widget->window() == window.window() && passes(widget) && !varies) {
      if (label != nullptr && !label->text().isEmpty()) {
        text += QLatin1String("\"%1\"\n").arg(label->text());
      } else if (isControl) {
        const auto* const face = QAccessible::queryAccessibleInterface(widget);
        // Qt 6.4 tells the name of a table for its value, too, Qt 6.11 an empty text.
        const bool isTable = face->role() == QAccessible::Table;
        const QString value = isTable ? QString() : face->text(QAccessible::Value);
        const auto* const button = qobject_cast<QPushButton*>(widget);
        text += QLatin1String("%1 %2 \"%3\" %4%5%6\n")
                    .arg(QLatin1String(widget->metaObject()->className()), name, spokenName(*face),
                         value, QLatin1String(widget->isEnabled() ? "" : " (disabled)"),
                         QLatin1String(button != nullptr && button->isDefault() ? " (default)"
                                       : widget->property("checked").toBool()   ? " (on)"
                                       : widget->property("readOnly").toBool()  ? " (read-only)"
                                                                                : ""));
        text += QLatin1String("    %1\n").arg(face->text(QAccessible::Description));
      }
    }
    widget = widget->nextInFocusChain();
  } while (widget != &window);
  return text.toStdString();
}

/// The entries of the menus with their keys.
inline std::string described(const QMenuBar& bar) {
  QString text;
  for (const QAction* const menu : bar.actions()) {
    text += menu->text() + QLatin1Char('\n');
    for (const QAction* const entry : menu->menu()->actions()) {
      text += QLatin1String("    %1 %2%3%4\n")
                  .arg(entry->text(), entry->shortcut().toString(),
                       QLatin1String(entry->isEnabled() ? "" : " (disabled)"),
                       QLatin1String(entry->isChecked() ? " (on)" : ""));
    }
  }
  return text.toStdString();
}

}  // namespace tests
