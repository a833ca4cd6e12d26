#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace document {

/// The non-empty lines of a text in their order, kept as bytes: nothing is trimmed.
class Lines {
 public:
  Lines() = default;
  explicit Lines(std::string text) : text_(std::move(text)) {}

  /// The first line that contains each of the parts anywhere, valid as long as this object is. A
  /// part ends in its only blank, and has something before that.
  [[nodiscard]] std::vector<std::optional<std::string_view>> firstContaining(
      std::span<const std::string_view> parts) const;

  /// All lines that contain `part` anywhere, valid as long as this object is. It is not empty and
  /// holds no line feed.
  [[nodiscard]] std::vector<std::string_view> allContaining(std::string_view part) const;

 private:
  [[nodiscard]] std::optional<std::string_view> nextContaining(std::string_view part,
                                                               std::size_t from) const;

  [[nodiscard]] std::string_view lineAt(std::size_t at) const;

  std::string text_;
};

/// A line without its last byte where that is the carriage return of a CR LF line end.
std::string_view withoutReturn(std::string_view line);

}  // namespace document
