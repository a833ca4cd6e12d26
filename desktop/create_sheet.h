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
  using AddToList = std::function<void(const std::string& path)>;

  /// `folder` is where images go. `add` runs when the sheet is gone.
  CreateSheet(const platform::Host& host, volumes::ImageFolder& folder, Edits& edits, AddToList add,
              QWidget* parent);

 private:
  void addSize(QFormLayout& form);
  void addFolder(QFormLayout& form);
  [[nodiscard]] QPushButton* addButton();
  [[nodiscard]] QLayout* statusRow();
  void showFolder();

  volumes::createViewController controller_;
  Controls controls_;
  StatusLine* folderNote_;
  AddToList add_;
  platform::Subscription addShown_;
};

}  // namespace desktop
