#pragma once

#include "checks/state.h"
#include "editor/view_controller.h"

namespace checks {

/// The state of a settings window, and of what the windows share.
State stateOf(const editor::ViewController& controller);

}  // namespace checks
