#include "desktop/settings_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>

#include "desktop/pages.h"
#include "desktop/texts.h"

namespace desktop {

SettingsWindow::SettingsWindow(editor::ViewController& controller, Edits& edits,
                               const QString& images)
    : controller_(controller), controls_(edits), tabs_(new QTabWidget) {
  setObjectName(QLatin1String("settingsWindow"));
  setWindowTitle(tr("Quillon Settings"));
  tabs_->setObjectName(shown(controller.tabs.tabViewC.name()));
  guardWheel(tabs_->tabBar());

  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  layout->addWidget(tabs_, 1);
  layout->addLayout(fileRow());
  layout->addLayout(buttonRow());
  setCentralWidget(content);

  buildPages(images);
  buildMenus();
  controller.tabs.tabViewC.attach([this] { showTabs(); });
  resize(720, 560);
  controller.viewWillAppear(delegate_);
}

SettingsWindow::~SettingsWindow() {
  controller_.tabs.tabViewC.detach();
  // A page that is not among the tabs belongs to nobody.
  for (const auto& [view, page] : pages_) {
    if (page->parentWidget() == nullptr) {
      delete page;
    }
  }
}

void SettingsWindow::buildPages(const QString& images) {
  const auto scrolling = [](QWidget* page) {
    auto* const area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(page);
    return area;
  };
  const auto& items = controller_.tabs.tabViewC.items();
  const auto& scsi = controller_.tabs.scsiTab->view;
  pages_[scsi.get()] = scrolling(scsiPage(controls_, controller_));
  for (const auto& item : items) {
    QWidget* page = nullptr;
    if (item->identifier == "volumesTab") {
      page = volumesPage(controls_, controller_, images);
    } else if (item->identifier == "machineTab") {
      page = machinePage(controls_, controller_);
    } else if (item->identifier == "displayTab") {
      page = displayPage(controls_, controller_);
    } else if (item->identifier == "soundTab") {
      page = soundPage(controls_, controller_);
    } else if (item->identifier == "networkTab") {
      page = networkPage(controls_, controller_);
    } else if (item->identifier == "jitTab") {
      page = jitPage(controls_, controller_);
    } else {
      continue;
    }
    pages_[item->view.get()] = scrolling(page);
  }
}

void SettingsWindow::showTabs() {
  const QWidget* const current = tabs_->currentWidget();
  const auto& items = controller_.tabs.tabViewC.items();
  tabs_->setUpdatesEnabled(false);
  tabs_->clear();
  for (const auto& item : items) {
    const QString label = tr(item->label.c_str()).replace(QLatin1Char('&'), QLatin1String("&&"));
    tabs_->addTab(pages_.at(item->view.get()), label);
  }
  tabs_->setCurrentIndex(std::max(0, tabs_->indexOf(const_cast<QWidget*>(current))));
  tabs_->setUpdatesEnabled(true);
}

QLayout* SettingsWindow::fileRow() {
  auto* const row = new QHBoxLayout;
  const QString help = tr(
      "The preferences file that Save and Start write. Type another place to save to before the "
      "first save.");
  auto* const field = controls_.lineEdit(controller_.filename_field, help);
  field->setPlaceholderText(controller_.preferences.prefsURL
                                ? shown(controller_.preferences.prefsURL->path())
                                : QString());
  auto* const label = new QLabel(tr("Preferences fi&le:"));
  label->setBuddy(field);
  field->setAccessibleName(tr("Preferences file"));
  row->addWidget(label);
  row->addWidget(field, 1);
  row->addWidget(controls_.pushButton(
      controller_.copyPrefs, tr("&Copy"),
      tr("Copies the preferences file of your home folder to the place named here, if there is "
         "none yet.")));
  return row;
}

QLayout* SettingsWindow::buttonRow() {
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(controls_.pushButton(controller_.savePrefs, tr("&Save"),
                                      tr("Writes the preferences file.")));
  row->addWidget(controls_.pushButton(controller_.startQuil, tr("S&tart"),
                                      tr("Writes the preferences file and starts Quillon.")));
  row->addWidget(controls_.pushButton(controller_.isQuit, tr("&Quit"),
                                      tr("Ends the program without saving.")));
  return row;
}

void SettingsWindow::buildMenus() {
  const auto add = [this](QMenu* menu, platform::Button& button, const QString& text,
                          const QKeySequence& keys) {
    auto* const entry = new QAction(text, menu);
    entry->setShortcut(keys);
    entry->setEnabled(button.isEnabled());
    connect(entry, &QAction::triggered, this, [this, &button] {
      controls_.edits().endEditing();
      if (button.isEnabled()) {
        button.sendAction();
      }
    });
    menu->addAction(entry);
  };
  QMenu* const file = menuBar()->addMenu(tr("&File"));
  add(file, controller_.savePrefs, tr("&Save"), QKeySequence(Qt::CTRL | Qt::Key_S));
  add(file, controller_.startQuil, tr("S&tart"), QKeySequence(Qt::CTRL | Qt::Key_Return));
  file->addSeparator();
  add(file, controller_.volumes.browseFile, tr("&Add Volume…"), QKeySequence(Qt::CTRL | Qt::Key_O));
  file->addSeparator();
  add(file, controller_.isQuit, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q));

  QMenu* const presets = menuBar()->addMenu(tr("&Presets"));
  for (platform::Button& item : controller_.presets.presetsMenu) {
    QAction* const entry = controls_.menuEntry(item, shown(item.title()), presets);
    entry->setCheckable(true);
    presets->addAction(entry);
  }
}

void SettingsWindow::closeEvent(QCloseEvent* event) {
  if (delegate_.willClose) {
    delegate_.willClose();
  }
  event->accept();
}

}  // namespace desktop
