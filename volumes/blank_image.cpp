#include "volumes/blank_image.h"

#include <sys/mman.h>

#include <utility>

#include "platform/file_writer.h"

namespace volumes {

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
    return platform::lastError();
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
  platform::FileWriter file = platform::FileWriter::openOrCreate(path);
  file.reserve(content.size());
  file.write(content);
  file.cut(content.size());
  return file.finish();
}

}  // namespace volumes
