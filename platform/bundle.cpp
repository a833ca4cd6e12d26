#include "platform/bundle.h"

#include <filesystem>
#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <cstdint>
#endif

namespace platform {
namespace {

std::filesystem::path executablePath() {
  std::error_code error;
#ifdef __APPLE__
  std::uint32_t size = 0;
  _NSGetExecutablePath(nullptr, &size);
  std::string path(size, '\0');
  _NSGetExecutablePath(path.data(), &size);
  return std::filesystem::canonical(path.c_str(), error);
#else
  return std::filesystem::canonical("/proc/self/exe", error);
#endif
}

}  // namespace

Bundle Bundle::mainBundle() {
  const std::filesystem::path folder = executablePath().parent_path();
  if (folder.filename() == "MacOS" && folder.parent_path().filename() == "Contents") {
    return Bundle(folder.parent_path().parent_path().string());
  }
  return Bundle(folder.string());
}

}  // namespace platform
