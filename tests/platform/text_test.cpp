#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/byte_count.h"

namespace platform {

TEST(Text, DropsWholeCharacters) {
  // Plain text, line ends, combining marks, joined, adjacent and toned emoji, flags, bytes that are
  // no UTF-8.
  const std::tuple<std::string, std::size_t, std::string> cases[] = {
      {"rom /a", 4, "/a"},
      {"rom", 9, ""},
      {"abc", 0, "abc"},
      {{"a\0b", 3}, 2, "b"},
      {"a\r\nb", 2, "b"},
      {"\r\rb", 1, "\rb"},
      {"e\u0301\u0302f", 1, "f"},
      {"\U0001F469\u200D\U0001F467x", 1, "x"},
      {"\U0001F469\U0001F467", 1, "\U0001F467"},
      {"\U0001F44D\U0001F3FDx", 1, "x"},
      {"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7", 1, "\U0001F1EB\U0001F1F7"},
      {"\xff\xfe_", 2, "_"}};
  for (const auto& [text, count, rest] : cases) {
    EXPECT_EQ(dropCharacters(text, count), rest) << text << " less " << count;
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
  const auto texts = [](ByteCountFormatter formatter, std::initializer_list<std::int64_t> counts) {
    std::string all;
    for (const std::int64_t bytes : counts) {
      all += formatter.stringFromByteCount(bytes) + "; ";
    }
    return all;
  };
  constexpr auto memory = ByteCountFormatter::CountStyle::memory;
  EXPECT_EQ(texts({}, {0, 1, -1, 999, 1499, 1500, 999'499, 999'500, 1'474'560, 1'005'000'000}),
            "Zero KB; 1 byte; -1 byte; 999 bytes; 1 KB; 2 KB; 999 KB; 1 MB; 1.5 MB; 1.01 GB; ");
  EXPECT_EQ(texts({memory, true}, {1023, 1024, INT64_MAX, INT64_MIN}),
            "1023 bytes; 1 KB; 8 EB; -8 EB; ");
  EXPECT_EQ(texts({memory, false}, {0, 512, 1'572'864, 50'331'648, 1LL << 30}),
            "Zero; 512; 1.5; 48; 1; ");
}

}  // namespace platform
