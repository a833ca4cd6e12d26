#include "desktop/volume_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/checks_texts.h"
#include "desktop/sizes.h"
#include "desktop/texts.h"

namespace desktop {
namespace {

/// One cell while it is being painted. What is painted takes its room off the rest.
class CellPainter {
 public:
  CellPainter(QPainter& painter, const QStyleOptionViewItem& cell)
      : painter_(painter), cell_(cell), style_(*cell.widget->style()) {
    const QPalette::ColorGroup group =
        (cell.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
    isSelected_ = (cell.state & QStyle::State_Selected) != 0;
    background_ = cell.palette.color(group, isSelected_ ? QPalette::Highlight : QPalette::Base);
    text_ = readableOn(
        background_,
        cell.palette.color(group, isSelected_ ? QPalette::HighlightedText : QPalette::Text));
    constexpr double faintness = 0.3;
    faint_ = mixed(text_, background_, faintness);
    if (readableOn(background_, faint_) != faint_) {
      faint_ = text_;
    }
    const int margin = style_.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    rest_ = cell.rect.adjusted(margin, 0, -margin, 0);
  }

  // With PE_PanelItemViewItem some styles paint the selection in other colours than the palette's,
  // on which the text, in the palette's, might not be readable.
  void paintBackground() {
    if (isSelected_) {
      painter_.fillRect(cell_.rect, background_);
    } else {
      style_.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell_, &painter_, cell_.widget);
    }
  }

  void paintIcon(const QIcon& icon, Qt::AlignmentFlag side) {
    if (!icon.isNull()) {
      const QSize size = cell_.decorationSize;
      // In a rectangle of the icon's own size: some icon engines scale up to whatever they get.
      const QRect taken = take(size.width(), side);
      icon.paint(&painter_, QStyle::alignedRect(cell_.direction, Qt::AlignCenter, size, taken));
      take(size.width() / 2, side);
    }
  }

  void paintText(const QString& text) {
    draw(text, text_, cell_.displayAlignment, cell_.textElideMode);
  }

  void paintPath(const QString& path) {
    const auto name = path.lastIndexOf(QLatin1Char('/')) + 1;
    const int width = draw(leftToRight(path.mid(name)), text_, Qt::AlignLeading | Qt::AlignVCenter,
                           Qt::ElideMiddle);
    take(width + 2 * cell_.fontMetrics.averageCharWidth(), Qt::AlignLeft);
    draw(leftToRight(path.left(name)), faint_, Qt::AlignLeading | Qt::AlignVCenter,
         Qt::ElideMiddle);
  }

  void paintFocus() {
    if ((cell_.state & QStyle::State_HasFocus) != 0) {
      QStyleOptionFocusRect focus;
      focus.QStyleOption::operator=(cell_);
      focus.backgroundColor = background_;
      style_.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter_, cell_.widget);
    }
  }

 private:
  /// Takes room off one side, the left one where the text begins there.
  QRect take(int width, Qt::AlignmentFlag side) {
    const QRect taken = QStyle::alignedRect(cell_.direction, side | Qt::AlignVCenter,
                                            QSize(width, rest_.height()), rest_);
    if (taken.left() == rest_.left()) {
      rest_.setLeft(taken.right() + 1);
    } else {
      rest_.setRight(taken.left() - 1);
    }
    return taken;
  }

  /// Returns the width of what is drawn. A layout is measured and drawn in one go, where
  /// QPainter::drawText() would lay out the text again.
  int draw(const QString& text, const QColor& color, Qt::Alignment alignment,
           Qt::TextElideMode elide) {
    if (rest_.width() <= 0) {
      return 0;
    }
    QTextLayout layout(text, cell_.font);
    QRectF lines = laidOut(layout);
    if (lines.width() > rest_.width()) {
      layout.setText(cell_.fontMetrics.elidedText(text, elide, rest_.width()));
      lines = laidOut(layout);
    }
    const QSize size(qCeil(lines.width()), qCeil(lines.height()));
    painter_.setPen(color);
    layout.draw(&painter_, QStyle::alignedRect(cell_.direction, alignment, size, rest_).topLeft());
    return size.width();
  }

  /// Lays out one line and returns its rectangle, whose left side is at 0.
  QRectF laidOut(QTextLayout& layout) const {
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(cell_.direction);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(QWIDGETSIZE_MAX);
    layout.endLayout();
    return line.naturalTextRect();
  }

  QPainter& painter_;
  const QStyleOptionViewItem& cell_;
  const QStyle& style_;
  bool isSelected_;
  QColor background_;
  QColor text_;
  QColor faint_;
  QRect rest_;
};

QString shownSize(const QString& size) { return translatedSize(fromQString(size)) + columnGap; }

QString shownKind(const QString& kind) {
  const QString shown = QCoreApplication::translate("Kinds", kind.toUtf8().constData());
  return shown.isRightToLeft() ? shown : leftToRight(shown);
}

}  // namespace

void VolumeDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (option->displayAlignment.testFlag(Qt::AlignRight)) {
    option->text = shownSize(option->text);
  } else if (index.column() > 0) {
    option->text = shownKind(option->text);
  }
}

// The table asks for the same few kinds and sizes of images whenever a row or its own width
// changes, and the base class lays each of them out every time.
QSize VolumeDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return measured(option.font, {index.column(), index.data().toString()},
                  [&] { return QStyledItemDelegate::sizeHint(option, index); });
}

int VolumeDelegate::usualWidth(const platform::TableColumn& column, int number,
                               QStyleOptionViewItem option) const {
  int width = 0;
  option.features |= QStyleOptionViewItem::HasDisplay;
  for (const std::string_view text : column.usual) {
    if (!text.empty()) {
      const QString known = toQString(std::string(text));
      const QSize size = measured(option.font, {number, known}, [&] {
        option.text = column.endsAtRight ? shownSize(known) : shownKind(known);
        return option.widget->style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, QSize(),
                                                        option.widget);
      });
      width = std::max(width, size.width());
    }
  }
  return width;
}

QSize VolumeDelegate::measured(const QFont& font, const std::pair<int, QString>& text,
                               const std::function<QSize()>& measure) const {
  if (std::exchange(measuredFont_, font) != font) {
    sizes_.clear();
  }
  const auto place = sizes_.find(text);
  return place != sizes_.end() ? *place : *sizes_.insert(text, measure());
}

void VolumeDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  painter->save();
  painter->setClipRect(cell.rect);
  painter->setLayoutDirection(cell.direction);
  CellPainter parts(*painter, cell);
  parts.paintBackground();
  if (index.column() == 0) {
    parts.paintIcon(cell.icon, Qt::AlignLeft);
    if (!index.data(Qt::AccessibleDescriptionRole).toString().isEmpty()) {
      parts.paintIcon(iconOf(checks::Level::warning), Qt::AlignRight);
    }
    parts.paintPath(index.data().toString());
  } else {
    parts.paintText(cell.text);
  }
  parts.paintFocus();
  painter->restore();
}

}  // namespace desktop
