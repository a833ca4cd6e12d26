#include "document/lines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace document {
namespace {

constexpr std::size_t largeText = std::size_t{1} << 17U;  // bytes
constexpr std::size_t endLength = 4;                      // bytes; no key text is shorter
constexpr unsigned hashBits = 16;

// Of the last bytes before `end`.
std::size_t hashOfEnd(std::string_view text, std::size_t end) {
  std::uint32_t bytes = 0;
  std::memcpy(&bytes, text.data() + end - endLength, endLength);
  return (bytes * 2654435769U) >> (32U - hashBits);  // multiplied by 2^32 over the golden ratio
}

}  // namespace

Lines::Lines(std::string text) : text_(std::move(text)) {
  if (text_.size() >= largeText) {
    noteWordEnds();
  }
}

// One pass here spares most of the passes that looking for each of many keys would take: a key that
// is nowhere is mostly known to be nowhere without any.
void Lines::noteWordEnds() {
  wordEnds_.assign(std::size_t{1} << hashBits, std::string::npos);
  for (auto at = text_.find(' ', endLength - 1); at != text_.npos; at = text_.find(' ', at + 1)) {
    std::size_t& first = wordEnds_[hashOfEnd(text_, at + 1)];
    first = std::min(first, at + 1);
  }
}

// No occurrence of `part` starts before this; past the end when there is none at all.
std::size_t Lines::earliest(std::string_view part) const {
  if (wordEnds_.empty() || part.size() < endLength || part.back() != ' ') {
    return 0;
  }
  const std::size_t end = wordEnds_[hashOfEnd(part, part.size())];
  return end == text_.npos ? text_.size() : end - std::min(end, part.size());
}

// Searches the text as a whole: that is many times faster than line by line, and a part without a
// line feed is found inside one line only.
std::optional<std::string_view> Lines::nextContaining(std::string_view part,
                                                      std::size_t from) const {
  const std::string_view text = text_;
  const void* found = ::memmem(text.data() + from, text.size() - from, part.data(), part.size());
  if (found == nullptr) {
    return std::nullopt;
  }
  const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
  const std::size_t before = text.rfind('\n', at);
  const std::size_t start = before == text.npos ? 0 : before + 1;
  const std::size_t end = std::min(text.find('\n', at), text.size());
  return text.substr(start, end - start);
}

std::optional<std::string_view> Lines::firstContaining(std::string_view part) const {
  return nextContaining(part, earliest(part));
}

std::vector<std::string_view> Lines::allContaining(std::string_view part) const {
  std::vector<std::string_view> lines;
  std::size_t from = earliest(part);
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
