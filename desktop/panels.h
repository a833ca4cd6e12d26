#pragma once

#include <QWidget>

#include "platform/panels.h"

namespace desktop {

/// Panels as Qt's file dialogs, above a window that is named later.
class Panels : public platform::Panels {
 public:
  void setWindow(QWidget* window) { window_ = window; }

  std::vector<platform::Location> runModal(const platform::OpenPanel& panel) override;
  void begin(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::SavePanel& panel, Chosen completion) override;

 private:
  QWidget* window_ = nullptr;
};

}  // namespace desktop
