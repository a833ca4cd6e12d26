#include "document/comparison.h"

#include <algorithm>
#include <deque>
#include <unordered_map>

#include "document/key_table.h"

namespace document {
namespace {

using Fate = ComparedLine::Fate;

std::vector<ComparedLine> linesOf(std::string_view text, Fate fate) {
  std::vector<ComparedLine> lines;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    lines.push_back({line, line.empty() ? Fate::kept : fate});
    text.remove_prefix(std::min(line.size() + 1, text.size()));
  }
  return lines;
}

void markKept(std::vector<ComparedLine>& now, std::vector<ComparedLine>& after) {
  std::unordered_map<std::string_view, std::deque<ComparedLine*>> open;
  for (ComparedLine& line : after) {
    open[line.text].push_back(&line);
  }
  for (ComparedLine& line : now) {
    auto& same = open[line.text];
    if (!same.empty()) {
      line.fate = same.front()->fate = Fate::kept;
      same.pop_front();
    }
  }
}

ComparedLine* firstOf(const KeyRow& row, Fate fate, std::vector<ComparedLine>& lines) {
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const ComparedLine& line) {
    return line.fate == fate && line.text.starts_with(row.text);
  });
  return found != lines.end() ? &*found : nullptr;
}

}  // namespace

Comparison compare(std::string_view now, std::string_view after) {
  Comparison lines{linesOf(now, Fate::dropped), linesOf(after, Fate::added)};
  markKept(lines.now, lines.after);
  for (const KeyRow& row : keyTable) {
    ComparedLine* const old = firstOf(row, Fate::dropped, lines.now);
    ComparedLine* const fresh = firstOf(row, Fate::added, lines.after);
    if (old != nullptr && fresh != nullptr) {
      old->fate = fresh->fate = Fate::changed;
    }
  }
  return lines;
}

}  // namespace document
