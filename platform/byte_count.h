#pragma once

#include <cstdint>
#include <string>

namespace platform {

/// How byte counts are written for people.
struct ByteCountFormatter {
  enum class CountStyle {
    file,    // units of 1,000
    memory,  // units of 1,024
  };

  CountStyle countStyle = CountStyle::file;
  bool includesUnit = true;

  /// Bytes and KB as whole numbers, MB with at most one fraction digit, GB and above with at most
  /// two, rounded to nearest, without trailing zeros; zero is "Zero KB".
  [[nodiscard]] std::string stringFromByteCount(std::int64_t bytes) const;
};

}  // namespace platform
