#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "document/key_table.h"

namespace checks {

/// How grave a finding is, the gravest first.
enum class Level {
  stops,    // the emulator cannot start, or a save fails or would undo something
  warning,  // it starts, and something is most likely not as it is meant
  note,     // worth knowing
};

/// What a finding is about where it is about no setting.
enum class Place { quillon, diskImages, preferencesFile };

using Subject = std::variant<document::Key, Place>;

/// A part that is put into a text.
struct Argument {
  Argument(std::string plain) : words{std::move(plain)} {}  // NOLINT(google-explicit-constructor)
  explicit Argument(std::vector<std::string> shown)
      : words(std::move(shown)), areTranslated(true) {}

  std::vector<std::string> words;  // with commas between them
  bool areTranslated = false;      // entries and words of controls, which the window translates
};

/// A sentence. The format is translatable and holds %1, %2 … where the arguments go.
struct Text {
  const char* format;
  std::vector<Argument> arguments;
};

struct Finding {
  Level level;
  Subject subject;
  Text text;
  std::optional<std::size_t> image{};  // the first disk image that it is about, as an index
};

/// The context of the formats for translators.
inline constexpr const char* textContext = "Checks";

/// `format` with the arguments in their places. What looks like a place in an argument is none.
std::string filled(std::string_view format, const std::vector<std::string>& arguments);

/// The sentence in English.
std::string english(const Text& text);

/// How scripts are told of a level and of a subject: "stops", "rom", "Quillon.app".
std::string_view nameOf(Level level);
std::string_view nameOf(const Subject& subject);

}  // namespace checks
