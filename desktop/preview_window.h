#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <vector>

#include "document/comparison.h"
#include "editor/view_controller.h"

namespace desktop {

/// The preferences file as it is beside what a save would make of it. Each line that differs bears
/// a sign and a colour, so that neither is needed to see it.
class PreviewWindow : public QDialog {
  Q_OBJECT

 public:
  PreviewWindow(const editor::ViewController& controller, QWidget* parent);

 private:
  [[nodiscard]] QLayout* pane(const QString& title, const char* name, const QString& text,
                              const std::vector<document::ComparedLine>& lines);
};

}  // namespace desktop
