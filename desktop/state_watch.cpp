#include "desktop/state_watch.h"

#include <QAbstractEventDispatcher>
#include <utility>

#include "app/shared_var.h"

namespace desktop {

StateWatch::StateWatch(const editor::ViewController& controller)
    : controller_(controller), seen_(state()) {
  const auto* const dispatcher = QAbstractEventDispatcher::instance();
  for (const auto signal :
       {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake}) {
    connect(dispatcher, signal, this, &StateWatch::look);
  }
}

StateWatch::State StateWatch::state() const {
  const document::Preferences& preferences = controller_.preferences;
  return {controller_.saved.valuesToSave(), controller_.volumes.tableView.revision(),
          controller_.outcome().number,     app::sharedVar::startState,
          app::sharedVar::pathToQuil,       preferences.prefsURL,
          preferences.saveError(),          preferences.stamp()};
}

void StateWatch::look() {
  State now = state();
  if (now != seen_) {
    seen_ = std::move(now);
    emit changed();
  }
}

}  // namespace desktop
