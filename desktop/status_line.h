#pragma once

#include <QLabel>

#include "platform/control.h"

namespace desktop {

/// A text in one of the colours of a text field, readable on light and on dark backgrounds.
class StatusLine : public QLabel {
  Q_OBJECT

 public:
  StatusLine();

  void show(const QString& text, platform::TextColor color);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void paintText();

  platform::TextColor color_ = platform::TextColor::standard;
};

/// The colour on a background, with a contrast of at least 4.5 to 1.
QColor readableColor(platform::TextColor color, const QColor& background, const QColor& standard);

}  // namespace desktop
