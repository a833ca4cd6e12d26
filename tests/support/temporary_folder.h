#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tests {

/// A folder of its own for a test, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : path_(std::filesystem::canonical(std::filesystem::temp_directory_path()) /
              "quillon-test-XXXXXX") {
    if (::mkdtemp(path_.data()) == nullptr) {
      std::abort();
    }
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  /// The absolute path, without a last "/".
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string path(const std::string& name) const { return path_ + "/" + name; }

  /// Writes a file, makes the folders that it needs, and returns its path.
  std::string write(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
    std::ofstream(path(name), std::ios::binary) << text;
    return path(name);
  }

  /// The content of a file; empty when there is none.
  [[nodiscard]] std::string read(const std::string& name) const {
    const bool isFile = std::filesystem::is_regular_file(path(name));
    std::ifstream file(isFile ? path(name) : std::string(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string path_;
};

}  // namespace tests
