#include "desktop/search_hits.h"

#include <QPainter>
#include <QTextLayout>

#include "desktop/appearance.h"

namespace desktop {
namespace {

QList<QTextLayout::FormatRange> boldParts(const QString& text, const QString& words) {
  QTextCharFormat bold;
  bold.setFontWeight(QFont::Bold);
  QList<QTextLayout::FormatRange> parts;
  for (const auto& [start, length] : foundParts(text, words)) {
    parts.append({static_cast<int>(start), static_cast<int>(length), bold});
  }
  return parts;
}

}  // namespace

void SearchHits::show(const SearchIndex& index, const QString& text) {
  beginResetModel();
  searched_ = text;
  rows_.clear();
  for (const SearchIndex::Hit& hit : index.find(text)) {
    const SearchEntry& entry = index.at(hit.entry);
    rows_.push_back({hit.where.isEmpty()
                         ? tr("%1 — %2").arg(entry.title, entry.place)
                         : tr("%1 — %2: %3").arg(entry.title, entry.place, hit.where),
                     static_cast<qulonglong>(hit.entry)});
  }
  if (rows_.empty() && !text.trimmed().isEmpty()) {
    rows_.push_back({tr("Nothing found for \"%1\".").arg(text.trimmed()), {}});
  }
  endResetModel();
}

int SearchHits::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SearchHits::data(const QModelIndex& index, int role) const {
  const Row& row = rows_.at(static_cast<std::size_t>(index.row()));
  switch (role) {
    case Qt::DisplayRole:
      return row.text;
    case searchedRole:
      return searched_;
    case entryRole:
      return row.entry;
    default:
      return {};
  }
}

// QCompleter leaves out what cannot be selected, and takes nothing that is disabled.
Qt::ItemFlags SearchHits::flags(const QModelIndex& index) const {
  return index.data(entryRole).isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled
                                         : Qt::ItemFlags(Qt::ItemIsSelectable);
}

// The width does not matter: the list has its own.
QSize SearchHitDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& /*index*/) const {
  return {0, option.fontMetrics.height() * 3 / 2};
}

void SearchHitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  const bool isHit = index.data(SearchHits::entryRole).isValid();
  const bool isSelected = isHit && (row.state & QStyle::State_Selected) != 0;
  const QPalette& palette = row.palette;
  const QColor background =
      palette.color(QPalette::Active, isSelected ? QPalette::Highlight : QPalette::Base);
  const QColor color = palette.color(isHit ? QPalette::Active : QPalette::Disabled,
                                     isSelected ? QPalette::HighlightedText : QPalette::Text);
  const int margin = row.fontMetrics.averageCharWidth();
  const QRect room = row.rect.adjusted(margin, 0, -margin, 0);
  QTextLayout layout(row.fontMetrics.elidedText(row.text, Qt::ElideRight, room.width()), row.font);
  if (isHit) {
    layout.setFormats(boldParts(layout.text(), index.data(SearchHits::searchedRole).toString()));
  }
  QTextOption direction;
  direction.setTextDirection(row.direction);
  direction.setAlignment(QStyle::visualAlignment(row.direction, Qt::AlignLeft));
  direction.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(direction);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(room.width());
  layout.endLayout();

  painter->save();
  painter->setClipRect(row.rect);
  painter->fillRect(row.rect, background);
  painter->setPen(isHit ? readableOn(background, color) : color);
  layout.draw(painter, QPointF(room.left(), row.rect.center().y() - line.height() / 2));
  painter->restore();
}

}  // namespace desktop
