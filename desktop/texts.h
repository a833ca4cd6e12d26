#pragma once

#include <QGuiApplication>
#include <QString>
#include <string>

#include "editor/shapes.h"

namespace desktop {

/// The bytes of the core as text of the window, and back.
inline QString toQString(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string fromQString(const QString& text) { return text.toStdString(); }

/// A text of the window, outside a class that has a function for that of its own, in the person's
/// language.
inline QString tr(const char* text) { return QCoreApplication::translate("desktop", text); }

/// A path or a number with its unit for a place where texts may read from the right: Qt would move
/// the slash or the unit to the wrong end.
inline QString leftToRight(const QString& text) {
  constexpr QChar mark(0x200e);  // LEFT-TO-RIGHT MARK, is not seen
  return QGuiApplication::isRightToLeft() ? mark + text + mark : text;
}

/// An entry of a list or the title of a button of the core in the person's language. A value of the
/// file among them stays as it is.
inline QString translatedItem(const std::string& text) {
  if (text.ends_with(editor::fromFile)) {
    return toQString(text.substr(0, text.size() - editor::fromFile.size())) +
           QCoreApplication::translate("Items", editor::fromFile.data());
  }
  const QString item = QCoreApplication::translate("Items", text.c_str());
  const bool hasUnit = !item.isEmpty() && item.front().isDigit() && !item.isRightToLeft();
  return hasUnit ? leftToRight(item) : item;
}

/// Where lines begin in the language of the window. Labels go by the language of their text, which
/// is another where it has not been translated.
inline Qt::Alignment leadingSide() {
  return (QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

inline Qt::Alignment trailingSide() {
  return (QGuiApplication::isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignAbsolute;
}

}  // namespace desktop
