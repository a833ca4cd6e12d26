#include "document/comparison.h"

#include <gtest/gtest.h>

#include <string>

namespace document {

TEST(Comparison, TellsWhatASaveDropsChangesAndAdds) {
  const auto described = [](const std::vector<ComparedLine>& lines) {
    constexpr const char* fates[] = {"kept", "dropped", "changed", "added"};
    std::string text;
    for (const ComparedLine& line : lines) {
      text += fates[static_cast<int>(line.fate)] + (": " + std::string(line.text)) + "\n";
    }
    return text;
  };
  const Comparison lines =
      compare("# mine\n\ndisk /kept.dsk\ncpu 2\ncpu 3\nfpu false\nfpu false\ndisk /gone.dsk",
              "disk /new.dsk\ndisk /kept.dsk\nrom \ncpu 4\nfpu false\n");
  EXPECT_EQ(described(lines.now),
            "dropped: # mine\nkept: \nkept: disk /kept.dsk\nchanged: cpu 2\ndropped: cpu 3\n"
            "kept: fpu false\ndropped: fpu false\ndropped: disk /gone.dsk\n");
  EXPECT_EQ(described(lines.after),
            "added: disk /new.dsk\nkept: disk /kept.dsk\nadded: rom \nchanged: cpu 4\n"
            "kept: fpu false\n");
}

}  // namespace document
