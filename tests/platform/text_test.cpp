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

TEST(Text, ParsesWholeIntegers) {
  EXPECT_EQ(parseInt64("+7"), 7);
  EXPECT_EQ(parseInt64("-9223372036854775808"), INT64_MIN);
  EXPECT_EQ(parseInt32("-2147483648"), INT32_MIN);
  EXPECT_FALSE(parseInt32("2147483648"));
  for (const auto* text : {"", "+", "-", "+-1", " 1", "1 ", "0x10", "1.5", "9223372036854775808"}) {
    EXPECT_FALSE(parseInt64(text)) << text;
  }
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
