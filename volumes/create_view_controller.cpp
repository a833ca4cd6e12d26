#include "volumes/create_view_controller.h"

#include <algorithm>
#include <filesystem>
#include <limits>
#include <string_view>

#include "platform/text.h"
#include "platform/translatable.h"
#include "volumes/blank_image.h"

namespace volumes {
namespace {

using platform::TextColor;

constexpr std::int64_t imageSizeConvert = 1048576;  // bytes per megabyte
constexpr std::int64_t usualSize = 100;             // megabytes
// In megabytes; fewer where addresses are shorter than file lengths.
constexpr auto largestSize =
    static_cast<std::int64_t>(std::min<std::uint64_t>(std::numeric_limits<std::int64_t>::max(),
                                                      std::numeric_limits<std::size_t>::max()) /
                              imageSizeConvert);
constexpr const char* nameNeeded = "Status: You need to enter a name!";

// The megabytes that a text asks for; none when they are more than can be counted.
std::optional<std::int64_t> megabytesOf(std::string_view text) {
  if (const auto number = platform::parseInt64(text)) {
    return number;
  }
  const bool isSigned = text.starts_with('+') || text.starts_with('-');
  const std::string_view digits = text.substr(isSigned ? 1 : 0);
  const bool isNumber = !digits.empty() && std::all_of(digits.begin(), digits.end(),
                                                       [](char c) { return c >= '0' && c <= '9'; });
  return isNumber ? std::nullopt : std::optional(usualSize);
}

}  // namespace

createViewController::createViewController(platform::Output& output, platform::Panels& panels,
                                           ImageFolder& folder)
    : output_(output), panels_(panels), folder_(folder) {
  imageFolder.setEditable(false);
  addToList.setEnabled(false);
  chooseImageFolder.action = [this] { chooseFolder(); };
  createImage.action = [this] { createAction(); };
  createName.action = [this] { createNameAction(); };
  addToList.action = [this] {
    if (donecreate_ && add) {
      add(imageName_);
    }
  };
  startAnim.action = [this] { AnimOn(); };
  stopAnim.action = [this] { AnimOff(); };
}

void createViewController::viewWillAppear() {
  output_.print("create loaded");
  createProgressStatus.setUsesThreadedAnimation(true);
  createStatus.setTextColor(TextColor::gray);
  createImage.setTitle(platform::translatable("Items", "Create"));
  donecreate_ = false;
  addToList.setEnabled(false);
  lookAtFolder();
}

void createViewController::lookAtFolder() {
  folderState_ = folder_.state();
  imageFolder.setStringValue(folderState_.path);
  if (showFolder) {
    showFolder();
  }
}

void createViewController::chooseFolder() {
  platform::OpenPanel panel;
  panel.title = platform::translatable("Panels", "Choose a Folder for New Images");
  panel.canChooseFiles = false;
  panel.canChooseDirectories = true;
  panel.canCreateDirectories = true;
  panel.directory = folderState_.path;
  const std::vector<platform::Location> chosen = panels_.runModal(panel);
  if (!chosen.empty()) {
    folder_.choose(chosen.front().path());
    lookAtFolder();
  }
}

void createViewController::refuse(const std::string& reason) {
  createStatus.setTextColor(TextColor::red);
  createStatus.setStringValue(reason);
}

std::optional<std::size_t> createViewController::chosenLength() {
  const auto megabytes = megabytesOf(createSize.stringValue());
  if (!megabytes || *megabytes < 0 || *megabytes > largestSize) {
    return std::nullopt;
  }
  imageSize_ = *megabytes;
  return static_cast<std::size_t>(imageSize_ * imageSizeConvert);
}

// The data folder comes with the first image, and not with one that fails.
std::error_code createViewController::makeImage(std::size_t length) const {
  namespace fs = std::filesystem;
  std::error_code error;
  const bool isNew = folderState_.place == ImageFolder::Place::dataFolder &&
                     fs::create_directories(folderState_.path, error);
  ZeroBuffer imageData;
  error = error ? error : imageData.setLength(length);
  error = error ? error : writeImage(imageName_, imageData.bytes());
  if (error && isNew) {
    std::error_code ignored;
    fs::remove(folderState_.path.substr(0, folderState_.path.size() - 1), ignored);
  }
  return error;
}

void createViewController::createAction() {
  if (donecreate_) {
    if (dismiss) {
      dismiss();
    }
    return;
  }
  const std::string name = createName.stringValue() + ".dsk";
  if (createName.stringValue().empty()) {
    refuse(nameNeeded);
    return;
  }
  createStatus.setStringValue("Status: Working...");
  const auto length = chosenLength();
  if (!length) {
    refuse("Status: The size must be a number of megabytes from 0 to " +
           std::to_string(largestSize) + "!");
    return;
  }
  imageName_ = folderState_.path + name;
  const std::error_code error = makeImage(*length);
  lookAtFolder();
  if (error) {
    refuse("Status: Could not write '" + name + "': " + error.message());
    return;
  }
  createStatus.setTextColor(TextColor::blue);
  createStatus.setStringValue("Status: '" + name + "' - " + std::to_string(imageSize_) +
                              " MB Done!");
  donecreate_ = true;
  addToList.setEnabled(true);
  createImage.setTitle(platform::translatable("Items", "Done"));
}

void createViewController::createNameAction() {
  if (createName.stringValue().empty()) {
    createStatus.setStringValue(nameNeeded);
  }
}

}  // namespace volumes
