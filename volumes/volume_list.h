#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/location.h"
#include "platform/output.h"
#include "platform/translatable.h"

namespace volumes {

/// The kinds of entries.
inline constexpr std::string_view imageKind = platform::translatable("Kinds", "Disk Image");
inline constexpr std::string_view missingKind = platform::translatable("Kinds", "Not Found!");

/// The disk images in their order. Position i of each list belongs to entry i; the lists always
/// have the same length.
class VolumeList {
 public:
  explicit VolumeList(platform::Output& output) : output_(output) {}

  /// Makes an entry of each line that begins with "disk " and names a path. `lines` are those
  /// that contain "disk " anywhere.
  void load(const std::vector<std::string_view>& lines);

  /// Adds image files that a person chose.
  void add(const std::vector<platform::Location>& chosen);

  void remove(std::size_t index);

  /// Takes the entry at `from` out and puts it back so that it ends up at `to`.
  void move(std::size_t from, std::size_t to);

  /// What there is to know of all entries.
  struct Entries {
    std::vector<platform::Location> locations;
    std::vector<std::int64_t> sizes;  // bytes
    std::vector<std::string> kinds;
  };

  [[nodiscard]] Entries entries() const { return {volName_, volSize_, volType_}; }
  /// Makes these the entries again, and prints them as adding does.
  void restore(const Entries& entries);

  [[nodiscard]] std::size_t size() const { return volName_.size(); }
  [[nodiscard]] const std::vector<platform::Location>& volName() const { return volName_; }
  [[nodiscard]] const std::vector<platform::Location>& volLocal() const { return volLocal_; }
  [[nodiscard]] const std::vector<std::int64_t>& volSize() const { return volSize_; }  // bytes
  [[nodiscard]] const std::vector<std::string>& volType() const { return volType_; }

  /// The paths of the entries as the preferences file holds them.
  [[nodiscard]] std::vector<std::string> paths() const;

 private:
  struct Shown;

  void loadEntry(std::string_view path, Shown& shown);
  void printAll() const;
  void append(const platform::Location& location, std::int64_t size, std::string kind);

  platform::Output& output_;
  std::vector<platform::Location> volName_;
  std::vector<platform::Location> volLocal_;
  std::vector<std::int64_t> volSize_;
  std::vector<std::string> volType_;
};

}  // namespace volumes
