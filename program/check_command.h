#pragma once

#include <string>

#include "platform/bundle.h"

namespace program {

/// Prints what keeps Quillon from starting and what else deserves a look, a line each: the level,
/// what it is about and the text, with tabs between them. Changes no file. Returns the exit status:
/// 1 when something stops a start or a save, else 0.
int checkWithoutWindow(const std::string& homeDirectory, const std::string& configHome,
                       const platform::Bundle& bundle);

}  // namespace program
