#include "desktop/empty_hint.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>

#include "desktop/appearance.h"
#include "desktop/status_line.h"

namespace desktop {
namespace {

// A button that looks like a link: to the keyboard and to screen readers a link in a label is no
// more than text.
class LinkButton : public QPushButton {
 public:
  LinkButton(const QString& text, const char* name) : QPushButton(text) {
    setObjectName(QLatin1String(name));
    setCursor(Qt::PointingHandCursor);
    setAutoDefault(false);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
  }

  [[nodiscard]] QSize sizeHint() const override {
    const int margin = fontMetrics().averageCharWidth();
    return fontMetrics()
        .size(Qt::TextSingleLine, text())
        .grownBy(QMargins(margin, margin, margin, margin));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QColor background = palette().color(QPalette::Base);
    // Breeze's own colour is too faint, and in black it would not look like a link.
    const QColor link = palette().color(QPalette::Link);
    painter.setPen(readableOn(background, link) == link
                       ? link
                       : readableColor(platform::TextColor::blue, background, link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    if (hasFocus()) {
      QStyleOptionFocusRect focus;
      focus.initFrom(this);
      focus.backgroundColor = background;
      style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
  }
};

}  // namespace

EmptyHint::EmptyHint(QWidget* list) : list_(list) { setObjectName(QLatin1String("emptyHint")); }

void EmptyHint::showFor(bool isEmpty) {
  if (!isEmpty && isAncestorOf(window()->focusWidget())) {
    list_->setFocus();
  }
  setVisible(isEmpty);
}

// Most lists are not empty: they need none of this.
void EmptyHint::showEvent(QShowEvent* event) {
  if (layout() == nullptr) {
    build();
  }
  QWidget::showEvent(event);
}

void EmptyHint::build() {
  auto* const text = new QLabel(tr("No disk images yet."));
  text->setAlignment(Qt::AlignCenter);
  text->setForegroundRole(QPalette::PlaceholderText);
  auto* const addLink = new LinkButton(tr("Add…"), "addLink");
  addLink->setToolTip(tr("Adds disk images to the list (the key Insert does so, too)."));
  auto* const newLink = new LinkButton(tr("New Blank Image…"), "newImageLink");
  newLink->setToolTip(tr("Makes an empty disk image."));
  connect(addLink, &QPushButton::clicked, this, &EmptyHint::add);
  connect(newLink, &QPushButton::clicked, this, &EmptyHint::makeNew);
  auto* const links = new QHBoxLayout;
  links->addWidget(addLink);
  links->addWidget(newLink);
  auto* const rows = new QVBoxLayout(this);
  rows->addWidget(text);
  rows->addLayout(links);
  setTabOrder(list_, addLink);
  setTabOrder(addLink, newLink);
}

}  // namespace desktop
