#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

/// Whether `content` says that it is a binary list; all else is read as XML.
bool isBinary(std::string_view content);

/// Whether the library copes with `content`, XML or binary. It ends the program over a text with a
/// zero in it and over a date that no calendar has, and it makes a copy of an object each time that
/// a binary list names it: written out in this way the list has to stay within `limit` bytes.
bool isHarmless(std::string_view content, std::size_t limit);

}  // namespace platform
