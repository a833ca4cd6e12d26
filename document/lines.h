#pragma once

#include <cstddef>
#include <optional>
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

  /// The first line that contains `part` anywhere. `part` is not empty and holds no line feed.
  [[nodiscard]] std::optional<std::string_view> firstContaining(std::string_view part) const;

  /// All lines that contain `part` anywhere, valid as long as this object is.
  [[nodiscard]] std::vector<std::string_view> allContaining(std::string_view part) const;

 private:
  [[nodiscard]] std::optional<std::string_view> nextContaining(std::string_view part,
                                                               std::size_t from) const;

  std::string text_;
};

/// A line without its last byte where that is the carriage return of a CR LF line end.
std::string_view withoutReturn(std::string_view line);

}  // namespace document
