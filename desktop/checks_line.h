#pragma once

#include <QToolButton>
#include <vector>

#include "checks/finding.h"

namespace desktop {

/// The gravest finding and how many more there are, in one line that opens the list of them.
class ChecksLine : public QToolButton {
  Q_OBJECT

 public:
  ChecksLine();

  /// `areComplete` is false while facts are still to come.
  void show(const std::vector<checks::Finding>& findings, bool areComplete);

  // As wide as the whole text: some styles put the text of a wider button into its middle.
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return {0, height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showText();
  [[nodiscard]] int roomAround() const { return iconSize().width() + 2 * fontMetrics().height(); }

  QString sentence_;
  QString rest_;  // stays in sight when the sentence is too long
};

}  // namespace desktop
