#pragma once

#include <string_view>
#include <vector>

namespace document {

/// A line of one of two texts and what becomes of it, or has become of it, in the other.
struct ComparedLine {
  enum class Fate { kept, dropped, changed, added };

  std::string_view text;
  Fate fate = Fate::kept;

  friend bool operator==(const ComparedLine&, const ComparedLine&) = default;
};

struct Comparison {
  std::vector<ComparedLine> now;    // kept, dropped or changed
  std::vector<ComparedLine> after;  // kept, changed or added
};

/// Compares the lines of a preferences file with those that a save would put in their place. A
/// setting with another value is changed on both sides. Where a line stands does not matter: the
/// saved order is always the same. Empty lines mean nothing and count as kept. The lines are parts
/// of the two texts.
Comparison compare(std::string_view now, std::string_view after);

}  // namespace document
