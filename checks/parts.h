#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "checks/facts.h"
#include "checks/finding.h"
#include "checks/state.h"
#include "platform/translatable.h"

namespace checks {

/// Where the parts of the checks put what they find.
class Collector {
 public:
  template <typename... Arguments>
  void add(Level level, Subject subject, const char* format, Arguments... arguments) {
    found_.push_back({level, subject, {format, {Argument(std::move(arguments))...}}});
  }

  template <typename... Arguments>
  void addImages(Level level, std::size_t first, const char* format, Arguments... arguments) {
    add(level, Place::diskImages, format, std::move(arguments)...);
    found_.back().image = first;
  }

  [[nodiscard]] std::vector<Finding> take() { return std::move(found_); }

 private:
  std::vector<Finding> found_;
};

void checkPreferencesFile(const State& state, const Facts& facts, Collector& found);
void checkQuillon(const State& state, const Facts& facts, Collector& found);
void checkRom(const State& state, const Facts& facts, Collector& found);
void checkDisks(const State& state, const Facts& facts, Collector& found);
void checkOtherFiles(const State& state, const Facts& facts, Collector& found);
void checkValues(const State& state, Collector& found);
void checkLines(const State& state, Collector& found);

}  // namespace checks
