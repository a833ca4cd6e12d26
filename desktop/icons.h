#pragma once

#include <QMenu>
#include <QPushButton>

namespace desktop {

/// Gives a button a picture of the desktop's icon theme, by its standard name, where buttons have
/// pictures there. It is loaded when the button has been painted for the first time: an icon theme
/// takes longer to read than a window to show.
void giveIcon(QPushButton* button, const char* name);

/// The same for an entry of a menu, loaded when the menu opens.
void giveIcon(QAction* entry, QMenu* menu, const char* name);

}  // namespace desktop
