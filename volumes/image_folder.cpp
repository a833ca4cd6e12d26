#include "volumes/image_folder.h"

#include <sys/statvfs.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

#include "app/emulator_location.h"

namespace volumes {
namespace {

// The folder, or that of the folders around it in which it would be made.
std::string existingPart(const std::string& path) {
  std::filesystem::path folder = path;
  std::error_code error;
  while (!std::filesystem::exists(folder, error) && folder != folder.parent_path()) {
    folder = folder.parent_path();
  }
  return folder.string();
}

bool isWritable(const std::string& folder) { return ::access(folder.c_str(), W_OK | X_OK) == 0; }

std::optional<std::uint64_t> freeBytesOf(const std::string& folder) {
  struct statvfs disk {};
  // Some network file systems tell no size.
  if (::statvfs(folder.c_str(), &disk) != 0 || disk.f_blocks == 0) {
    return std::nullopt;
  }
  return std::uint64_t{disk.f_bavail} * disk.f_frsize;
}

}  // namespace

ImageFolder::State ImageFolder::state() const {
  State state;
  if (chosen_) {
    state = {Place::chosen, *chosen_, false, {}};
  } else if (const std::string own = app::ownFolder(); isWritable(own)) {
    state = {Place::ownFolder, own, false, {}};
  } else {
    state = {Place::dataFolder, dataFolder_, false, {}};
  }
  const std::string existing = existingPart(state.path);
  // Only the data folder is made when it is missing.
  state.isWritable = isWritable(state.place == Place::dataFolder ? existing : state.path);
  state.freeBytes = freeBytesOf(existing);
  return state;
}

void ImageFolder::choose(std::string path) {
  chosen_ = std::move(path);
  if (!chosen_->ends_with('/')) {
    *chosen_ += '/';
  }
}

}  // namespace volumes
