#include "desktop/quick_style.h"

#include <QIconEngine>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <optional>

namespace desktop {
namespace {

// QRasterPaintEngine of Qt 6.4 hands more than 95 spans of a translucent colour or of a gradient to
// the threads of QThreadPool and waits for them, and without a clip a line has a span for each of
// its pixels. The threads take longer to start than the few lines of a window to paint. With a
// rectangle for a clip lines need no spans, and areas one for each row.
constexpr int side = 90;  // pixels

// On other screens the pieces might meet between two pixels, where a seam would show.
bool suitsPieces(const QPainter& painter) { return painter.device()->devicePixelRatio() == 1; }

template <typename Paint>
void paintClipped(QPainter& painter, const QRect& part, const Paint& paint) {
  painter.save();
  painter.setClipRect(part, Qt::IntersectClip);
  paint();
  painter.restore();
}

// The widget's clip has holes for what lies upon it, but none at its border.
template <typename Paint>
void paintBorderApart(QPainter& painter, const QRect& rect, const Paint& paint) {
  constexpr int border = 2;
  const QRect inner = rect.adjusted(border, border, -border, -border);
  paintClipped(painter, rect.adjusted(0, 0, 0, border - rect.height()), paint);
  paintClipped(painter, rect.adjusted(0, rect.height() - border, 0, 0), paint);
  paintClipped(painter, inner.adjusted(-border, 0, -inner.width(), 0), paint);
  paintClipped(painter, inner.adjusted(inner.width(), 0, border, 0), paint);
  paintClipped(painter, inner, paint);
}

// QMenuBar asks for the picture of its extension button whether or not its entries have room, and
// Qt's own styles read it with QImageReader, which loads all of Qt's plugins for pictures.
class LateEngine : public QIconEngine {
 public:
  LateEngine(const QStyle* style, QStyle::StandardPixmap picture)
      : style_(style), picture_(picture) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().pixmap(size, mode, state);
  }

  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return icon().actualSize(size, mode, state);
  }

  [[nodiscard]] QIconEngine* clone() const override { return new LateEngine(style_, picture_); }

 private:
  const QIcon& icon() {
    if (!icon_) {
      icon_ = style_ ? style_->standardIcon(picture_) : QIcon();
    }
    return *icon_;
  }

  QPointer<const QStyle> style_;  // may be replaced while the window is open
  QStyle::StandardPixmap picture_;
  std::optional<QIcon> icon_;
};

}  // namespace

void QuickStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto paint = [&] { QProxyStyle::drawPrimitive(element, option, painter, widget); };
  if (element == PE_FrameTabWidget && suitsPieces(*painter)) {
    paintBorderApart(*painter, option->rect, paint);
  } else {
    paint();
  }
}

void QuickStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option);
  if (element == CE_HeaderSection && header != nullptr && suitsPieces(*painter)) {
    drawHeaderSection(*header, *painter, widget);
  } else {
    QProxyStyle::drawControl(element, option, painter, widget);
  }
}

// The section is the same all along, but for a line at its end, which pieces must not have that
// do not reach to it. Fusion keeps a picture of each width, so that most of them are one picture.
void QuickStyle::drawHeaderSection(const QStyleOptionHeader& header, QPainter& painter,
                                   const QWidget* widget) const {
  constexpr int end = 2;
  for (QRect rest = header.rect; !rest.isEmpty(); rest.setLeft(rest.left() + side - 2 * end)) {
    const QRect part =
        rest.intersected(QRect(rest.topLeft(), QSize(side - 2 * end, rest.height())));
    QStyleOptionHeader piece = header;
    piece.rect = header.rect.intersected(part.adjusted(-end, 0, end, 0));
    paintClipped(painter, part,
                 [&] { QProxyStyle::drawControl(CE_HeaderSection, &piece, &painter, widget); });
  }
}

void QuickStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  if (control == CC_ScrollBar && suitsPieces(*painter)) {
    drawScrollBar(*option, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

// Fusion sets clips of its own while it paints a scroll bar. With a clip for each strip it would
// paint its translucent lines outside of them once more, and darker; out of a picture it cannot.
void QuickStyle::drawScrollBar(const QStyleOptionComplex& bar, QPainter& painter,
                               const QWidget* widget) const {
  for (QRect rest = bar.rect; !rest.isEmpty(); rest.setTop(rest.top() + side)) {
    QPixmap strip(rest.width(), std::min(side, rest.height()));
    strip.fill(Qt::transparent);
    QPainter stripPainter(&strip);
    stripPainter.translate(-rest.topLeft());
    QProxyStyle::drawComplexControl(CC_ScrollBar, &bar, &stripPainter, widget);
    painter.drawPixmap(rest.topLeft(), strip);
  }
}

QIcon QuickStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                               const QWidget* widget) const {
  return picture == SP_ToolBarHorizontalExtensionButton
             ? QIcon(new LateEngine(baseStyle(), picture))
             : QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace desktop
