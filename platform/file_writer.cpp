#include "platform/file_writer.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

namespace platform {
namespace {

// Writing a whole image of zeros by one write() is several times slower: the kernel then maps the
// source page by page.
constexpr std::size_t stepLength = std::size_t{1} << 20U;

// Whether the file system has no such operation. That alone fails no save: a later step does, if
// the operation was needed.
bool isUnsupported(int error) {
  return error == EINVAL || error == EOPNOTSUPP || error == ENOTSUP || error == ENOSYS;
}

std::error_code codeOf(std::errc error) { return std::make_error_code(error); }

// fallocate() with FALLOC_FL_KEEP_SIZE succeeds beyond RLIMIT_FSIZE, and only write() fails there.
std::error_code checkSizeLimit(std::size_t length) {
  rlimit limit{};
  const bool isKnown = ::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
  return isKnown && length > limit.rlim_cur ? codeOf(std::errc::file_too_large) : std::error_code();
}

// For file systems without fallocate(): looks whether the space is there at this moment.
std::error_code checkFreeSpace(int descriptor, std::size_t length) {
  struct statvfs disk {};
  struct stat status {};
  // Some network file systems report a block size of 0, which would divide by zero below.
  if (::fstatvfs(descriptor, &disk) != 0 || ::fstat(descriptor, &status) != 0 ||
      disk.f_blocks == 0 || disk.f_frsize == 0) {
    return {};
  }
  const auto allocated = static_cast<std::uintmax_t>(status.st_blocks) * 512;
  return length <= allocated || (length - allocated) / disk.f_frsize < disk.f_bavail
             ? std::error_code()
             : codeOf(std::errc::no_space_on_device);
}

std::error_code writeAll(int descriptor, std::string_view content) {
  for (off_t offset = 0; !content.empty();) {
    const std::size_t length = std::min(content.size(), stepLength);
    const ssize_t count =
        retried([&] { return ::pwrite(descriptor, content.data(), length, offset); });
    if (count <= 0) {
      return count < 0 ? lastError() : codeOf(std::errc::io_error);
    }
    content.remove_prefix(static_cast<std::size_t>(count));
    offset += count;
  }
  return {};
}

std::error_code setSize(int descriptor, std::uintmax_t size) {
  return retried([&] { return ::ftruncate(descriptor, static_cast<off_t>(size)); }) == 0
             ? std::error_code()
             : lastError();
}

}  // namespace

std::string linkTarget(const std::string& path) {
  constexpr int mostLinks = 40;  // as many as Linux follows
  std::filesystem::path place = path;
  for (int links = 0; links < mostLinks; ++links) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::read_symlink(place, error);
    if (error) {
      break;
    }
    place = place.parent_path() / target;
  }
  return place.string();
}

FileWriter FileWriter::openOrCreate(const std::string& path) {
  FileWriter writer;
  // A file may appear between the open() that found none and the one that creates it exclusively.
  for (int attempt = 0; attempt < 2; ++attempt) {
    writer.path_ = path;
    writer.open(O_RDWR);
    writer.isReadable_ = writer.error_ != std::errc::permission_denied;
    if (!writer.isReadable_) {
      writer.open(O_WRONLY);
    }
    if (writer.error_ != std::errc::no_such_file_or_directory) {
      break;
    }
    writer = create(linkTarget(path));
    if (writer.error_ != std::errc::file_exists) {
      break;
    }
  }
  return writer;
}

FileWriter FileWriter::create(const std::string& path) {
  FileWriter writer;
  writer.path_ = path;
  writer.open(O_RDWR | O_CREAT | O_EXCL);
  writer.isNew_ = writer.file_.isOpen();
  return writer;
}

void FileWriter::lock() {
  constexpr int pauseMilliseconds = 10;
  const auto isTaken = [this] {
    return retried([this] { return ::flock(file_.get(), LOCK_EX | LOCK_NB); }) != 0 &&
           errno == EWOULDBLOCK;
  };
  for (int pauses = 1000 / pauseMilliseconds; !error_ && pauses > 0 && isTaken(); --pauses) {
    ::poll(nullptr, 0, pauseMilliseconds);
  }
  if (!error_) {
    // The writer that had the lock may have changed the length, and may have filled a file that was
    // new when it was opened: takeBack() must neither cut nor remove that.
    error_ = file_.measure();
    isNew_ = isNew_ && file_.size() == 0;
  }
}

void FileWriter::keep(std::uintmax_t length) {
  if (error_ || !isReadable_) {
    return;
  }
  const std::uintmax_t count = std::min(length, file_.size());
  if (auto content = file_.read(static_cast<std::size_t>(count), error_)) {
    kept_ = *std::move(content);
  }
}

void FileWriter::reserve(std::size_t length) {
  if (error_ || length == 0) {
    return;
  }
  error_ = checkSizeLimit(length);
  if (error_) {
    return;
  }
#ifdef __linux__
  // With FALLOC_FL_KEEP_SIZE the length stays: a program that is ended here leaves the old text
  // without zeros behind it.
  const auto bytes = static_cast<off_t>(length);
  if (retried([&] { return ::fallocate(file_.get(), FALLOC_FL_KEEP_SIZE, 0, bytes); }) == 0) {
    return;
  }
  if (!isUnsupported(errno)) {
    error_ = lastError();
    return;
  }
#endif
  error_ = checkFreeSpace(file_.get(), length);
}

void FileWriter::write(std::string_view content) {
  if (!error_) {
    isChanged_ = true;
    error_ = writeAll(file_.get(), content);
  }
}

void FileWriter::cut(std::size_t length) {
  if (!error_ && length < file_.size()) {
    error_ = setSize(file_.get(), length);
  }
}

void FileWriter::flush() {
  if (!error_ && retried([&] { return ::fsync(file_.get()); }) != 0 && !isUnsupported(errno)) {
    error_ = lastError();
  }
}

void FileWriter::takeBack() {
  if (isChanged_) {
    writeAll(file_.get(), kept_);
  }
  // ftruncate() also frees the space that reserve() took behind the old end.
  setSize(file_.get(), file_.size());
}

std::error_code FileWriter::finish() {
  if (!file_.isOpen()) {
    return error_;
  }
  if (error_) {
    takeBack();
  }
  const std::error_code closing = file_.close();
  error_ = error_ ? error_ : closing;
  if (error_ && isNew_) {
    // The next start would read an empty file as one in which every setting has its default.
    ::unlink(path_.c_str());
  }
  return error_;
}

}  // namespace platform
