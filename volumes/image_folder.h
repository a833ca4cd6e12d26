#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

namespace volumes {

/// The folder that new disk images go to: the one that the person chose in this run, or that of the
/// front-end, or a folder among the person's data where that of the front-end is not theirs to
/// write.
class ImageFolder {
 public:
  enum class Place : std::uint8_t { ownFolder, dataFolder, chosen };

  struct State {
    Place place = Place::ownFolder;
    std::string path;  // ending in "/"; the data folder is perhaps not there yet
    bool isWritable = false;
    std::optional<std::uint64_t> freeBytes;  // none when the file system does not tell
  };

  /// `dataHome` is the folder where programs keep a person's data.
  explicit ImageFolder(const std::string& dataHome)
      : dataFolder_(dataHome + "/quillon-settings/") {}

  /// Which folder it is just now.
  [[nodiscard]] State state() const;

  void choose(std::string path);

 private:
  std::string dataFolder_;
  std::optional<std::string> chosen_;
};

}  // namespace volumes
