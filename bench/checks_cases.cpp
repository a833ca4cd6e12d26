#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "app/shared_var.h"
#include "bench/host.h"
#include "bench/sample_home.h"
#include "checks/findings.h"
#include "checks/window_state.h"
#include "editor/view_controller.h"

namespace {

constexpr int images = 1000;

// A home with so many disk images, each of them a file with a byte.
class Checked {
 public:
  Checked() : home_("") {
    std::string preferences;
    for (int number = 0; number < images; ++number) {
      const std::string path = home_.path() + "/disk" + std::to_string(number) + ".dsk";
      std::ofstream(path) << 'x';
      preferences.append("disk ").append(path).append("\n");
    }
    std::ofstream(home_.path() + "/.quillon_prefs") << preferences;
    controller_.viewDidLoad();
  }
  Checked(const Checked&) = delete;
  Checked& operator=(const Checked&) = delete;
  ~Checked() { app::sharedVar::newScsiTab.reset(); }

  [[nodiscard]] checks::State state() const { return checks::stateOf(controller_); }

 private:
  bench::SampleHome home_;
  bench::Host host_{home_.path()};
  editor::ViewController controller_{host_.host()};
};

// What happens on a thread of its own.
void facts(benchmark::State& state) {
  const Checked files;
  const checks::State checked = files.state();
  for (auto _ : state) {
    benchmark::DoNotOptimize(checks::gather(checked).disks.size());
  }
}
BENCHMARK(facts)->Name("facts about 1000 images")->Unit(benchmark::kMillisecond);

// From an edit to the new list, the state included, which the window's thread collects.
void findings(benchmark::State& state) {
  const Checked files;
  const checks::Facts known = checks::gather(files.state());
  for (auto _ : state) {
    benchmark::DoNotOptimize(checks::findings(files.state(), known).size());
  }
}
BENCHMARK(findings)->Name("findings about 1000 images")->Unit(benchmark::kMillisecond);

}  // namespace
