#pragma once

#include <string>

#include "platform/bundle.h"
#include "platform/output.h"

namespace app {

/// Notes in `sharedVar` where the front-end itself is.
void findLocalPath(const platform::Bundle& bundle, platform::Output& output);

/// In local mode, makes the emulator beside the front-end the one that Start launches.
void applyLocalRule(platform::Output& output);

/// The folder of the front-end as the file system knows it, ending in "/". `pathToQuilRoot` may be
/// another one: of the percent escapes of its location that text has only the blank's decoded.
std::string ownFolder();

/// The emulator beside the front-end, as `sharedVar` and people know it.
std::string localEmulator();

/// Where the emulator that Start launches is: `pathToQuil`, with the front-end's own folder in the
/// place of `pathToQuilRoot`.
std::string emulatorPath();

}  // namespace app
