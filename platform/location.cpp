#include "platform/location.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

constexpr std::string_view fileScheme = "file:";
constexpr std::string_view filePrefix = "file://";

constexpr bool isAlphabetic(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

int hexValue(char c) {
  constexpr std::string_view digits = "0123456789abcdef";
  const auto at = digits.find(isAlphabetic(c) ? static_cast<char>(c | 0x20) : c);
  return at == digits.npos ? -1 : static_cast<int>(at);
}

constexpr bool isIn(char c, std::string_view set) { return set.find(c) != set.npos; }

// RFC 3986, section 3.3: pchar without percent escapes, and the separator.
constexpr auto pathCharacters = [] {
  std::array<bool, 256> found{};
  for (std::size_t byte = 0; byte < 128; ++byte) {
    const char c = static_cast<char>(byte);
    found[byte] = isAlphabetic(c) || isDigit(c) || isIn(c, "-._~!$&'()*+,;=:@/");
  }
  return found;
}();

bool isPathCharacter(char c) { return pathCharacters[static_cast<unsigned char>(c)]; }

// The byte of the escape at `at`; -1 where there is none.
int escapeAt(std::string_view text, std::size_t at) {
  if (at + 2 >= text.size() || text[at] != '%') {
    return -1;
  }
  const int high = hexValue(text[at + 1]);
  const int low = hexValue(text[at + 2]);
  return high < 0 || low < 0 ? -1 : high * 16 + low;
}

// The scheme with its colon; empty when the text has none (RFC 3986, section 3.1).
std::string_view schemeOf(std::string_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(), [](char c) {
    return isAlphabetic(c) || isDigit(c) || isIn(c, "+-.");
  });
  if (text.empty() || !isAlphabetic(text.front()) || end == text.end() || *end != ':') {
    return {};
  }
  return text.substr(0, static_cast<std::size_t>(end - text.begin()) + 1);
}

// What follows the scheme and the host. "?" and "#" can stand in a file's name, so that neither
// ends the path.
std::string_view encodedPath(std::string_view text) {
  text.remove_prefix(schemeOf(text).size());
  if (text.starts_with("//")) {
    text.remove_prefix(std::min(text.find('/', 2), text.size()));
  }
  return text;
}

bool hasForeignHost(std::string_view text) {
  text.remove_prefix(fileScheme.size());
  return text.starts_with("//") && !text.starts_with("///") && !text.starts_with("//localhost/");
}

}  // namespace

Location Location::fromPath(std::string_view path) {
  std::string encoded = percentEncoded(path);
  if (path.starts_with('/')) {
    return Location(std::string(filePrefix) + encoded);
  }
  // "a:b/c" would be read as the scheme "a" (RFC 3986, section 4.2).
  for (auto at = encoded.find(':'); at < encoded.find('/'); at = encoded.find(':', at)) {
    encoded.replace(at, 1, "%3A");
  }
  return Location(std::move(encoded));
}

std::optional<Location> Location::fromText(std::string_view text) {
  if (text.empty()) {
    return std::nullopt;
  }
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool valid = text[at] == '%' ? escapeAt(text, at) >= 0
                                       : isPathCharacter(text[at]) || isIn(text[at], "?#[]");
    if (!valid) {
      return std::nullopt;
    }
  }
  return Location(std::string(text));
}

std::string Location::path() const {
  std::string path = percentDecoded(encodedPath(text_));
  if (path.size() > 1 && path.ends_with('/')) {
    path.pop_back();
  }
  return path;
}

bool Location::isFile() const {
  const std::string_view scheme = schemeOf(text_);
  if (scheme.empty()) {
    return text_.starts_with('/') && !text_.starts_with("//");
  }
  return scheme == fileScheme && !hasForeignHost(text_) && encodedPath(text_).starts_with('/');
}

Location Location::folder() const {
  std::string_view folder = text_;
  if (folder.ends_with('/')) {
    folder.remove_suffix(1);
  }
  return Location(std::string(folder.substr(0, folder.rfind('/') + 1)));
}

// Both copy what stands between two characters of interest in one go: at start-up they see each
// path of the file, and few of these have any.
std::string percentEncoded(std::string_view path) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(path.size());
  std::size_t copied = 0;
  for (std::size_t at = 0; at < path.size(); ++at) {
    if (!isPathCharacter(path[at])) {
      const auto byte = static_cast<unsigned char>(path[at]);
      encoded += path.substr(copied, at - copied);
      encoded += {'%', digits[byte >> 4U], digits[byte & 15U]};
      copied = at + 1;
    }
  }
  encoded += path.substr(copied);
  return encoded;
}

std::string percentDecoded(std::string_view text) {
  std::string decoded;
  decoded.reserve(text.size());
  std::size_t copied = 0;
  for (auto at = text.find('%'); at != text.npos; at = text.find('%', at + 1)) {
    const int byte = escapeAt(text, at);
    if (byte >= 0) {
      decoded += text.substr(copied, at - copied);
      decoded += static_cast<char>(byte);
      copied = at + 3;
      at += 2;
    }
  }
  decoded += text.substr(copied);
  return decoded;
}

std::string optionalText(const std::optional<Location>& location) {
  return location ? "Optional(" + location->text() + ")" : "nil";
}

}  // namespace platform
