#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

/// Whether `content` is no binary property list, or one that the library copes with. It has to stay
/// within `limit` bytes with every object written out wherever it is named, since the library makes
/// a copy each time; and the library ends the program over a text with a zero in it and over a date
/// that no calendar has.
bool isHarmless(std::string_view content, std::size_t limit);

}  // namespace platform
