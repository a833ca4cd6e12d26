#pragma once

#include "platform/bundle.h"
#include "platform/output.h"

namespace program {

/// Does without a window what opening the program and pressing Start does. Returns the exit status:
/// 0, or 1 after a line on standard error when something failed.
int startWithoutWindow(const std::string& homeDirectory, const std::string& configHome,
                       const platform::Bundle& bundle, platform::Output& output);

}  // namespace program
