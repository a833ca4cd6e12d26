#pragma once

#include <QLineEdit>
#include <functional>
#include <optional>

#include "desktop/search_index.h"

class QCompleter;

namespace desktop {

class SearchHits;

/// Finds settings, disk images and other places of the program by words. Return goes to the hit
/// that is picked, or to the first.
class FindField : public QLineEdit {
  Q_OBJECT

 public:
  /// `collect` is asked for what can be found, each time that somebody begins to search.
  explicit FindField(std::function<SearchIndex()> collect);

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] bool hasOpenList() const;
  void buildList();
  void search();
  void goTo(const QModelIndex& hit);

  std::function<SearchIndex()> collect_;
  std::optional<SearchIndex> index_;
  SearchHits* hits_ = nullptr;
};

}  // namespace desktop
