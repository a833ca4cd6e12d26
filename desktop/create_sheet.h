#pragma once

#include <QDialog>
#include <QFormLayout>

#include "desktop/controls.h"
#include "desktop/status_line.h"
#include "platform/host.h"
#include "volumes/create_view_controller.h"

namespace desktop {

/// The sheet for a new blank disk image.
class CreateSheet : public QDialog {
  Q_OBJECT

 public:
  /// `folder` is where images go.
  CreateSheet(const platform::Host& host, volumes::ImageFolder& folder, Edits& edits,
              QWidget* parent);

 private:
  void addFolder(QFormLayout& form);
  [[nodiscard]] QLayout* statusRow();
  void showFolder();

  volumes::createViewController controller_;
  Controls controls_;
  StatusLine* folderNote_;
};

}  // namespace desktop
