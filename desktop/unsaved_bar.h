#pragma once

#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <array>
#include <string>

#include "desktop/changes_list.h"
#include "desktop/edits.h"
#include "desktop/status_line.h"
#include "editor/view_controller.h"

namespace desktop {

/// Beside the Save button: how much is unsaved, and for a while how the last save or start went.
class UnsavedBar : public QWidget {
  Q_OBJECT

 public:
  UnsavedBar(editor::ViewController& controller, Edits& edits);

  /// Shows what has become of the state since the last call.
  void refresh();

 private:
  void openList();
  void showCount();
  void tell(const editor::Outcome& outcome);
  void tellNothing();

  editor::ViewController& controller_;
  Edits& edits_;
  QPushButton* changesButton_;
  StatusLine* savedLine_;
  QTimer fading_;
  QPointer<ChangesList> list_;
  std::size_t toldNumber_ = 0;  // of the outcome that has been told last
  // What there was when it was told: anything else means that it has been edited since.
  std::array<std::string, document::keyCount> toldValues_;
  std::size_t toldRevision_ = 0;
};

}  // namespace desktop
