#pragma once

#include <QMenuBar>
#include <functional>

#include "desktop/controls.h"
#include "editor/view_controller.h"

namespace desktop {

/// The menus of the settings window.
class Menus : public QMenuBar {
  Q_OBJECT

 public:
  /// What opens the windows that no control of the core stands for.
  struct Openers {
    std::function<void()> preview;
    std::function<void()> preferences;
    std::function<void()> resetPage;
    std::function<void()> diagnostics;
    std::function<void()> agreement;
    std::function<void()> about;
    std::function<void()> find;
  };

  Menus(editor::ViewController& controller, Controls& controls, const Openers& openers);

  void setStartEnabled(bool enabled) { start_->setEnabled(enabled); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  using Callback = std::function<void()>;

  /// How an entry looks and which keys it has.
  struct Face {
    QString text;
    const char* icon = nullptr;  // its standard name, if any
    QKeySequence keys{};
  };

  QAction* add(QMenu* menu, const Face& face, const Callback& callback);
  QAction* addButton(QMenu* menu, platform::Button& button, const Face& face);
  void addFile(editor::ViewController& controller, const Openers& openers);
  void addPresets(editor::Presets& presets);

  Controls& controls_;
  QAction* start_ = nullptr;
};

}  // namespace desktop
