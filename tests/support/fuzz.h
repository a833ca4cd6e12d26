#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace tests {

/// Ends the run with the promise that an input broke.
inline void check(bool kept, const std::string& promise) {
  if (!kept) {
    std::fprintf(stderr, "broken: %s\n", promise.c_str());
    std::abort();
  }
}

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace tests

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
