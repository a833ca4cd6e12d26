#pragma once

#include <QDialog>
#include <QScrollArea>
#include <QStringList>
#include <functional>
#include <vector>

#include "desktop/edits.h"
#include "editor/view_controller.h"

namespace desktop {

/// The unsaved changes, one a row, each with a button that takes it back.
class ChangesList : public QDialog {
  Q_OBJECT

 public:
  ChangesList(editor::ViewController& controller, Edits& edits, QWidget* parent);

  /// Brings the rows in line with the changes there are, and closes the list after the last.
  void refresh();

 private:
  struct Row {
    QString what;
    QString how;
    std::function<void()> putBack;
  };

  [[nodiscard]] std::vector<Row> rows() const;
  [[nodiscard]] QWidget* table(const std::vector<Row>& rows);
  void putBack(const std::function<void()>& action);

  editor::ViewController& controller_;
  Edits& edits_;
  QScrollArea* area_;
  QStringList shown_;  // the texts of the rows
};

}  // namespace desktop
