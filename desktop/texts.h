#pragma once

#include <QString>
#include <string>

namespace desktop {

/// The bytes of the core as text of the window, and back.
inline QString shown(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string stored(const QString& text) { return text.toStdString(); }

}  // namespace desktop
