#pragma once

// What stands in files below tests/data.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tests {

inline std::string dataPath(const std::string& name) {
  return QUILLON_SOURCE "/tests/data/" + name;
}

inline std::string dataFile(const std::string& name) {
  std::ifstream file(dataPath(name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string replaced(std::string text, const std::string& part, const std::string& by) {
  for (auto at = text.find(part); at != text.npos; at = text.find(part, at + by.size())) {
    text.replace(at, part.size(), by);
  }
  return text;
}

/// The text with a line feed for each "\\n" and a byte for each "\\x" and two hexadecimal digits.
inline std::string unescaped(const std::string& text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text.compare(at, 2, "\\n") == 0) {
      bytes += '\n';
      at += 1;
    } else if (text.compare(at, 2, "\\x") == 0) {
      bytes += static_cast<char>(std::stoi(text.substr(at + 2, 2), nullptr, 16));
      at += 3;
    } else {
      bytes += text[at];
    }
  }
  return bytes;
}

/// A case of a test: fields with a name, of which one may have several texts.
struct Case {
  std::string written;  // as it stands in the file
  std::map<std::string, std::vector<std::string>> fields;

  [[nodiscard]] bool has(const std::string& field) const { return fields.contains(field); }
  [[nodiscard]] std::vector<std::string> all(const std::string& field) const {
    return has(field) ? fields.at(field) : std::vector<std::string>();
  }
  /// The texts of a field, each with a line feed behind it.
  [[nodiscard]] std::string lines(const std::string& field) const {
    std::string text;
    for (const std::string& line : all(field)) {
      text += line + "\n";
    }
    return text;
  }
  /// The only text of a field; empty when there is none.
  [[nodiscard]] std::string operator[](const std::string& field) const {
    return has(field) ? fields.at(field).at(0) : std::string();
  }
};

/// The cases of a file: blocks of lines "field: text". `known` are the fields that a test looks at.
inline std::vector<Case> cases(const std::string& name, const std::set<std::string>& known,
                               const std::string& home = "{home}") {
  std::vector<Case> found(1);
  std::istringstream lines(replaced(dataFile(name), "{home}", home));
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) {
      found.emplace_back();
    } else if (!line.starts_with('#')) {
      const std::string field = line.substr(0, line.find(':'));
      if (!known.contains(field)) {
        throw std::logic_error(dataPath(name) + ": no test looks at the field of: " + line);
      }
      const std::size_t start = std::min(line.size(), field.size() + 2);
      found.back().fields[field].push_back(unescaped(line.substr(start)));
      found.back().written += line + "\n";
    }
  }
  std::erase_if(found, [](const Case& each) { return each.fields.empty(); });
  if (found.empty()) {
    throw std::logic_error(dataPath(name) + " holds no cases");
  }
  return found;
}

}  // namespace tests
