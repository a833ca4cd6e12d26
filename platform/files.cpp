#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "platform/descriptor.h"
#include "platform/file_writer.h"
#include "platform/text.h"

namespace platform {
namespace {

// The new content is followed by empty lines up to the old length and only then cut: should the
// program end in between, the file holds all new lines and nothing else. What is too large to be
// read is not worth so many empty lines: there, only what will be overwritten is held in memory.
std::string padded(std::string_view content, std::uintmax_t length) {
  std::string lines(content);
  if (lines.size() < length && length <= largestFile) {
    lines.resize(static_cast<std::size_t>(length), '\n');
  }
  return lines;
}

std::error_code replaceContent(FileWriter file, std::string_view content) {
  file.lock();
  const std::string lines = padded(content, file.size());
  file.keep(lines.size());
  file.reserve(content.size());
  file.write(lines);
  file.cut(content.size());
  file.flush();
  return file.finish();
}

}  // namespace

bool fileExists(const std::string& path) {
  struct stat status {};
  return path.find('\0') == std::string::npos && ::stat(path.c_str(), &status) == 0;
}

bool isMissing(const std::string& path) {
  struct stat status {};
  return path.find('\0') == std::string::npos && ::stat(path.c_str(), &status) != 0 &&
         (errno == ENOENT || errno == ENOTDIR);
}

std::optional<std::string> readFile(const std::string& path, std::error_code& error,
                                    std::size_t limit) {
  const Descriptor file = Descriptor::openRegular(path, O_RDONLY, error);
  if (!file.isOpen()) {
    return std::nullopt;
  }
  for (std::uintmax_t expected = file.size(); expected <= limit;) {
    // One byte more is asked for: where it does not come, the end of the file has been read.
    auto content = file.read(static_cast<std::size_t>(expected + 1), error);
    if (!content || content->size() <= expected) {
      return content;
    }
    if (expected == limit) {
      break;
    }
    // fstat() reports size 0 for files under /proc and /sys, whatever they hold.
    expected = std::min<std::uintmax_t>(2 * expected + 1, limit);
  }
  error = std::make_error_code(std::errc::file_too_large);
  return std::nullopt;
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
  return content.size() > largestFile ? std::make_error_code(std::errc::file_too_large)
                                      : replaceContent(FileWriter::openOrCreate(path), content);
}

std::error_code createFile(const std::string& path, std::string_view content) {
  return replaceContent(FileWriter::create(linkTarget(path)), content);
}

std::error_code copyFile(const std::string& from, const std::string& to) {
  std::error_code error;
  const auto content = readFile(from, error);
  if (!content) {
    return error;
  }
  error = replaceContent(FileWriter::create(to), *content);
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

}  // namespace platform
