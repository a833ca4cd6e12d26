#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "document/key_table.h"
#include "platform/text.h"

namespace tests {

using document::Key;

/// The key of a line "cpu 4".
inline Key keyOf(const std::string& line) {
  for (const document::KeyRow& row : document::keyTable) {
    if (line.starts_with(row.text)) {
      return row.key;
    }
  }
  throw std::logic_error("no key begins the line " + line);
}

/// What a window over a preferences file must write back, worked out in the plainest way there is.
struct Model {
  std::vector<std::string> disks;
  std::array<std::string, document::keyCount> values;

  explicit Model(const std::string& file) {
    std::vector<std::string> lines;
    for (std::string rest = platform::isUtf8(file) ? file + "\n" : ""; !rest.empty();) {
      lines.push_back(rest.substr(0, rest.find('\n')));
      rest.erase(0, rest.find('\n') + 1);
    }
    for (const document::KeyRow& row : document::keyTable) {
      (*this)[row.key] = found(lines, row);
    }
    const auto [type, width, height] = screenParts((*this)[Key::screen]);
    setScreenPart(0, type == "win" ? "win" : "dga");
    setScreenPart(1, width);
    setScreenPart(2, height);
    (*this)[Key::bootdrive] = (*this)[Key::bootdrive] == "0" ? "0" : "1";
    (*this)[Key::mousewheelmode] = (*this)[Key::mousewheelmode] == "1" ? "1" : "0";
    for (const std::string& line : lines) {
      if (line.starts_with("disk ") && line != "disk ") {
        disks.push_back(line.substr(5));
        if (disks.back().size() > 1 && disks.back().back() == '/') {
          disks.back().pop_back();
        }
      }
    }
  }

  std::string& operator[](Key key) { return values.at(document::indexOf(key)); }

  [[nodiscard]] std::string text() const {
    std::string text;
    for (const std::string& disk : disks) {
      text += "disk " + disk + "\n";
    }
    for (const document::KeyRow& row : document::keyTable) {
      text += std::string(row.text) + values.at(document::indexOf(row.key)) + "\n";
    }
    return text;
  }

  /// Sets the type, the width or the height, and leaves the others.
  void setScreenPart(std::size_t part, const std::string& text) {
    auto parts = screenParts((*this)[Key::screen]);
    parts.at(part) = text == "Maximum" ? "0" : text;
    (*this)[Key::screen] = parts[0] + "/" + parts[1] + "/" + parts[2];
  }

 private:
  // Those that are missing are the default's.
  static std::array<std::string, 3> screenParts(std::string value) {
    std::array<std::string, 3> parts{"win", "1024", "768"};
    value += "/";
    for (std::size_t part = 0; part < parts.size() && !value.empty(); ++part) {
      parts.at(part) = value.substr(0, value.find('/'));
      value.erase(0, value.find('/') + 1);
    }
    return parts;
  }

  static std::string found(const std::vector<std::string>& lines, const document::KeyRow& row) {
    for (const std::string& line : lines) {
      if (line.find(row.text) != std::string::npos) {
        const std::string text = line.back() == '\r' ? line.substr(0, line.size() - 1) : line;
        const std::string value(platform::dropCharacters(text, row.text.size()));
        const bool other = row.key == Key::rom && line.find("nocdrom") != std::string::npos;
        return other || value.empty() ? std::string(row.defaultValue) : value;
      }
    }
    return std::string(row.defaultValue);
  }
};

}  // namespace tests
