#include "platform/byte_count.h"

#include <array>
#include <string_view>

namespace platform {
namespace {

struct Unit {
  std::string_view name;
  unsigned fractionDigits;
};

constexpr std::array<Unit, 7> units = {
    {{"bytes", 0}, {"KB", 0}, {"MB", 1}, {"GB", 2}, {"TB", 2}, {"PB", 2}, {"EB", 2}}};

struct Count {
  std::uint64_t whole;
  unsigned hundredths;
};

// bytes / divisor, rounded half up to that many fraction digits. Divided digit by digit, because a
// hundred times a byte count does not fit into 64 bits, and 32-bit machines have no longer numbers:
// the largest remainder, of 2^60 bytes, leaves room for a factor of 16.
Count quotient(std::uint64_t bytes, std::uint64_t divisor, unsigned fractionDigits) {
  Count count{bytes / divisor, 0};
  std::uint64_t rest = bytes % divisor;
  unsigned worth = 100;  // of the last digit, in hundredths
  for (unsigned digit = 0; digit < fractionDigits; ++digit) {
    worth /= 10;
    rest *= 10;
    count.hundredths += static_cast<unsigned>(rest / divisor) * worth;
    rest %= divisor;
  }
  if (rest * 2 >= divisor) {
    count.hundredths += worth;
  }
  count.whole += count.hundredths / 100;
  count.hundredths %= 100;
  return count;
}

std::string decimalText(const Count& count) {
  std::string text = std::to_string(count.whole);
  const auto fraction = static_cast<char>(count.hundredths);
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
  Count count = quotient(magnitude, divisor, units[unit].fractionDigits);
  // 999,950 bytes round to 1000 KB: such a count is written as 1 MB.
  while (count.whole >= base && unit + 1 < units.size()) {
    ++unit;
    divisor *= base;
    count = quotient(magnitude, divisor, units[unit].fractionDigits);
  }

  std::string text = bytes < 0 ? "-" : "";
  text += decimalText(count);
  if (includesUnit) {
    text.append(" ").append(magnitude == 1 ? "byte" : units[unit].name);
  }
  return text;
}

}  // namespace platform
