#include "desktop/signs.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace desktop {
namespace {

// Signs are drawn on a square of this size.
constexpr qreal side = 16;

struct Drawing {
  QPainterPath shape;
  QColor color;
  QPainterPath mark;  // lines upon the shape
};

QPainterPath line(QPointF from, QPointF to) {
  QPainterPath path(from);
  path.lineTo(to);
  return path;
}

QPainterPath polygon(const QList<QPointF>& corners) {
  QPainterPath path;
  path.addPolygon(QPolygonF(corners));
  path.closeSubpath();
  return path;
}

QPainterPath disc() {
  QPainterPath path;
  path.addEllipse(QRectF(1, 1, 14, 14));
  return path;
}

Drawing drawingOf(Sign sign) {
  switch (sign) {
    case Sign::stop:
      return {polygon({{5, 1}, {11, 1}, {15, 5}, {15, 11}, {11, 15}, {5, 15}, {1, 11}, {1, 5}}),
              QColor(0xc0, 0x26, 0x26), line({4.5, 8}, {11.5, 8})};
    case Sign::warning:
      return {polygon({{8, 1.5}, {15.5, 14.5}, {0.5, 14.5}}), QColor(0xb8, 0x6e, 0x00),
              line({8, 6}, {8, 9.5}) + line({8, 12}, {8, 12.1})};
    case Sign::note:
      return {disc(), QColor(0x2a, 0x66, 0xb0),
              line({8, 4.4}, {8, 4.5}) + line({8, 7.5}, {8, 11.5})};
    case Sign::fine:
      break;
  }
  QPainterPath tick = line({4.5, 8.5}, {7, 11});
  tick.lineTo(11.5, 5.5);
  return {disc(), QColor(0x2b, 0x7d, 0x36), tick};
}

class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(Sign sign) : sign_(sign) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    const Drawing drawing = drawingOf(sign_);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / side, rect.height() / side);
    painter->fillPath(drawing.shape, drawing.color);
    painter->strokePath(drawing.mark, QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new SignEngine(sign_); }

 private:
  Sign sign_;
};

}  // namespace

QIcon iconOf(Sign sign) { return QIcon(new SignEngine(sign)); }

}  // namespace desktop
