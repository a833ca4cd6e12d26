#include <benchmark/benchmark.h>

#include <string>

#include "app/shared_var.h"
#include "bench/host.h"
#include "bench/sample.h"
#include "bench/sample_home.h"
#include "editor/view_controller.h"

namespace {

using bench::SampleHome;

// Everything that happens before the window is built: the file is read, all settings and the
// volumes are filled in, the diagnostics are written.
void walk(benchmark::State& state) {
  const SampleHome home(bench::samplePreferences(static_cast<std::size_t>(state.range(0)),
                                                 static_cast<std::size_t>(state.range(1))));
  for (auto _ : state) {
    bench::Host host(home.path());
    editor::ViewController controller(host.host());
    controller.viewDidLoad();
    benchmark::DoNotOptimize(controller.volumes.volumes().size());
    app::sharedVar::newScsiTab.reset();
  }
}
BENCHMARK(walk)
    ->Name("walk over " + std::to_string(document::keyCount) + " settings; disks/other lines")
    ->Args({6, 0})
    ->Args({1000, 0})
    ->Args({0, 200000})
    ->Unit(benchmark::kMicrosecond);

void save(benchmark::State& state) {
  const SampleHome home(bench::samplePreferences(6, 0));
  bench::Host host(home.path());
  editor::ViewController controller(host.host());
  controller.viewDidLoad();
  for (auto _ : state) {
    benchmark::DoNotOptimize(controller.savePrefsAny());
  }
  app::sharedVar::newScsiTab.reset();
}
BENCHMARK(save)->Name("save 40 lines, flushed to the disk")->Unit(benchmark::kMicrosecond);

}  // namespace
