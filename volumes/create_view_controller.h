#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/control.h"
#include "platform/output.h"

namespace volumes {

/// The sheet that makes blank disk images in the folder of the front-end.
class createViewController {
 public:
  explicit createViewController(platform::Output& output);

  /// Makes the sheet ready, each time that it is shown.
  void viewWillAppear();

  /// Closes the sheet.
  std::function<void()> dismiss;

  platform::TextField createName{"createName"};
  platform::TextField createSize{"createSize"};  // megabytes
  platform::Button createImage{"createImage"};
  platform::TextField createStatus{"createStatus"};
  platform::ProgressIndicator createProgressStatus{"createProgressStatus"};
  platform::Button startAnim{"startAnim"};
  platform::Button stopAnim{"stopAnim"};

 private:
  void createAction();
  void createNameAction();
  void AnimOn() { createProgressStatus.startAnimation(); }
  void AnimOff() { createProgressStatus.stopAnimation(); }
  void refuse(const std::string& reason);
  [[nodiscard]] std::optional<std::size_t> chosenLength();

  platform::Output& output_;
  std::int64_t imageSize_ = 0;  // megabytes
  std::string imageName_;       // the path
  bool donecreate_ = false;
};

}  // namespace volumes
