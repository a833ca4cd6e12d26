#include "desktop/checks_view.h"

#include <QEvent>
#include <QTabBar>
#include <algorithm>
#include <map>
#include <utility>

#include "desktop/checks_texts.h"
#include "desktop/lead_to.h"
#include "desktop/texts.h"

namespace desktop {
ChecksView::ChecksView(const editor::ViewController& controller, FactsSource source, Window window)
    : window_(std::move(window)), runner_(controller, std::move(source)) {
  connect(&runner_, &ChecksRunner::changed, this, &ChecksView::show);
  connect(window_.line, &ChecksLine::clicked, this, &ChecksView::openList);
  window_.itself->installEventFilter(this);
}

bool ChecksView::eventFilter(QObject* watched, QEvent* event) {
  // While the window was in the background, a missing file may have been put into its place.
  if (event->type() == QEvent::WindowActivate) {
    runner_.lookAgain();
  }
  return QObject::eventFilter(watched, event);
}

void ChecksView::refresh() {
  if (runner_.isStarted()) {
    runner_.gather();
  }
}

void ChecksView::show() {
  window_.line->show(runner_.findings(), !runner_.isWaiting());
  if (list_ != nullptr) {
    list_->show(runner_.findings());
  }
  markTabs();
  describeControls();
  window_.volumes->rows().setFacts(runner_.imageFacts());
  emit changed();
}

QWidget* ChecksView::widgetOf(const checks::Subject& subject) const {
  if (const auto* const key = std::get_if<document::Key>(&subject)) {
    // Some controls show more than one key, and some keys have none.
    const std::string_view control = document::rowOf(*key).control;
    const auto place = std::find_if(
        window_.settings.begin(), window_.settings.end(), [&](const SettingWidget& candidate) {
          return document::rowOf(candidate.setting->key()).control == control;
        });
    return place != window_.settings.end() ? place->widget : window_.fileField;
  }
  switch (std::get<checks::Place>(subject)) {
    case checks::Place::quillon:
      return window_.preferencesButton;
    case checks::Place::diskImages:
      return window_.volumes;
    case checks::Place::preferencesFile:
      break;
  }
  return window_.fileField;
}

void ChecksView::markTabs() {
  std::map<int, const checks::Finding*> gravest;
  for (const checks::Finding& finding : runner_.findings()) {
    gravest.try_emplace(tabOf(*window_.tabs, widgetOf(finding.subject)), &finding);
  }
  for (int index = 0; index < window_.tabs->count(); ++index) {
    const auto found = gravest.find(index);
    const bool isMarked = found != gravest.end();
    window_.tabs->setTabIcon(index, isMarked ? iconOf(found->second->level) : QIcon());
    const QString name = plainText(window_.tabs->tabText(index));
    window_.tabs->tabBar()->setAccessibleTabName(
        index, isMarked ? tr("%1, with something to look at").arg(name) : QString());
  }
}

// The marks of changes put a setting's findings into its description.
void ChecksView::describeControls() {
  std::map<const QWidget*, QStringList> found;
  for (const checks::Finding& finding : runner_.findings()) {
    found[widgetOf(finding.subject)].append(spokenTextOf(finding));
  }
  for (SettingWidget& place : window_.settings) {
    place.findings = found[place.widget].join(QLatin1Char(' '));
  }
  for (QWidget* const widget : std::initializer_list<QWidget*>{window_.fileField, window_.volumes,
                                                               window_.preferencesButton}) {
    const QString always = widget->whatsThis().isEmpty() ? widget->toolTip() : widget->whatsThis();
    widget->setAccessibleDescription((found[widget] << always).join(QLatin1Char(' ')));
  }
}

void ChecksView::openList() {
  if (runner_.findings().empty()) {
    runner_.lookAgain();
    return;
  }
  if (list_ == nullptr) {
    list_ = new ChecksList([this](const checks::Finding& finding) { go(finding); }, window_.itself);
  }
  list_->show(runner_.findings());
  list_->show();
  list_->raise();
  list_->activateWindow();
}

void ChecksView::go(const checks::Finding& finding) {
  const bool isElsewhere = finding.subject == checks::Subject(checks::Place::quillon);
  QWidget* const widget = isElsewhere ? window_.showLocation() : widgetOf(finding.subject);
  leadTo(*window_.tabs, widget);
  if (finding.image) {
    const QModelIndex row = window_.volumes->model()->index(static_cast<int>(*finding.image), 0);
    window_.volumes->setCurrentIndex(row);
    window_.volumes->scrollTo(row);
  }
}

}  // namespace desktop
