#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/byte_count.h"

namespace platform {

TEST(Text, DropsWholeCharacters) {
  struct Row {
    const char* what;
    std::string text;
    std::size_t count;
    std::string rest;
  };
  // clang-format off
  for (const auto& [what, text, count, rest] : std::initializer_list<Row>{
           {"plain text", "rom /a", 4, "/a"},
           {"fewer than asked for", "rom", 9, ""},
           {"none", "abc", 0, "abc"},
           {"a zero byte", {"a\0b", 3}, 2, "b"},
           {"a line end of two", "a\r\nb", 2, "b"},
           {"carriage returns", "\r\rb", 1, "\rb"},
           {"combining marks", "e\u0301\u0302f", 1, "f"},
           {"joined emoji", "\U0001F469\u200D\U0001F467x", 1, "x"},
           {"emoji side by side", "\U0001F469\U0001F467", 1, "\U0001F467"},
           {"a toned emoji", "\U0001F44D\U0001F3FDx", 1, "x"},
           {"flags", "\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7", 1, "\U0001F1EB\U0001F1F7"},
           {"what is no UTF-8", "\xff\xfe_", 2, "_"}}) {
    // clang-format on
    EXPECT_EQ(dropCharacters(text, count), rest) << what;
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
  struct Row {
    ByteCountFormatter formatter;
    std::vector<std::pair<std::int64_t, const char*>> texts;
  };
  // clang-format off
  for (const auto& [formatter, texts] : std::initializer_list<Row>{
           {.formatter = {},
            .texts = {{0, "Zero KB"}, {1, "1 byte"}, {-1, "-1 byte"}, {999, "999 bytes"}, {1499, "1 KB"},
                      {1500, "2 KB"}, {999'499, "999 KB"}, {999'500, "1 MB"}, {1'474'560, "1.5 MB"},
                      {1'005'000'000, "1.01 GB"}}},
           {.formatter = {Style::memory, true},
            .texts = {{1023, "1023 bytes"}, {1024, "1 KB"}, {INT64_MAX, "8 EB"}, {INT64_MIN, "-8 EB"}}},
           {.formatter = {Style::memory, false},
            .texts = {{0, "Zero"}, {512, "512"}, {1'572'864, "1.5"}, {50'331'648, "48"}, {1LL << 30, "1"}}}}) {
    // clang-format on
    for (const auto& [bytes, text] : texts) {
      EXPECT_EQ(formatter.stringFromByteCount(bytes), text) << bytes;
    }
  }
}

}  // namespace platform
