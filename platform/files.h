#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace platform {

/// Whether a file or folder is there, links followed; false, too, when that cannot be found out.
bool fileExists(const std::string& path);

/// Whether it is certain that nothing is there, not even behind a link. A file on a failing disk or
/// in a closed folder is not missing.
bool isMissing(const std::string& path);

/// The most that is read from a file or written to one, in bytes.
inline constexpr std::size_t largestFile = std::size_t{64} << 20U;

/// The whole content of a regular file. None, with the reason in `error`, for anything else: a
/// folder, a pipe or a device (never waited for), or a file of more than `limit` bytes.
std::optional<std::string> readFile(const std::string& path, std::error_code& error,
                                    std::size_t limit = largestFile);

/// As readFile, for a file of UTF-8 text; `illegal_byte_sequence` when it holds something else.
std::optional<std::string> readTextFile(const std::string& path, std::error_code& error);

/// Replaces the content of a file where it is, creating it when missing: links, mode and owner
/// stay. The space is reserved before anything is changed, and a write that fails all the same is
/// taken back, so that after an error the file holds what it held, however large that was. More
/// than `largestFile` bytes, which could not be read again, are refused.
std::error_code writeFile(const std::string& path, std::string_view content);

/// Writes a file where none is yet; `file_exists` where there is one by now. A link into nowhere
/// stays, and the file comes to be where it leads to.
std::error_code createFile(const std::string& path, std::string_view content);

/// Copies a file to a place where there is none yet, with its mode.
std::error_code copyFile(const std::string& from, const std::string& to);

/// The size of a regular file in bytes, 0 for a folder; none, with the reason in `error`, when it
/// cannot be read.
std::optional<std::int64_t> fileSize(const std::string& path, std::error_code& error);

}  // namespace platform
