#include "platform/byte_count.h"

#include <gtest/gtest.h>

namespace platform {

TEST(ByteCountFormatter, WritesCounts) {
  const auto texts = [](ByteCountFormatter formatter, std::initializer_list<std::int64_t> counts) {
    std::string all;
    for (const std::int64_t bytes : counts) {
      all += formatter.stringFromByteCount(bytes) + "; ";
    }
    return all;
  };
  constexpr auto memory = ByteCountFormatter::CountStyle::memory;
  EXPECT_EQ(texts({}, {0, 1, -1, 999, 1000, 1499, 1500, 999'499, 999'500, 1'474'560}),
            "Zero KB; 1 byte; -1 byte; 999 bytes; 1 KB; 1 KB; 2 KB; 999 KB; 1 MB; 1.5 MB; ");
  EXPECT_EQ(texts({}, {1'050'000'000, 1'005'000'000, INT64_MAX}), "1.05 GB; 1.01 GB; 9.22 EB; ");
  EXPECT_EQ(texts({memory, true}, {1023, 1024, INT64_MAX, INT64_MIN}),
            "1023 bytes; 1 KB; 8 EB; -8 EB; ");
  EXPECT_EQ(
      texts({memory, false}, {0, 512, 1'048'575, 1'572'864, 50'331'648, 67'108'864, 1LL << 30}),
      "Zero; 512; 1; 1.5; 48; 64; 1; ");
}

}  // namespace platform
