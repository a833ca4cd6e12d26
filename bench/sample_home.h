#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace bench {

/// A home folder with a preferences file, gone at the end.
class SampleHome {
 public:
  explicit SampleHome(const std::string& preferences) {
    if (::mkdtemp(path_.data()) == nullptr) {
      std::abort();
    }
    std::ofstream(path_ + "/.quillon_prefs", std::ios::binary) << preferences;
  }
  SampleHome(const SampleHome&) = delete;
  SampleHome& operator=(const SampleHome&) = delete;
  ~SampleHome() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  std::string path_ = std::filesystem::canonical("/tmp").string() + "/quillon-bench-XXXXXX";
};

}  // namespace bench
