#pragma once

#include <QDialog>
#include <QListWidget>
#include <functional>
#include <vector>

#include "checks/finding.h"

namespace desktop {

/// All findings, each of which leads to what it is about.
class ChecksList : public QDialog {
  Q_OBJECT

 public:
  /// `go` shows what a finding is about.
  ChecksList(std::function<void(const checks::Finding&)> go, QWidget* parent);

  void show(const std::vector<checks::Finding>& findings);
  using QDialog::show;

 private:
  std::vector<checks::Finding> findings_;  // as the rows show them
  QListWidget* list_;
};

}  // namespace desktop
