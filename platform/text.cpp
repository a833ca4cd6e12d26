#include "platform/text.h"

#include <utf8proc.h>

#include <algorithm>
#include <charconv>
#include <concepts>

namespace platform {
namespace {

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

template <std::signed_integral Integer>
std::optional<Integer> parse(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      return std::nullopt;
    }
  }
  Integer value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return value;
}

struct CodePoint {
  utf8proc_int32_t value;
  std::size_t length;  // bytes
};

CodePoint firstCodePoint(std::string_view text) {
  CodePoint first{-1, 1};
  const auto size = static_cast<utf8proc_ssize_t>(std::min<std::size_t>(text.size(), 4));
  const auto length =
      utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()), size, &first.value);
  if (length > 0) {
    first.length = static_cast<std::size_t>(length);
  }
  return first;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto ascii = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
    bytes.remove_prefix(static_cast<std::size_t>(ascii - bytes.begin()));
    if (bytes.empty()) {
      break;
    }
    const CodePoint next = firstCodePoint(bytes);
    if (next.value < 0) {
      return false;
    }
    bytes.remove_prefix(next.length);
  }
  return true;
}

std::string_view dropCharacters(std::string_view text, std::size_t count) {
  // In ASCII each byte is a character, but for CR LF, which is one grapheme cluster.
  const std::string_view start = text.substr(0, std::min(count, text.size()) + 1);
  if (std::all_of(start.begin(), start.end(), isAscii) && start.find('\r') == start.npos) {
    return text.substr(std::min(count, text.size()));
  }
  utf8proc_int32_t state = 0;
  CodePoint current = firstCodePoint(text);
  while (count > 0 && !text.empty()) {
    text.remove_prefix(current.length);
    const CodePoint next = firstCodePoint(text);
    if (text.empty() || utf8proc_grapheme_break_stateful(current.value, next.value, &state)) {
      --count;
    }
    current = next;
  }
  return text;
}

std::optional<std::int64_t> parseInt64(std::string_view text) { return parse<std::int64_t>(text); }
std::optional<std::int32_t> parseInt32(std::string_view text) { return parse<std::int32_t>(text); }

}  // namespace platform
