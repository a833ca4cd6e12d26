#pragma once

#include <QIcon>

namespace desktop {

/// Adds the picture of a PNG file to an icon; none when the file cannot be read. `scale` is how
/// many of its pixels make one of the window. QImageReader is not used: it asks each of Qt's
/// plugins for pictures whether it reads PNG, too, and loads them and their libraries for that,
/// which takes 3.7 million instructions of a start.
void addPicture(QIcon& icon, const QString& path, int scale = 1);

/// The picture of a PNG file and, if there is a screen with smaller pixels, that of twice its size,
/// which has "@2x" at the end of its name.
QIcon pictureOf(const QString& path);

}  // namespace desktop
