#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/descriptor.h"

namespace platform {

/// Rewrites a regular file where it is, so that its links, mode and owner stay. The steps are
/// called in the order in which they stand here, those that are not needed left out; after one that
/// fails the others do nothing, and `finish` tells the error.
class FileWriter {
 public:
  /// Opens the file that a path leads to, creating it when it is missing.
  static FileWriter openOrCreate(const std::string& path);
  /// Creates the file; fails with `file_exists` where anything is, be it a link into nowhere.
  static FileWriter create(const std::string& path);

  /// Bytes in the file when it was opened or locked.
  [[nodiscard]] std::uintmax_t size() const { return file_.size(); }

  /// Takes turns with other programs that rewrite the file in this way. After a second it is done
  /// all the same: a program that hangs must not keep others from saving.
  void lock();
  /// Keeps the first `length` bytes in memory, to put them back if a later step fails. A file that
  /// may be written and not read stays unprotected.
  void keep(std::uintmax_t length);
  /// Makes sure that so many bytes fit before the first of them is written.
  void reserve(std::size_t length);
  /// Writes from the beginning of the file.
  void write(std::string_view content);
  /// Lets a file that was longer end after so many bytes.
  void cut(std::size_t length);
  /// Waits until the disk has it all.
  void flush();
  /// Closes. After an error the kept bytes are back, and a file that was created is gone.
  std::error_code finish();

 private:
  FileWriter() = default;
  void open(int flags) { file_ = Descriptor::openRegular(path_, flags, error_); }
  void takeBack();

  std::string path_;
  Descriptor file_;
  std::error_code error_;
  std::string kept_;
  bool isReadable_ = true;
  bool isNew_ = false;
  bool isChanged_ = false;
};

/// Where the file of that path is or would come to be: the end of a chain of links.
std::string linkTarget(const std::string& path);

}  // namespace platform
