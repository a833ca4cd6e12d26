#pragma once

#include <QIcon>

namespace desktop {

/// What a sign stands for. Its shape alone tells which it is.
enum class Sign { stop, warning, note, fine };

/// The sign in any size. The style's own icons are not used: where no icon theme is set, QIcon
/// looks through those of the machine for them, which takes a third of the time of a start.
QIcon iconOf(Sign sign);

}  // namespace desktop
