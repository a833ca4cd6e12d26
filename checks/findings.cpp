#include "checks/findings.h"

#include <algorithm>

#include "checks/parts.h"

namespace checks {

std::vector<Finding> findings(const State& state, const Facts& facts) {
  Collector collector;
  checkPreferencesFile(state, facts, collector);
  checkQuillon(state, facts, collector);
  checkRom(state, facts, collector);
  checkDisks(state, facts, collector);
  checkOtherFiles(state, facts, collector);
  checkLines(state, collector);
  checkValues(state, collector);
  std::vector<Finding> found = collector.take();
  std::stable_sort(found.begin(), found.end(),
                   [](const Finding& a, const Finding& b) { return a.level < b.level; });
  return found;
}

}  // namespace checks
