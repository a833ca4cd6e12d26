#pragma once

#include <vector>

#include "checks/facts.h"
#include "checks/finding.h"
#include "checks/state.h"

namespace checks {

/// What keeps the emulator from starting or a save from doing what is meant, and what else deserves
/// a look: the gravest first. `facts` are those about this state.
std::vector<Finding> findings(const State& state, const Facts& facts);

}  // namespace checks
