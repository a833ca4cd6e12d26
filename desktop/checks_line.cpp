#include "desktop/checks_line.h"

#include <QStyle>
#include <algorithm>

#include "desktop/checks_texts.h"
#include "desktop/plain_text.h"
#include "desktop/signs.h"

namespace desktop {

ChecksLine::ChecksLine() : sentence_(tr("Checking the files…")) {
  setObjectName(QLatin1String("checksLine"));
  setAutoRaise(true);
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setFocusPolicy(Qt::StrongFocus);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  setIconSize(QSize(icon, icon));
  // As high with the icon as without.
  setFixedHeight(std::max(icon, fontMetrics().height()) + fontMetrics().height() / 2);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  setWhatsThis(
      tr("What keeps Quillon from starting, and what else deserves a look. Press it to see "
         "all of it."));
  setAccessibleDescription(whatsThis());
  setAccessibleName(sentence_);
}

void ChecksLine::show(const std::vector<checks::Finding>& findings, bool areComplete) {
  QString spoken;
  rest_.clear();
  if (findings.empty()) {
    setIcon(areComplete ? iconOf(Sign::fine) : QIcon());
    spoken = sentence_ = areComplete ? tr("Ready to start.") : tr("Checking the files…");
  } else {
    setIcon(iconOf(findings.front().level));
    sentence_ = textOf(findings.front());
    spoken = spokenTextOf(findings.front());
    if (findings.size() > 1) {
      rest_ = QLatin1Char(' ') + tr("And %1 more.").arg(findings.size() - 1);
    }
  }
  setAccessibleName(spoken + rest_);
  setToolTip(plainToolTip(sentence_ + rest_));
  updateGeometry();
  showText();
}

QSize ChecksLine::sizeHint() const {
  return {fontMetrics().horizontalAdvance(sentence_ + rest_) + roomAround() + 1, height()};
}

void ChecksLine::showText() {
  const int room = width() - roomAround() - fontMetrics().horizontalAdvance(rest_);
  QString text = fontMetrics().elidedText(sentence_, Qt::ElideMiddle, room);
  text += rest_;
  setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
}

void ChecksLine::resizeEvent(QResizeEvent* event) {
  QToolButton::resizeEvent(event);
  showText();
}

}  // namespace desktop
