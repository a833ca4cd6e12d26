#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/control.h"
#include "platform/output.h"
#include "platform/panels.h"
#include "volumes/image_folder.h"

namespace volumes {

/// The sheet that makes blank disk images.
class createViewController {
 public:
  /// `folder` is where images go; it outlives the sheet, so that a choice holds for the next one.
  createViewController(platform::Output& output, platform::Panels& panels, ImageFolder& folder);

  /// Makes the sheet ready, each time that it is shown.
  void viewWillAppear();

  /// Closes the sheet.
  std::function<void()> dismiss;

  /// Closes the sheet, then has a file chosen for the list, beginning with this one.
  std::function<void(const std::string& path)> add;

  /// Shows what `folderState` tells, after it may have changed.
  std::function<void()> showFolder;
  [[nodiscard]] const ImageFolder::State& folderState() const { return folderState_; }

  platform::TextField createName{"createName"};
  platform::TextField createSize{"createSize"};  // megabytes
  platform::Button createImage{"createImage"};
  /// Opens Add… at the image that has been made; enabled once there is one.
  platform::Button addToList{"addToList"};
  platform::TextField createStatus{"createStatus"};
  platform::TextField imageFolder{"imageFolder"};  // its path
  platform::Button chooseImageFolder{"chooseImageFolder"};
  platform::ProgressIndicator createProgressStatus{"createProgressStatus"};
  platform::Button startAnim{"startAnim"};
  platform::Button stopAnim{"stopAnim"};

 private:
  void createAction();
  void createNameAction();
  void AnimOn() { createProgressStatus.startAnimation(); }
  void AnimOff() { createProgressStatus.stopAnimation(); }
  void chooseFolder();
  void lookAtFolder();
  [[nodiscard]] std::error_code makeImage(std::size_t length) const;
  void refuse(const std::string& reason);
  [[nodiscard]] std::optional<std::size_t> chosenLength();

  platform::Output& output_;
  platform::Panels& panels_;
  ImageFolder& folder_;
  ImageFolder::State folderState_;
  std::int64_t imageSize_ = 0;  // megabytes
  std::string imageName_;       // the path
  bool donecreate_ = false;
};

}  // namespace volumes
