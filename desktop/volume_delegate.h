#pragma once

#include <QFont>
#include <QHash>
#include <QStyledItemDelegate>
#include <functional>

#include "platform/table_view.h"

namespace desktop {

/// Is painted behind texts that end at the right, which would otherwise touch those of the next
/// column. The model does not have it: screen readers and tools would.
inline constexpr QChar columnGap(0x2002);  // an en space

/// Paints the cells of the table of disk images. Of a path the name comes first, the folder behind
/// it in a fainter colour, and at the end of the cell a sign when something is wrong with the file.
class VolumeDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override;

  /// How wide a cell with one of the usual texts of its column is at most.
  [[nodiscard]] int usualWidth(const platform::TableColumn& column, int number,
                               QStyleOptionViewItem option) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] QSize measured(const QFont& font, const std::pair<int, QString>& text,
                               const std::function<QSize()>& measure) const;

  mutable QFont measuredFont_;
  mutable QHash<std::pair<int, QString>, QSize> sizes_;  // by column and text
};

}  // namespace desktop
