#include "platform/binary_list.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace platform {
namespace {

constexpr std::string_view magic = "bplist";
constexpr std::size_t trailerSize = 32;
constexpr std::size_t mostLevels = 100;  // more than are read, few enough for the stack

// The high half of an object's first byte says what it is.
enum Kind : std::uint8_t { date = 3, data, ascii, utf16, utf8, array = 10, set = 12, dict };

class BinaryList {
 public:
  BinaryList(std::string_view content, std::size_t limit) : content_(content), limit_(limit) {}

  bool isHarmless() {
    if (content_.size() < magic.size() + trailerSize) {
      return false;
    }
    const std::size_t trailer = content_.size() - trailerSize;
    offsetSize_ = number(trailer + 6, 1);
    referenceSize_ = number(trailer + 7, 1);
    const std::size_t count = number(trailer + 8, 8);
    table_ = number(trailer + 24, 8);
    if (count > trailer || table_ > trailer) {
      return false;
    }
    sizes_.assign(count, unknown);
    return sizeOf(number(trailer + 16, 8)) <= limit_;
  }

 private:
  static constexpr std::size_t unknown = SIZE_MAX;

  // A big-endian number. An offset outside the content gives SIZE_MAX, which fails every check.
  [[nodiscard]] std::size_t number(std::size_t at, std::size_t size) const {
    if (size > 8 || at > content_.size() || size > content_.size() - at) {
      return SIZE_MAX;
    }
    std::size_t value = 0;
    for (const char byte : content_.substr(at, size)) {
      value = value << 8U | static_cast<unsigned char>(byte);
    }
    return value;
  }

  // The bytes that an object takes up when all objects inside it are written out.
  std::size_t sizeOf(std::size_t object) {
    if (object >= sizes_.size()) {
      return limit_ + 1;
    }
    if (sizes_[object] == unknown) {
      if (levels_ == mostLevels) {
        return limit_ + 1;
      }
      ++levels_;
      sizes_[object] = 1;  // ends the recursion for an object within itself; libplist refuses it
      sizes_[object] = measure(number(table_ + object * offsetSize_, offsetSize_));
      --levels_;
    }
    return sizes_[object];
  }

  [[nodiscard]] bool holdsZero(std::size_t kind, std::size_t at, std::size_t count) const {
    const std::size_t width = kind == utf16 ? 2 : kind == ascii || kind == utf8 ? 1 : 0;
    for (; width > 0 && count > 0; --count, at += width) {
      if (number(at, width) == 0) {
        return true;
      }
    }
    return false;
  }

  // Dates count from 2001. Beyond some 1,900 years libplist's conversion to a calendar date aborts.
  [[nodiscard]] bool isInCalendar(std::size_t at) const {
    constexpr double longest = 6e10;  // seconds
    const auto seconds = std::bit_cast<double>(std::uint64_t{number(at, 8)});
    return std::abs(seconds) < longest;
  }

  std::size_t measure(std::size_t at) {
    const std::size_t marker = number(at, 1);
    if (marker > UINT8_MAX) {
      return limit_ + 1;
    }
    const std::size_t kind = marker >> 4U;
    std::size_t count = marker & 15U;
    ++at;
    if (count == 15 && kind >= data) {
      const std::size_t width = std::size_t{1} << (number(at, 1) & 3U);
      count = number(at + 1, width);
      at += 1 + width;
    }
    if (count > content_.size()) {
      return limit_ + 1;
    }
    if (kind < array) {
      if (holdsZero(kind, at, count) || (kind == date && !isInCalendar(at))) {
        return limit_ + 1;
      }
      return 1 + (kind == utf16 ? 2 * count : kind >= data ? count : 0);
    }
    std::size_t total = 1;
    for (std::size_t left = kind == dict ? 2 * count : count; left > 0 && total <= limit_; --left) {
      total += sizeOf(number(at, referenceSize_));
      at += referenceSize_;
    }
    return total;
  }

  std::string_view content_;
  std::size_t limit_;
  std::size_t offsetSize_ = 0;
  std::size_t referenceSize_ = 0;
  std::size_t table_ = 0;
  std::size_t levels_ = 0;          // above the object that is being measured
  std::vector<std::size_t> sizes_;  // of the objects measured so far
};

}  // namespace

bool isBinary(std::string_view content) { return content.starts_with(magic); }

bool isHarmless(std::string_view content, std::size_t limit) {
  return isBinary(content) ? BinaryList(content, limit).isHarmless()
                           : content.find('\0') == content.npos;
}

}  // namespace platform
