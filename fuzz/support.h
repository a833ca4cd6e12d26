#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/output.h"

namespace fuzz {

/// Ends the run with the input that broke a promise.
inline void check(bool kept, const char* promise) {
  if (!kept) {
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
  }
}

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Reads each byte, so that one that is no longer there is noticed, and keeps none.
class SwallowingOutput : public platform::Output {
 private:
  void write(std::initializer_list<std::string_view> parts) override {
    for (const std::string_view part : parts) {
      kept_.assign(part.substr(part.size() - std::min<std::size_t>(part.size(), 4096)));
    }
  }

  std::string kept_;
};

/// A folder in memory where there is such a place: a run opens a million files.
class Folder {
 public:
  Folder()
      : path_(std::filesystem::exists("/dev/shm") ? "/dev/shm/quillon-fuzz-XXXXXX"
                                                  : "/tmp/quillon-fuzz-XXXXXX") {
    check(::mkdtemp(path_.data()) != nullptr, "a folder to work in");
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] std::string path(const std::string& name) const { return path_ + "/" + name; }

  void write(const std::string& name, std::string_view content) const {
    const int file = ::open(path(name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const ssize_t written = ::write(file, content.data(), content.size());
    check(::close(file) == 0 && written == static_cast<ssize_t>(content.size()), "a file written");
  }

  [[nodiscard]] std::string read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::string path_;
};

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
