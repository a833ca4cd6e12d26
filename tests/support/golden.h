#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace tests {

/// A file below tests/data of texts under headings "=== …". The home folder of a test stands in it
/// as "{home}". With QUILLON_WRITE_GOLDEN set the file takes over what is found: read the
/// difference before it is committed.
class Golden {
 public:
  Golden(const std::string& name, std::string home)
      : path_(QUILLON_SOURCE "/tests/data/" + name),
        home_(std::move(home)),
        text_(dataFile(name)) {}

  [[nodiscard]] std::string section(const std::string& heading) const {
    const std::string line = "=== " + heading + "\n";
    const std::size_t start = text_.find(line);
    if (start == std::string::npos) {
      return {};
    }
    const std::size_t end = text_.find("=== ", start + 1);
    const std::size_t from = start + line.size();
    return replaced(text_.substr(from, end - from), "{home}", home_);
  }

  void expect(const std::string& heading, const std::string& found) {
    if (std::getenv("QUILLON_WRITE_GOLDEN") != nullptr) {
      const std::size_t end = text_.find("=== " + heading + "\n");
      text_ = text_.substr(0, end) + "=== " + heading + "\n" + replaced(found, home_, "{home}");
      std::ofstream(path_, std::ios::binary) << text_;
    }
    EXPECT_EQ(found, section(heading)) << heading << " in " << path_;
  }

 private:
  static std::string replaced(std::string text, const std::string& part, const std::string& by) {
    for (auto at = text.find(part); at != text.npos; at = text.find(part, at + by.size())) {
      text.replace(at, part.size(), by);
    }
    return text;
  }

  std::string path_;
  std::string home_;
  std::string text_;
};

/// The files of a folder below tests/data.
inline std::vector<std::string> goldenFiles(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& file :
       std::filesystem::directory_iterator(QUILLON_SOURCE "/tests/data/" + folder)) {
    names.push_back(file.path().filename());
  }
  std::sort(names.begin(), names.end());
  return names;
}

/// A file's name as that of a test.
inline std::string testName(std::string name) {
  name.resize(name.find('.'));
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

}  // namespace tests
