#include "document/lines.h"

#include <algorithm>
#include <cstring>

namespace document {

// memmem over the whole text is many times faster than a search in each line, and finds a part
// without a line feed inside one line only.
std::optional<std::string_view> Lines::nextContaining(std::string_view part,
                                                      std::size_t from) const {
  const std::string_view text = text_;
  const void* found = ::memmem(text.data() + from, text.size() - from, part.data(), part.size());
  if (found == nullptr) {
    return std::nullopt;
  }
  return lineAt(static_cast<std::size_t>(static_cast<const char*>(found) - text.data()));
}

std::string_view Lines::lineAt(std::size_t at) const {
  const std::string_view text = text_;
  const std::size_t before = text.rfind('\n', at);
  const std::size_t start = before == text.npos ? 0 : before + 1;
  const std::size_t end = std::min(text.find('\n', at), text.size());
  return text.substr(start, end - start);
}

// A part is compared only where there is a blank, and the letter before it, which tells most parts
// apart: a search for each of 34 parts reads a large text 34 times.
std::vector<std::optional<std::string_view>> Lines::firstContaining(
    std::span<const std::string_view> parts) const {
  const std::string_view text = text_;
  std::vector<std::optional<std::string_view>> lines(parts.size());
  for (auto blank = text.find(' ', 1); blank != text.npos; blank = text.find(' ', blank + 1)) {
    const std::string_view before = text.substr(0, blank + 1);
    for (std::size_t index = 0; index < parts.size(); ++index) {
      const std::string_view part = parts[index];
      if (part[part.size() - 2] == text[blank - 1] && !lines[index] && before.ends_with(part)) {
        lines[index] = lineAt(blank);
      }
    }
  }
  return lines;
}

std::vector<std::string_view> Lines::allContaining(std::string_view part) const {
  std::vector<std::string_view> lines;
  std::size_t from = 0;
  while (const auto line = nextContaining(part, from)) {
    lines.push_back(*line);
    from = static_cast<std::size_t>(line->data() - text_.data()) + line->size();
  }
  return lines;
}

std::string_view withoutReturn(std::string_view line) {
  return line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0));
}

}  // namespace document
