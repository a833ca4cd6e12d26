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

/// An entry of a list or the title of a button of the core in the person's language. A value of the
/// file among them stays as it is.
inline QString translatedItem(const std::string& text) {
  if (text.ends_with(editor::fromFile)) {
    return toQString(text.substr(0, text.size() - editor::fromFile.size())) +
           QCoreApplication::translate("Items", editor::fromFile.data());
  }
  return QCoreApplication::translate("Items", text.c_str());
}

/// Where lines begin in the language of the window. Labels go by the language of their text, which
/// is another where it has not been translated.
inline Qt::Alignment leadingSide() {
  return (QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

}  // namespace desktop
