#pragma once

#include <functional>

#include "platform/control.h"
#include "platform/host.h"

namespace app {

/// The agreement sheet. Nothing of the answer is recorded.
class sheetViewController {
 public:
  explicit sheetViewController(const platform::Host& host) : host_(host) {
    Agree.action = [this] {
      host_.output.print("Agree");
      if (dismiss) {
        dismiss();
      }
    };
    disAgree.action = [this] {
      host_.output.print("Disagree");
      host_.application.exitNow();
    };
  }

  void viewWillAppear() { host_.output.print("BETA loaded"); }

  /// Closes the sheet.
  std::function<void()> dismiss;

  platform::Button Agree{"Agree"};
  platform::Button disAgree{"disAgree"};

 private:
  platform::Host host_;
};

}  // namespace app
