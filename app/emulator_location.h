#pragma once

#include <string>

#include "platform/bundle.h"
#include "platform/output.h"

namespace app {

/// Notes in `sharedVar` where the front-end itself is.
void findLocalPath(const platform::Bundle& bundle, platform::Output& output);

/// In local mode, makes the emulator beside the front-end the one that Start launches.
void applyLocalRule(platform::Output& output);

/// The emulator beside the front-end.
std::string localEmulator();

}  // namespace app
