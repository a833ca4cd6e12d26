#pragma once

#include <QColor>
#include <QPalette>

namespace desktop {

/// A palette in which disabled texts and hints in empty fields can be read, too. Some dark themes
/// do not say how these look, and leave them dark.
QPalette readable(QPalette palette);

/// `color`, or black or white where it has not a contrast of 4.5 to 1 to the background.
QColor readableOn(const QColor& background, const QColor& color);

/// A colour between two: the first one for a share of 0, the second one for 1.
QColor mixed(const QColor& one, const QColor& other, double share);

/// Has the application look so that everything can be told from what surrounds it, whatever the
/// colours of the desktop.
void makeReadable();

}  // namespace desktop
