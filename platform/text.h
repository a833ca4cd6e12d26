#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace platform {

/// Whether `bytes` is well-formed UTF-8 (NUL included, surrogates excluded).
bool isUtf8(std::string_view bytes);

/// `text` without its first `count` user-perceived characters (extended grapheme clusters);
/// empty when it has no more than that.
std::string_view dropCharacters(std::string_view text, std::size_t count);

/// The whole text as a decimal integer with an optional sign; none when it is anything else or
/// does not fit.
std::optional<std::int64_t> parseInt64(std::string_view text);
std::optional<std::int32_t> parseInt32(std::string_view text);

}  // namespace platform
