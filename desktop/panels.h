#pragma once

#include <QFileDialog>
#include <QPointer>
#include <QWidget>
#include <map>
#include <string>

#include "platform/panels.h"

namespace desktop {

/// Panels as Qt's file dialogs, above the window in use.
class Panels : public platform::Panels {
 public:
  /// `window` is the one that panels belong to when none is in use.
  void setWindow(QWidget* window) { window_ = window; }

  std::vector<platform::Location> runModal(const platform::OpenPanel& panel) override;
  void begin(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::SavePanel& panel, Chosen completion) override;

 private:
  [[nodiscard]] QWidget* front() const;

  QWidget* window_ = nullptr;
  std::map<std::string, QPointer<QFileDialog>> open_;  // by who asked
};

}  // namespace desktop
