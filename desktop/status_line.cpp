#include "desktop/status_line.h"

#include <QEvent>

#include "desktop/texts.h"

namespace desktop {

using platform::TextColor;

QColor readableColor(TextColor color, const QColor& background, const QColor& standard) {
  const bool dark = background.lightness() < 128;
  switch (color) {
    case TextColor::gray:
      return dark ? QColor(0xc4, 0xc4, 0xc4) : QColor(0x4d, 0x4d, 0x4d);
    case TextColor::red:
      return dark ? QColor(0xff, 0xb0, 0xa8) : QColor(0xa0, 0x00, 0x1c);
    case TextColor::blue:
      return dark ? QColor(0xa8, 0xcc, 0xff) : QColor(0x00, 0x3c, 0xa0);
    case TextColor::standard:
      break;
  }
  return standard;
}

StatusLine::StatusLine() {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setAlignment(leadingSide() | Qt::AlignVCenter);
  // Reachable by keyboard, so that a screen reader can go there and read it.
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setMinimumHeight(2 * fontMetrics().lineSpacing());
}

void StatusLine::show(const QString& text, TextColor color) {
  color_ = color;
  setText(text);
  paintText();
}

void StatusLine::paintText() {
  QPalette own = palette();
  const QPalette& general = parentWidget() != nullptr ? parentWidget()->palette() : own;
  own.setColor(QPalette::WindowText, readableColor(color_, general.color(QPalette::Window),
                                                   general.color(QPalette::WindowText)));
  if (own != palette()) {
    setPalette(own);
  }
}

void StatusLine::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) {
    paintText();
  }
}

}  // namespace desktop
