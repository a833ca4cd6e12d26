#include "platform/byte_count.h"

#include <array>
#include <string_view>

namespace platform {
namespace {

struct Unit {
  std::string_view name;
  unsigned hundredths;  // hundredths that a written count is a multiple of
};

constexpr std::array<Unit, 7> units = {
    {{"bytes", 100}, {"KB", 100}, {"MB", 10}, {"GB", 1}, {"TB", 1}, {"PB", 1}, {"EB", 1}}};

// bytes / divisor in hundredths, rounded half up to a multiple of `step`. 128 bits hold any
// product of a byte count and a hundred.
__extension__ using Wide = unsigned __int128;

Wide hundredthsOf(std::uint64_t bytes, std::uint64_t divisor, unsigned step) {
  const Wide unit = Wide(divisor) * step;
  return (Wide(bytes) * 100 * 2 + unit) / (unit * 2) * step;
}

std::string decimalText(std::uint64_t hundredths) {
  std::string text = std::to_string(hundredths / 100);
  const auto fraction = static_cast<char>(hundredths % 100);
  if (fraction != 0) {
    text += {'.', static_cast<char>('0' + fraction / 10)};
    if (fraction % 10 != 0) {
      text += static_cast<char>('0' + fraction % 10);
    }
  }
  return text;
}

}  // namespace

std::string ByteCountFormatter::stringFromByteCount(std::int64_t bytes) const {
  if (bytes == 0) {
    return includesUnit ? "Zero KB" : "Zero";
  }
  const std::uint64_t base = countStyle == CountStyle::memory ? 1024 : 1000;
  const std::uint64_t magnitude =
      bytes < 0 ? ~static_cast<std::uint64_t>(bytes) + 1 : static_cast<std::uint64_t>(bytes);

  std::size_t unit = 0;
  std::uint64_t divisor = 1;
  Wide hundredths = hundredthsOf(magnitude, divisor, units[unit].hundredths);
  // A count that rounds to a whole next unit is written in that one.
  while (hundredths >= Wide(base) * 100 && unit + 1 < units.size()) {
    ++unit;
    divisor *= base;
    hundredths = hundredthsOf(magnitude, divisor, units[unit].hundredths);
  }

  std::string text = bytes < 0 ? "-" : "";
  text += decimalText(static_cast<std::uint64_t>(hundredths));
  if (includesUnit) {
    text.append(" ").append(magnitude == 1 ? "byte" : units[unit].name);
  }
  return text;
}

}  // namespace platform
