#pragma once

#include <QLineEdit>
#include <functional>

namespace desktop {

/// Lets a file be dropped on a field of a path: its path replaces the text, as if it had been
/// typed, and `dropped` is called. Several files are refused, and what is no file of this computer.
void takeDroppedFiles(QLineEdit* field, std::function<void()> dropped);

}  // namespace desktop
