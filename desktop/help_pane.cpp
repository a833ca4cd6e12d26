#include "desktop/help_pane.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>

#include "desktop/plain_text.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

constexpr int usualLines = 3;
constexpr int mostLines = 6;
constexpr int margin = 6;                // pixels
constexpr int gap = 3;                   // above the small print
constexpr double smallPrintSize = 0.85;  // of the usual size

QLabel* part(QWidget* pane, const char* name) {
  QLabel* const label = plainLabel({});
  label->setParent(pane);
  label->setObjectName(QLatin1String(name));
  label->setAlignment(leadingSide() | Qt::AlignTop);
  return label;
}

}  // namespace

HelpPane::HelpPane(const SettingWidgets& settings)
    : settings_(settings),
      name_(part(this, "helpName")),
      text_(part(this, "helpLine")),
      smallPrint_(part(this, "helpFile")),
      lines_(usualLines) {
  setObjectName(QLatin1String("helpPane"));
  setFrameShape(StyledPanel);
  text_->setWordWrap(true);
  explain(nullptr);
  connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* now) {
    if (now != nullptr && now->window() == window()) {
      explain(now);
    }
  });
  arrange();
}

void HelpPane::follow(QWidget* parent) {
  for (QWidget* const widget : parent->findChildren<QWidget*>()) {
    if (!widget->whatsThis().isEmpty()) {
      widget->installEventFilter(this);
    }
  }
}

void HelpPane::explain(const QWidget* widget) {
  const auto place = std::find_if(settings_.begin(), settings_.end(), [&](const auto& candidate) {
    return candidate.widget == widget || candidate.label == widget ||
           candidate.widget->isAncestorOf(widget);
  });
  if (place != settings_.end()) {
    const Help help = helpOf(*place->setting);
    explained_ = place->setting;
    show(place->title, help.use + QLatin1Char('\n') + help.usual);
    return;
  }
  explained_ = nullptr;
  while (widget != nullptr && widget->whatsThis().isEmpty() && !widget->isWindow()) {
    widget = widget->parentWidget();
  }
  if (widget == nullptr || widget->whatsThis().isEmpty()) {
    tell(tr("Move to a setting to read here what it does."));
  } else {
    const QString name = widget->accessibleName();
    show(name.isEmpty() ? plainText(widget->property("text").toString()) : name,
         widget->whatsThis());
  }
}

void HelpPane::tell(const QString& text) {
  explained_ = nullptr;
  show({}, text);
}

void HelpPane::refresh() {
  if (explained_ != nullptr) {
    showLine();
  }
}

void HelpPane::show(const QString& name, const QString& text) {
  // Before there is something to show, no other font is loaded.
  if (!name.isEmpty() && name_->text().isEmpty()) {
    QFont heading = font();
    heading.setWeight(QFont::DemiBold);
    name_->setFont(heading);
    QFont small = font();
    if (small.pointSizeF() > 0) {  // not where the size is in pixels
      small.setPointSizeF(small.pointSizeF() * smallPrintSize);
    }
    smallPrint_->setFont(small);
  }
  name_->setText(name);
  text_->setText(text);
  // A narrow window with large letters gets more, and keeps it.
  if (isVisible()) {
    const int needed = text_->heightForWidth(text_->width()) / fontMetrics().lineSpacing();
    lines_ = std::max(lines_, std::min(needed, mostLines));
  }
  arrange();
}

// The same height always: nothing moves when the texts change.
void HelpPane::arrange() {
  const int line = fontMetrics().lineSpacing();
  setFixedHeight((lines_ + 2) * line + gap + 2 * (margin + frameWidth()));
  QRect room = contentsRect().adjusted(margin, margin, -margin, -margin);
  name_->setGeometry(room.left(), room.top(), room.width(), line);
  smallPrint_->setGeometry(room.left(), room.bottom() + 1 - line, room.width(), line);
  // What has no name is told from the top.
  room.setTop(name_->text().isEmpty() ? room.top() : room.top() + line);
  text_->setGeometry(room.left(), room.top(), room.width(), lines_ * line);
  showLine();
}

void HelpPane::showLine() {
  if (explained_ == nullptr) {
    smallPrint_->clear();
    return;
  }
  QStringList lines;
  for (const std::string& line : explained_->linesToSave()) {
    lines.append(leftToRight(toQString(line)));
  }
  // A path may be longer than the pane is wide.
  smallPrint_->setText(smallPrint_->fontMetrics().elidedText(
      tr("In the file: %1").arg(lines.join(QStringLiteral(" · "))), Qt::ElideMiddle,
      smallPrint_->width()));
}

void HelpPane::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  arrange();
}

bool HelpPane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Enter) {
    explain(static_cast<QWidget*>(watched));
  } else if (event->type() == QEvent::Leave && QApplication::activePopupWidget() == nullptr) {
    // A list that opens takes the pointer away from its setting, which is still the one at hand.
    explain(QApplication::focusWidget());
  }
  return QFrame::eventFilter(watched, event);
}

}  // namespace desktop
