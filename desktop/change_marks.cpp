#include "desktop/change_marks.h"

#include <QAbstractEventDispatcher>
#include <QFont>
#include <algorithm>

namespace desktop {
namespace {

void mark(QWidget* label, bool isChanged) {
  if (label->font().bold() != isChanged) {
    QFont font = label->font();
    font.setBold(isChanged);
    label->setFont(font);
  }
}

}  // namespace

ChangeMarks::ChangeMarks(const editor::ViewController& controller,
                         const SettingWidgets& settingWidgets, QWidget& window)
    : QObject(&window),
      controller_(controller),
      settingWidgets_(settingWidgets),
      window_(window),
      volumesLabel_(window.findChild<QWidget*>(QLatin1String("volumesLabel"))),
      readError_(window.findChild<QWidget*>(QLatin1String("readError"))) {
  const auto* const dispatcher = QAbstractEventDispatcher::instance();
  for (const auto signal :
       {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake}) {
    connect(dispatcher, signal, this, &ChangeMarks::update);
  }
}

void ChangeMarks::update() {
  const auto changed = controller_.changedKeys();
  for (const SettingWidget& place : settingWidgets_) {
    // Some controls show more than one key.
    const auto& control = document::rowOf(place.setting->key()).control;
    mark(place.label, std::any_of(changed.begin(), changed.end(), [&](document::Key key) {
           return document::rowOf(key).control == control;
         }));
  }
  const bool volumesChanged = controller_.volumesChanged();
  mark(volumesLabel_, volumesChanged);
  if (readError_ != nullptr && controller_.preferences.readError().empty()) {
    readError_->hide();
  }
  // Not without need: the window system answers each new title, which would bring us here again.
  const bool modified = !changed.empty() || volumesChanged;
  if (window_.isWindowModified() != modified) {
    window_.setWindowModified(modified);
  }
}

}  // namespace desktop
