#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The place of a file as a URL text (RFC 3986), absolute ("file:///folder/name") or relative
/// ("folder/name").
class Location {
 public:
  /// The location of a path: absolute when it begins with "/", else relative. Every path has one.
  static Location fromPath(std::string_view path);

  /// The location that a text names; none when the text is empty or no valid URL text (a blank, a
  /// control character, a character outside ASCII, a "%" without two hexadecimal digits).
  static std::optional<Location> fromText(std::string_view text);

  /// The location as URL text.
  [[nodiscard]] const std::string& text() const { return text_; }

  /// The percent-decoded path, without a last "/" (the root folder keeps its own).
  [[nodiscard]] std::string path() const;

  /// Whether this names a file by an absolute path, so that it can be read and written.
  [[nodiscard]] bool isFile() const;

  /// The folder that holds this location, ending in "/".
  [[nodiscard]] Location folder() const;

  friend bool operator==(const Location&, const Location&) = default;

 private:
  explicit Location(std::string text) : text_(std::move(text)) {}

  std::string text_;
};

/// `path` with every byte that a URL path may not hold as "%" and two hexadecimal digits.
std::string percentEncoded(std::string_view path);

/// `text` with every "%" and two hexadecimal digits replaced by the byte; other "%" stay.
std::string percentDecoded(std::string_view text);

/// The location as an optional value is printed: Optional(file:///folder/name), or nil.
std::string optionalText(const std::optional<Location>& location);

}  // namespace platform
