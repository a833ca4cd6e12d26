#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <utility>

#include "tests/support/data.h"

namespace tests {

/// A file below tests/data of texts under headings "=== …". The home folder of a test stands in it
/// as "{home}". With QUILLON_WRITE_GOLDEN set the file takes over what is found: read the
/// difference before it is committed.
class Golden {
 public:
  Golden(const std::string& name, std::string home)
      : path_(dataPath(name)), home_(std::move(home)), text_(dataFile(name)) {}

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
  std::string path_;
  std::string home_;
  std::string text_;
};

}  // namespace tests
