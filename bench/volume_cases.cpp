#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/host.h"
#include "bench/sample.h"
#include "document/lines.h"
#include "volumes/volume_table.h"

namespace {

document::Lines diskLines(const benchmark::State& state) {
  return document::Lines(bench::samplePreferences(static_cast<std::size_t>(state.range(0)), 0));
}

// Each line prints the lists as they are by then: that part grows with the square.
void load(benchmark::State& state) {
  const document::Lines settings = diskLines(state);
  const auto lines = settings.allContaining("disk ");
  bench::Host host("/home/somebody");
  for (auto _ : state) {
    volumes::VolumeList list(host.output);
    list.load(lines);
    benchmark::DoNotOptimize(list.size());
  }
}
BENCHMARK(load)->Name("disk lines to volumes; disks")->Arg(1)->Arg(100)->Arg(1000);

void paths(benchmark::State& state) {
  const document::Lines settings = diskLines(state);
  bench::Host host("/home/somebody");
  volumes::VolumeList list(host.output);
  list.load(settings.allContaining("disk "));
  for (auto _ : state) {
    benchmark::DoNotOptimize(list.paths());
  }
}
BENCHMARK(paths)->Name("volumes to paths; disks")->Arg(1)->Arg(100)->Arg(1000);

// From the first place to the last, the farthest that there is.
void reorder(benchmark::State& state) {
  const document::Lines settings = diskLines(state);
  bench::Host host("/home/somebody");
  volumes::VolumeTable table(host.output, host.panels);
  table.wire();
  table.load(settings.allContaining("disk "));
  const std::vector<std::string> items = {table.pasteboardWriterForRow(0)};
  for (auto _ : state) {
    benchmark::DoNotOptimize(table.acceptDrop(items, table.volumes().size()));
  }
}
BENCHMARK(reorder)->Name("reorder; disks")->Arg(10)->Arg(1000);

}  // namespace
