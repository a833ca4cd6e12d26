#include <benchmark/benchmark.h>

#include "bench/host.h"
#include "bench/sample.h"
#include "document/lines.h"
#include "document/preferences.h"
#include "platform/byte_count.h"

namespace {

void lookUp(benchmark::State& state) {
  const auto lines = static_cast<std::size_t>(state.range(0));
  const document::Lines settings(bench::samplePreferences(0, lines - document::keyCount));
  for (auto _ : state) {
    benchmark::DoNotOptimize(settings.firstContaining(document::prefs));
  }
}
BENCHMARK(lookUp)->Name("look up all settings; lines")->Arg(40)->Arg(1000)->Arg(200000);

void takeIn(benchmark::State& state) {
  const auto lines = static_cast<std::size_t>(state.range(0));
  const std::string text = bench::samplePreferences(0, lines - document::keyCount);
  for (auto _ : state) {
    benchmark::DoNotOptimize(document::Lines(text));
  }
}
BENCHMARK(takeIn)->Name("take in a text; lines")->Arg(40)->Arg(1000)->Arg(200000);

void compose(benchmark::State& state) {
  bench::Host host("/home/somebody");
  document::Preferences preferences("/home/somebody", host.output);
  const std::vector<std::string> disks(static_cast<std::size_t>(state.range(0)),
                                       "/home/somebody/images/disk 1.dsk");
  for (auto _ : state) {
    benchmark::DoNotOptimize(document::Preferences::composed(disks, preferences.prefSet));
  }
}
BENCHMARK(compose)->Name("compose the file; disks")->Arg(1)->Arg(1000)->Arg(200000);

void byteCounts(benchmark::State& state) {
  const platform::ByteCountFormatter formatter;
  for (auto _ : state) {
    for (std::int64_t bytes = 1; bytes < std::int64_t{1} << 50U; bytes *= 7) {
      benchmark::DoNotOptimize(formatter.stringFromByteCount(bytes));
    }
  }
}
BENCHMARK(byteCounts)->Name("18 byte-count texts");

}  // namespace
