#include "volumes/volume_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/files.h"

namespace volumes {
namespace {

constexpr std::string_view diskPrefix = "disk ";

// A list as it is printed. Loading prints all lists after each entry: composing the texts anew each
// time would take longer than writing them.
class PrintedList {
 public:
  void add(std::string_view item) { text_.append(text_.size() > 1 ? ", " : "").append(item); }
  void print(platform::Output& output, std::string_view label) const {
    output.print(label, text_, "]");
  }

 private:
  std::string text_ = "[";
};

template <typename Element>
void moveElement(std::vector<Element>& list, std::size_t from, std::size_t to) {
  const auto at = [&](std::size_t index) {
    return list.begin() + static_cast<std::ptrdiff_t>(index);
  };
  if (from < to) {
    std::rotate(at(from), at(from + 1), at(to + 1));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
}

}  // namespace

struct VolumeList::Shown {
  PrintedList names;
  PrintedList sizes;
  PrintedList types;
};

void VolumeList::load(const std::vector<std::string_view>& lines) {
  const platform::Output::Gathering gathering(output_);
  output_.print("resultsDisk: ", platform::listText(lines));
  Shown shown;
  for (const std::string_view line : lines) {
    if (!line.starts_with(diskPrefix)) {
      continue;
    }
    const std::string_view path = line.substr(diskPrefix.size());
    output_.print("drop prefix: ", path);
    if (path.empty()) {
      output_.print("Found disk entry with no file");
    } else {
      loadEntry(path, shown);
    }
  }
}

void VolumeList::loadEntry(std::string_view path, Shown& shown) {
  output_.print("File acutal: ", path);
  const std::string encoded = platform::percentEncoded(path);
  output_.print("percent encoding: ", platform::optionalText(encoded));
  const platform::Location location = platform::Location::fromPath(path);
  const std::string locationPath = location.path();
  if (encoded.starts_with('/')) {
    output_.print("escaped? ", "file://", encoded);
    output_.print("volURL: ", platform::optionalText(std::optional(location)));
  } else {
    output_.print("volURL local: ", locationPath);
  }

  std::int64_t size = 0;
  std::string_view volKind = missingKind;
  if (platform::fileExists(locationPath)) {
    output_.print("File exists");
    std::error_code error;
    if (const auto found = platform::fileSize(locationPath, error)) {
      size = *found;
      volKind = imageKind;
    }
    shown.sizes.add(std::to_string(size));
    if (error) {
      output_.print("Volume not found 2:\n ", error.message());
    } else {
      shown.sizes.print(output_, "Volume size: ");
    }
  } else {
    output_.print("File doesn't exist");
    output_.print("Volume Not Found 3!");
    shown.sizes.add(std::to_string(size));
  }

  output_.print("volUrl: ", location.text());
  append(location, size, std::string(volKind));
  shown.names.add(location.text());
  shown.types.add("\"" + volType_.back() + "\"");
  shown.names.print(output_, "volume Name: ");
  shown.sizes.print(output_, "Volume Size: ");
  shown.types.print(output_, "volume Type: ");
}

void VolumeList::add(const std::vector<platform::Location>& chosen) {
  for (const platform::Location& location : chosen) {
    std::error_code error;
    const auto size = platform::fileSize(location.path(), error);
    append(location, size.value_or(0), std::string(imageKind));
    if (size) {
      PrintedList sizes;
      for (const std::int64_t known : volSize_) {
        sizes.add(std::to_string(known));
      }
      sizes.print(output_, "");
    } else {
      output_.print("Error: ", error.message());
    }
  }
  printAll();
}

void VolumeList::restore(const Entries& entries) {
  volName_ = volLocal_ = entries.locations;
  volSize_ = entries.sizes;
  volType_ = entries.kinds;
  printAll();
}

void VolumeList::printAll() const {
  for (const platform::Location& location : volName_) {
    output_.print("allfiles: (volName) counter: ", location.text());
  }
}

void VolumeList::append(const platform::Location& location, std::int64_t size, std::string kind) {
  volName_.push_back(location);
  volLocal_.push_back(location);
  volSize_.push_back(size);
  volType_.push_back(std::move(kind));
}

void VolumeList::remove(std::size_t index) {
  const auto at = static_cast<std::ptrdiff_t>(index);
  volName_.erase(volName_.begin() + at);
  volLocal_.erase(volLocal_.begin() + at);
  volSize_.erase(volSize_.begin() + at);
  volType_.erase(volType_.begin() + at);
}

void VolumeList::move(std::size_t from, std::size_t to) {
  moveElement(volName_, from, to);
  moveElement(volLocal_, from, to);
  moveElement(volSize_, from, to);
  moveElement(volType_, from, to);
}

std::vector<std::string> VolumeList::paths() const {
  std::vector<std::string> paths;
  paths.reserve(volName_.size());
  std::transform(volName_.begin(), volName_.end(), std::back_inserter(paths),
                 [](const platform::Location& location) { return location.path(); });
  return paths;
}

}  // namespace volumes
