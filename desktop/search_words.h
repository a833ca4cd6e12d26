#pragma once

#include <QStringList>

#include "document/key_table.h"

namespace desktop {

/// What people call a setting who do not know its name, in their language and in English.
QStringList searchWordsOf(document::Key key);

/// The same for disk images.
QStringList searchWordsOfImages();

}  // namespace desktop
