#include "platform/text.h"

#include <gtest/gtest.h>

namespace platform {

using namespace std::string_view_literals;

TEST(Text, DropsWholeCharacters) {
  struct {
    std::string_view text;
    std::size_t count;
    std::string_view rest;
  } const cases[] = {
      // Plain text, line ends, combining marks, joined, adjacent and toned emoji, flags, bytes that
      // are no UTF-8.
      {"rom /a", 4, "/a"},
      {"rom", 9, ""},
      {"abc", 0, "abc"},
      {"a\0b"sv, 2, "b"},
      {"a\r\nb", 2, "b"},
      {"\r\rb", 1, "\rb"},
      {"disk \u0301x", 5, "x"},
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
  EXPECT_EQ(parseInt64("-007"), -7);
  EXPECT_EQ(parseInt64("-9223372036854775808"), INT64_MIN);
  EXPECT_EQ(parseInt32("-2147483648"), INT32_MIN);
  EXPECT_FALSE(parseInt32("2147483648"));
  for (const auto* text :
       {"", "+", "-", "+-1", "--1", " 1", "1 ", "0x10", "1.5", "9223372036854775808"}) {
    EXPECT_FALSE(parseInt64(text)) << text;
  }
}

}  // namespace platform
