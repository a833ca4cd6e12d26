#include "desktop/change_marks.h"

#include <QFont>
#include <algorithm>

namespace desktop {

ChangeMarks::ChangeMarks(const editor::ViewController& controller, const Marked& marked)
    : controller_(controller), marked_(marked) {
  update();
}

void ChangeMarks::update() {
  const auto changed = controller_.saved.changedKeys();
  for (const SettingWidget& place : marked_.settings) {
    // The processor shows cpu and fpu: a change of either marks its control.
    const auto& control = document::rowOf(place.setting->key()).control;
    const bool isChanged = std::any_of(changed.begin(), changed.end(), [&](document::Key key) {
      return document::rowOf(key).control == control;
    });
    showState(place, isChanged, place.setting->isDefault());
  }
  const bool volumesChanged = controller_.saved.volumesChanged();
  QFont font = marked_.volumesLabel->font();
  if (font.bold() != volumesChanged) {
    font.setBold(volumesChanged);
    marked_.volumesLabel->setFont(font);
  }
  marked_.unsaved->refresh();
  // Only on a change: the window system answers each new title, which wakes the event loop and
  // would lead here again without end.
  const bool modified = !changed.empty() || volumesChanged;
  if (marked_.window->isWindowModified() != modified) {
    marked_.window->setWindowModified(modified);
  }
}

}  // namespace desktop
