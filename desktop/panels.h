#pragma once

#include <QFileDialog>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <string>

#include "platform/panels.h"

namespace desktop {

/// Panels as file dialogs above the window in use: those of the desktop where it has any that can
/// do what is asked for, else Qt's own.
class Panels : public platform::Panels {
 public:
  /// `window` is the one that panels belong to when none is in use, `folder` the one in which a
  /// file was chosen last. Both stay for as long as this object is there.
  void setWindow(QWidget* window, QString* folder) {
    window_ = window;
    folder_ = folder;
  }

  std::vector<platform::Location> runModal(const platform::OpenPanel& panel) override;
  void begin(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::OpenPanel& panel, Chosen completion) override;
  void beginSheet(const platform::SavePanel& panel, Chosen completion) override;

 private:
  [[nodiscard]] QWidget* front() const;
  std::unique_ptr<QFileDialog> prepare(const platform::OpenPanel& panel);

  QWidget* window_ = nullptr;
  QString* folder_ = nullptr;
  std::map<std::string, QPointer<QFileDialog>> open_;  // by who asked
};

}  // namespace desktop
