#pragma once

#include <QPalette>

namespace desktop {

/// A palette in which disabled texts and hints in empty fields can be read, too. Some dark themes
/// do not say how these look, and leave them dark.
QPalette readable(QPalette palette);

/// Has the application look so that everything can be told from what surrounds it, whatever the
/// colours of the desktop.
void makeReadable();

}  // namespace desktop
