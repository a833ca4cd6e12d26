#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/byte_count.h"
#include "tests/support/data.h"

namespace platform {

TEST(Text, DropsWholeCharacters) {
  for (const tests::Case& each : tests::cases("characters.txt", {"text", "drop", "left"})) {
    EXPECT_EQ(dropCharacters(each["text"], std::stoul(each["drop"])), each["left"]);
  }
}

TEST(Text, TakesOneSignBeforeANumber) {
  EXPECT_EQ(parseInt64("+7"), 7);
  EXPECT_FALSE(parseInt64("+-1"));
}

TEST(ByteCountFormatter, WritesCounts) {
  using Style = ByteCountFormatter::CountStyle;
  const std::map<std::string, ByteCountFormatter> formatters = {
      {"file", {}}, {"memory", {Style::memory, true}}, {"number", {Style::memory, false}}};
  for (const tests::Case& each :
       tests::cases("byte-counts.txt", {"bytes", "file", "memory", "number"})) {
    for (const auto& [kind, formatter] : formatters) {
      if (each.has(kind)) {
        EXPECT_EQ(formatter.stringFromByteCount(std::stoll(each["bytes"])), each[kind]);
      }
    }
  }
}

}  // namespace platform
