#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <new>

#include "platform/descriptor.h"
#include "platform/location.h"
#include "platform/text.h"

namespace platform {
namespace {

std::optional<std::string> readUpTo(const Descriptor& file, std::size_t limit,
                                    std::error_code& error) {
  std::string content;
  // One byte more than expected: a read that leaves it free has seen the end.
  std::size_t room = file.openedSize() + 1;
  for (std::size_t filled = 0; filled <= limit && room - 1 <= limit;) {
    content.resize(room);
    const ssize_t count = retried([&] {
      return ::pread(file.get(), &content[filled], room - filled, static_cast<off_t>(filled));
    });
    if (count < 0) {
      error = lastError();
      return std::nullopt;
    }
    filled += static_cast<std::size_t>(count);
    if (count == 0 || filled == file.openedSize()) {
      content.resize(filled);
      return content;
    }
    if (filled == room) {
      room = std::min(2 * filled, limit) + 1;
    }
  }
  error = std::make_error_code(std::errc::file_too_large);
  return std::nullopt;
}

std::optional<std::string> readAll(const Descriptor& file, std::size_t limit,
                                   std::error_code& error) {
  try {
    return readUpTo(file, limit, error);
  } catch (const std::bad_alloc&) {
    error = std::make_error_code(std::errc::not_enough_memory);
    return std::nullopt;
  }
}

std::error_code writeAll(int descriptor, std::string_view content) {
  for (off_t offset = 0; !content.empty();) {
    const ssize_t count =
        retried([&] { return ::pwrite(descriptor, content.data(), content.size(), offset); });
    if (count <= 0) {
      return count < 0 ? lastError() : std::make_error_code(std::errc::io_error);
    }
    content.remove_prefix(static_cast<std::size_t>(count));
    offset += count;
  }
  return {};
}

std::error_code setSize(int descriptor, std::size_t size) {
  return retried([&] { return ::ftruncate(descriptor, static_cast<off_t>(size)); }) == 0
             ? std::error_code()
             : lastError();
}

std::error_code flush(int descriptor) {
  // Some file systems have nothing to flush and say so.
  return retried([&] { return ::fsync(descriptor); }) == 0 || errno == EINVAL ? std::error_code()
                                                                              : lastError();
}

// Makes sure that `size` bytes fit before the first of them is written.
std::error_code reserve(int descriptor, std::size_t size) {
  if (size == 0) {
    return {};
  }
  const auto bytes = static_cast<off_t>(size);
#ifdef __linux__
  // The file keeps its length: should the program end here, it holds no zeros behind the old text.
  const auto reserved = [&] { return ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, bytes); };
  const int error = retried(reserved) == 0 ? 0 : errno;
#else
  const int error = ::posix_fallocate(descriptor, 0, bytes);
#endif
  // Where space cannot be reserved at all, the write itself has to tell.
  return error == 0 || error == EINVAL || error == EOPNOTSUPP || error == ENOSYS || error == EINTR
             ? std::error_code()
             : std::error_code(error, std::generic_category());
}

// The new content is followed by empty lines up to the old length and only then cut: should the
// program end in between, the file holds all new lines and nothing else.
std::error_code replaceContent(int descriptor, std::string_view content, std::size_t oldSize) {
  std::error_code error;
  if (content.size() < oldSize) {
    std::string padded(content);
    padded.resize(oldSize, '\n');
    error = writeAll(descriptor, padded);
    if (!error) {
      error = setSize(descriptor, content.size());
    }
  } else {
    error = writeAll(descriptor, content);
  }
  return error ? error : flush(descriptor);
}

std::error_code createFile(const std::string& path, std::string_view content) {
  std::error_code error;
  Descriptor file = Descriptor::openRegular(path, O_WRONLY | O_CREAT, error);
  if (!file.isOpen()) {
    return error;
  }
  error = reserve(file.get(), content.size());
  if (!error) {
    error = replaceContent(file.get(), content, 0);
  }
  const std::error_code closing = file.close();
  if (!error) {
    error = closing;
  }
  if (error) {
    // An empty file would be read as one without settings: none at all is better.
    removeFile(path);
  }
  return error;
}

}  // namespace

bool fileExists(const std::string& path) {
  struct stat status {};
  return path.find('\0') == std::string::npos && ::stat(path.c_str(), &status) == 0;
}

std::optional<std::string> readFile(const std::string& path, std::error_code& error,
                                    std::size_t limit) {
  const Descriptor file = Descriptor::openRegular(path, O_RDONLY, error);
  return file.isOpen() ? readAll(file, limit, error) : std::nullopt;
}

std::optional<std::string> readTextFile(const std::string& path, std::error_code& error) {
  auto content = readFile(path, error);
  if (content && !isUtf8(*content)) {
    error = std::make_error_code(std::errc::illegal_byte_sequence);
    return std::nullopt;
  }
  return content;
}

std::error_code writeFile(const std::string& path, std::string_view content) {
  std::error_code error;
  Descriptor file = Descriptor::openRegular(path, O_RDWR, error);
  const bool readable = file.isOpen();
  if (error == std::errc::permission_denied) {
    file = Descriptor::openRegular(path, O_WRONLY, error);
  }
  if (!file.isOpen()) {
    return error == std::errc::no_such_file_or_directory ? createFile(path, content) : error;
  }
  std::optional<std::string> old;
  if (readable) {
    old = readAll(file, std::numeric_limits<std::size_t>::max(), error);
    if (!old) {
      return error;
    }
  }
  const std::size_t oldSize = old ? old->size() : file.openedSize();
  error = reserve(file.get(), content.size());
  if (!error) {
    error = replaceContent(file.get(), content, oldSize);
    if (error && old) {
      writeAll(file.get(), *old);
    }
  }
  if (error) {
    setSize(file.get(), oldSize);
    return error;
  }
  return file.close();
}

void removeFile(const std::string& path) {
  std::error_code ignored;
  std::filesystem::remove(std::filesystem::canonical(path, ignored), ignored);
}

std::error_code copyFile(const std::string& from, const std::string& to) {
  std::error_code error;
  const auto content = readFile(from, error);
  if (!content) {
    return error;
  }
  if (std::filesystem::exists(std::filesystem::symlink_status(to, error))) {
    return std::make_error_code(std::errc::file_exists);
  }
  error = createFile(to, *content);
  if (!error) {
    std::filesystem::permissions(to, std::filesystem::status(from, error).permissions(), error);
  }
  return error;
}

std::optional<std::int64_t> fileSize(const std::string& path, std::error_code& error) {
  error.clear();
  struct stat status {};
  if (path.find('\0') != std::string::npos) {
    error = std::make_error_code(std::errc::invalid_argument);
    return std::nullopt;
  }
  if (::stat(path.c_str(), &status) != 0) {
    error = lastError();
    return std::nullopt;
  }
  return S_ISREG(status.st_mode) ? status.st_size : 0;
}

std::string withExistingFolder(const std::string& path) {
  const std::size_t name = path.rfind('/') + 1;
  const std::string folder = path.substr(0, name);
  if (folder.empty() || fileExists(folder)) {
    return path;
  }
  const std::string decoded = percentDecoded(folder);
  return fileExists(decoded) ? decoded + path.substr(name) : path;
}

}  // namespace platform
