#pragma once

#include <QToolButton>
#include <vector>

#include "checks/finding.h"

namespace desktop {

/// The gravest finding and how many more there are, in one line that opens the list of them. It is
/// a tool button because styles begin the text of those at their icon; that of push buttons they
/// put into the middle.
class ChecksLine : public QToolButton {
  Q_OBJECT

 public:
  ChecksLine();

  /// `areComplete` is false while facts are still to come.
  void show(const std::vector<checks::Finding>& findings, bool areComplete);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText();

  QString sentence_;
  QString rest_;  // stays in sight when the sentence is too long
};

}  // namespace desktop
