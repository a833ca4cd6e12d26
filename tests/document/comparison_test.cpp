#include "document/comparison.h"

#include <gtest/gtest.h>

#include <string>

#include "document/preferences.h"

namespace document {
namespace {

using Fate = ComparedLine::Fate;

TEST(Comparison, TellsWhatASaveDropsChangesAndAdds) {
  std::array<std::string, keyCount> values;
  std::copy(defaults.begin(), defaults.end(), values.begin());
  values[indexOf(Key::cpu)] = "4";
  const std::string after = Preferences::composed({"/new.dsk", "/kept.dsk"}, values);
  const std::string now =
      "# mine\n"
      "\n"
      "disk /kept.dsk\n"
      "cpu 2\n"
      "cpu 3\n"
      "fpu false\n"
      "fpu false\n"
      "disk /gone.dsk";
  const Comparison lines = compare(now, after);
  const std::vector<ComparedLine> expectedNow = {
      {"# mine", Fate::dropped},      {"", Fate::kept},
      {"disk /kept.dsk", Fate::kept}, {"cpu 2", Fate::changed},
      {"cpu 3", Fate::dropped},       {"fpu false", Fate::kept},
      {"fpu false", Fate::dropped},   {"disk /gone.dsk", Fate::dropped}};
  EXPECT_EQ(lines.now, expectedNow);
  ASSERT_EQ(lines.after.size(), 2 + keyCount);
  EXPECT_EQ(lines.after[0], (ComparedLine{"disk /new.dsk", Fate::added}));
  EXPECT_EQ(lines.after[1], (ComparedLine{"disk /kept.dsk", Fate::kept}));
  EXPECT_EQ(lines.after[2 + indexOf(Key::rom)].fate, Fate::added);
  EXPECT_EQ(lines.after[2 + indexOf(Key::cpu)], (ComparedLine{"cpu 4", Fate::changed}));
  EXPECT_EQ(lines.after[2 + indexOf(Key::fpu)], (ComparedLine{"fpu false", Fate::kept}));
}

}  // namespace
}  // namespace document
