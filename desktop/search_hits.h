#pragma once

#include <QAbstractListModel>
#include <QStyledItemDelegate>
#include <vector>

#include "desktop/search_index.h"

namespace desktop {

/// What a search has found, a row for each; or one row that says that there is nothing.
class SearchHits : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role {
    searchedRole = Qt::UserRole,  // the text that was searched for, the same in all rows
    entryRole,                    // which entry of the index it is; none where nothing was found
  };

  using QAbstractListModel::QAbstractListModel;

  void show(const SearchIndex& index, const QString& text);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    QString text;
    QVariant entry;
  };

  QString searched_;
  std::vector<Row> rows_;
};

/// Paints the words that were searched for in bold letters.
class SearchHitDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                               const QModelIndex& index) const override;
};

}  // namespace desktop
