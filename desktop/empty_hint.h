#pragma once

#include <QPushButton>

namespace desktop {

/// What an empty list of disk images says: that there is none yet, and two links to what helps.
class EmptyHint : public QWidget {
  Q_OBJECT

 public:
  /// Lies on `list`, and comes behind it in the order of the Tab key.
  explicit EmptyHint(QWidget* list);

  /// Shows or hides this. What is hidden passes the focus on to the list.
  void showFor(bool isEmpty);

 signals:
  void add();
  void makeNew();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void build();

  QWidget* list_;
};

}  // namespace desktop
