#include "desktop/late_style.h"

#include <QIconEngine>
#include <QPointer>
#include <optional>

namespace desktop {
namespace {

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

QIcon LateStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                              const QWidget* widget) const {
  return picture == SP_ToolBarHorizontalExtensionButton
             ? QIcon(new LateEngine(baseStyle(), picture))
             : QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace desktop
