#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

/// Whether `content` is no binary property list, or one that takes at most `limit` bytes with every
/// object written out wherever it is named. A list that names an object often can be vast: the
/// library makes a copy each time.
bool staysWithin(std::string_view content, std::size_t limit);

}  // namespace platform
