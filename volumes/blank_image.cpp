#include "volumes/blank_image.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "platform/descriptor.h"
#include "platform/files.h"

namespace volumes {
namespace {

using platform::Descriptor;
using platform::lastError;
using platform::retried;

// One call for everything is several times slower: the kernel then maps the buffer page by page.
constexpr std::size_t stepLength = std::size_t{1} << 20U;

// Where nothing can be reserved, free space at least is there now.
std::error_code checkFreeSpace(int descriptor, std::size_t length, std::size_t allocated) {
  struct statvfs disk {};
  if (::fstatvfs(descriptor, &disk) != 0 || length <= allocated) {
    return {};
  }
  return (length - allocated) / disk.f_frsize < disk.f_bavail
             ? std::error_code()
             : std::make_error_code(std::errc::no_space_on_device);
}

std::error_code reserve(int descriptor, std::size_t length, std::size_t allocated) {
  if (length == 0) {
    return {};
  }
  // A limit on file sizes does not keep space from being reserved, only from being written.
  rlimit limit{};
  if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
      length > limit.rlim_cur) {
    return std::make_error_code(std::errc::file_too_large);
  }
#ifdef __linux__
  const auto bytes = static_cast<off_t>(length);
  if (retried([&] { return ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, bytes); }) == 0) {
    return {};
  }
  if (errno != EOPNOTSUPP && errno != ENOSYS) {
    return lastError();
  }
#endif
  return checkFreeSpace(descriptor, length, allocated);
}

std::error_code writeSteps(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const std::size_t length = std::min(content.size(), stepLength);
    const ssize_t written = retried([&] { return ::write(descriptor, content.data(), length); });
    if (written <= 0) {
      return written < 0 ? lastError() : std::make_error_code(std::errc::io_error);
    }
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return {};
}

}  // namespace

std::error_code ZeroBuffer::setLength(std::size_t length) {
  release();
  if (length == 0) {
    return {};
  }
#ifdef MAP_NORESERVE
  constexpr int flags = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
#else
  constexpr int flags = MAP_PRIVATE | MAP_ANONYMOUS;
#endif
  void* const start = ::mmap(nullptr, length, PROT_READ, flags, -1, 0);
  if (start == MAP_FAILED) {
    return lastError();
  }
#ifdef MADV_HUGEPAGE
  ::madvise(start, length, MADV_HUGEPAGE);
#endif
  start_ = start;
  length_ = length;
  return {};
}

void ZeroBuffer::release() {
  if (start_ != nullptr) {
    ::munmap(std::exchange(start_, nullptr), std::exchange(length_, 0));
  }
}

std::error_code writeImage(const std::string& path, std::string_view content) {
  const bool existed = platform::fileExists(path);
  std::error_code error;
  Descriptor file = Descriptor::openRegular(path, O_WRONLY | O_CREAT, error);
  struct stat before {};
  if (!file.isOpen() || ::fstat(file.get(), &before) != 0) {
    return error ? error : lastError();
  }
  const auto allocated = static_cast<std::size_t>(before.st_blocks) * 512;
  error = reserve(file.get(), content.size(), allocated);
  if (error) {
    // Gives back what had been reserved behind the old end.
    (void)!::ftruncate(file.get(), before.st_size);
  } else {
    error = writeSteps(file.get(), content);
    if (!error && ::ftruncate(file.get(), static_cast<off_t>(content.size())) != 0) {
      error = lastError();
    }
  }
  const std::error_code closing = file.close();
  error = error ? error : closing;
  if (error && !existed) {
    platform::removeFile(path);
  }
  return error;
}

}  // namespace volumes
