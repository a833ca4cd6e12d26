#include "desktop/settings_window.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "desktop/icons.h"
#include "desktop/lead_to.h"
#include "desktop/pages.h"
#include "desktop/pictures.h"
#include "desktop/texts.h"
#include "desktop/volume_view.h"

namespace desktop {
namespace {

// To Qt only a QMainWindow is a window for screen readers.
QAccessibleInterface* makeWindow(const QString& /*className*/, QObject* object) {
  auto* const window = qobject_cast<SettingsWindow*>(object);
  return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

}  // namespace

SettingsWindow::SettingsWindow(editor::ViewController& controller, const platform::Host& host,
                               Edits& edits, FactsSource facts)
    : controller_(controller),
      host_(host),
      memory_(toQString(host.configHome)),
      controls_(edits),
      opened_(controller, host, edits, this),
      tabs_(new QTabWidget),
      help_(new HelpPane(settingWidgets_)),
      stored_(memory_) {
  setObjectName(QLatin1String("settingsWindow"));
  setWindowTitle(tr("Quillon Settings") + QLatin1String("[*]"));
  tabs_->setObjectName(toQString(controller.tabs.tabViewC.name()));
  tabs_->setAccessibleName(tr("Settings"));
  guardWheel(tabs_->tabBar());

  QAccessible::installFactory(makeWindow);  // once, however often it is asked to
  auto* const layout = new QVBoxLayout(this);
  layout->setMenuBar(topRow());  // made first: the Tab key goes through widgets as they were made
  layout->addWidget(tabs_, 1);
  layout->addWidget(help_);
  makePages();
  buildShortcuts();
  layout->addLayout(fileRow());
  auto* const checksLine = new ChecksLine;
  layout->addWidget(checksLine, 0, Qt::AlignLeft);
  layout->addLayout(buttonRow());
  help_->follow(this);
  fillPage(editor::TabId::volumes);
  guardStart();
  // The action stays with the controller, which may outlive this window.
  controller.bitCreate.action = [window = QPointer(this)] {
    if (window) {
      window->opened_.openCreation();
    }
  };
  checks_.emplace(controller, std::move(facts), checkedWindow(checksLine));
  tabsShown_ = controller.tabs.tabViewC.attach([this] { showTabs(); });
  restore();
  connect(tabs_, &QTabWidget::currentChanged, this, &SettingsWindow::completePages);
  followState();
  controller.viewWillAppear(delegate_);
  tabs_->setFocus();
}

SettingsWindow::~SettingsWindow() {
  delete help_;  // refers to members, which end before the widgets do
  // A window that was never painted lacks pages. Its size and tab, which nobody chose, would
  // replace those that are stored.
  if (!pagesComplete_) {
    return;
  }
  remember();
  if (memory_ != stored_) {
    memory_.store();
  }
}

// Before the first paint, since the window system would show how it changes.
void SettingsWindow::restore() {
  // The size goes by the font and by how high the style makes fields. A tenth of the screen is left
  // for title bar and panels.
  const int line = fontMetrics().lineSpacing();
  const int field = fileField_->sizeHint().height();
  const QSize room = (screen()->availableSize() * 9 / 10).expandedTo({640, 480});
  resize(QSize(52 * line, 18 * line + 14 * field).boundedTo(room));
  restoreGeometry(memory_.geometry);
  const auto& items = controller_.tabs.tabViewC.items();
  const auto shown = std::find_if(items.begin(), items.end(), [this](const auto& item) {
    return toQString(item->identifier) == memory_.tab;
  });
  if (shown != items.end() && shown != items.begin()) {
    fillPage(controller_.tabs.idOf(**shown));
    tabs_->setCurrentIndex(static_cast<int>(shown - items.begin()));
  }
}

void SettingsWindow::remember() {
  memory_.geometry = saveGeometry();
  const auto& items = controller_.tabs.tabViewC.items();
  memory_.tab = toQString(items.at(static_cast<std::size_t>(tabs_->currentIndex()))->identifier);
}

void SettingsWindow::followState() {
  changeMarks_.emplace(controller_,
                       ChangeMarks::Marked{this, settingWidgets_, volumesLabel_, unsaved_});
  watch_.emplace(controller_);
  connect(&*watch_, &StateWatch::changed, this, [this] {
    changeMarks_->update();
    checks_->refresh();
    help_->refresh();
  });
  connect(&*checks_, &ChecksView::changed, this, [this] { changeMarks_->update(); });
}

// Empty, since only one is seen at first. Each is a child of the window from here on, even when its
// tab is not shown.
void SettingsWindow::makePages() {
  for (QWidget*& page : pages_) {
    page = new QWidget(tabs_);
    page->hide();  // or one that is no tab would be shown over the others
  }
}

void SettingsWindow::fillPage(editor::TabId id) {
  QWidget* const page =
      makePage(id, {controls_, settingWidgets_, volumesLabel_, controller_, host_.bundle});
  auto* const area = new QScrollArea;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(page);
  auto* const layout = new QVBoxLayout(pages_[indexOf(id)]);
  layout->setContentsMargins(QMargins());
  layout->addWidget(area);
  // Qt puts a widget that is made later behind all others in the order of the Tab key. Only one
  // page is shown at a time, so that each can begin right behind the tab bar.
  QWidget* before = tabs_->tabBar();
  for (QWidget* const widget : page->findChildren<QWidget*>()) {
    // The line edit in a combo box gets the focus from that, and its list is another window.
    if (widget->window() == this && widget->focusPolicy() != Qt::NoFocus &&
        widget->parentWidget()->focusPolicy() == Qt::NoFocus) {
      setTabOrder(before, widget);
      before = widget;
    }
  }
  help_->follow(page);
}

// X11, and Wayland without an installed desktop entry, take the icon from the program. It is set
// after the first paint, since reading the pictures takes time.
void SettingsWindow::showIcon() const {
  QIcon icon;
  for (const char* const size : {"16", "32", "64", "128"}) {
    addPicture(icon, toQString(host_.bundle.resource(std::string("icons/quillon-settings-") + size +
                                                     ".png")));
  }
  QApplication::setWindowIcon(icon);
}

void SettingsWindow::completePages() {
  if (std::exchange(pagesComplete_, true)) {
    return;
  }
  for (std::size_t index = 0; index < pages_.size(); ++index) {
    if (pages_[index]->layout() == nullptr) {
      fillPage(static_cast<editor::TabId>(index));
    }
  }
  requireEverySetting(settingWidgets_);
  if (changeMarks_) {
    changeMarks_->update();
  }
}

// A person sees one page first. The others are made, and files are looked at, once it is on the
// screen: the X server and the compositor need the processor for that, after this has returned.
void SettingsWindow::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  constexpr std::chrono::milliseconds untilShown(5);
  if (!std::exchange(painted_, true)) {
    QTimer::singleShot(untilShown, this, [this] {
      completePages();
      showIcon();
      checks_->start();
      remember();
      stored_ = memory_;
    });
  }
}

void SettingsWindow::showTabs() {
  const QWidget* const current = tabs_->currentWidget();
  const auto& items = controller_.tabs.tabViewC.items();
  tabs_->setUpdatesEnabled(false);
  tabs_->clear();
  for (const auto& item : items) {
    const QString label =
        translatedItem(item->label).replace(QLatin1Char('&'), QLatin1String("&&"));
    tabs_->addTab(pages_.at(indexOf(controller_.tabs.idOf(*item))), label);
  }
  tabs_->setCurrentIndex(std::max(0, tabs_->indexOf(const_cast<QWidget*>(current))));
  checks_->markTabs();
  tabs_->setUpdatesEnabled(true);
}

QLayout* SettingsWindow::fileRow() {
  auto* const row = new QHBoxLayout;
  const QString help =
      tr("The preferences file that Save and Start write. Type another place to save to before the "
         "first save.");
  auto* const field = controls_.pathField(controller_.filename_field, help);
  fileField_ = field;
  field->setPlaceholderText(controller_.preferences.prefsURL
                                ? toQString(controller_.preferences.prefsURL->path())
                                : QString());
  auto* const label = new QLabel(tr("Preferences fi&le:"));
  label->setBuddy(field);
  field->setAccessibleName(tr("Preferences file"));
  row->addWidget(label);
  row->addWidget(field, 1);
  row->addWidget(controls_.pushButton(
      controller_.copyPrefs, tr("&Copy"),
      tr("Copies the preferences file of your home folder to the place named here, if there is "
         "none yet."),
      "edit-copy"));
  return row;
}

QLayout* SettingsWindow::buttonRow() {
  auto* const row = new QHBoxLayout;
  auto* const preferences = new QPushButton(tr("Prefere&nces…"));
  preferencesButton_ = preferences;
  giveIcon(preferences, "preferences-system");
  preferences->setObjectName(QLatin1String("openPreferences"));
  preferences->setToolTip(tr("Where Quillon is, and how this program behaves."));
  connect(preferences, &QPushButton::clicked, this, [this] { opened_.openPreferences(); });
  QPushButton* const start =
      controls_.pushButton(controller_.startQuil, tr("S&tart"), QString(), "media-playback-start");
  startShown_ = controller_.startQuil.attach([this, start] { showStart(start); });
  unsaved_ = new UnsavedBar(controller_, controls_.edits());
  row->addWidget(preferences);
  row->addWidget(unsaved_, 1);
  row->addWidget(controls_.pushButton(controller_.savePrefs, tr("&Save"),
                                      tr("Writes the preferences file."), "document-save"));
  row->addWidget(start);
  row->addWidget(controls_.pushButton(controller_.isQuit, tr("&Quit"),
                                      tr("Ends the program without saving."), "application-exit"));
  return row;
}

ChecksView::Window SettingsWindow::checkedWindow(ChecksLine* line) {
  const auto showLocation = [this] { return opened_.openPreferences()->location(); };
  return {this,
          line,
          tabs_,
          settingWidgets_,
          fileField_,
          findChild<VolumeView*>(),
          preferencesButton_,
          showLocation};
}

void SettingsWindow::showStart(QPushButton* button) {
  const bool enabled = controller_.startQuil.isEnabled();
  const QString help =
      enabled ? tr("Writes the preferences file and starts Quillon.")
              : tr("Start is disabled: choose where Quillon is in Edit > Preferences.");
  button->setEnabled(enabled);
  menus_->setStartEnabled(enabled);
  describe(button, controller_.startQuil, help);
}

// A double click would start two emulators, which ruin the disk images that both write to. The time
// counts from the end of a start: what was pressed during a slow save comes right after it.
void SettingsWindow::guardStart() {
  constexpr qint64 pause = 2000;  // milliseconds in which another start does nothing
  controller_.startQuil.action = [sinceLast = QElapsedTimer(),
                                  start = controller_.startQuil.action]() mutable {
    if (!sinceLast.isValid() || sinceLast.hasExpired(pause)) {
      start();
      sinceLast.start();
    }
  };
}

// The search field stands beside the menu bar and is no corner widget of it: QMenuBar hides itself,
// with its corner widgets, on desktops that show the menus elsewhere.
QWidget* SettingsWindow::topRow() {
  auto* const row = new QWidget;
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 3, 0, 0);
  layout->setSpacing(0);
  menus_ = new Menus(
      controller_, controls_,
      {[this] { opened_.openPreview(); }, [this] { opened_.openPreferences(); },
       [this] { resetPage(); }, [this] { opened_.openDiagnostics(); },
       [this] { opened_.openAgreement(); }, [this] { tellAbout(); }, [this] { startSearch(); }});
  layout->addWidget(menus_, 0, Qt::AlignVCenter);
  layout->addStretch();
  find_ = new FindField([this] { return searchable(); });
  layout->addWidget(find_);
  // A spacing changes sides with the reading direction; a contents margin does not.
  layout->addSpacing(style()->pixelMetric(QStyle::PM_LayoutRightMargin));
  return row;
}

void SettingsWindow::buildShortcuts() {
  for (int number = 1; number <= static_cast<int>(pages_.size()); ++number) {
    auto* const shortcut = new QShortcut(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number), this);
    connect(shortcut, &QShortcut::activated, this, [this, number] {
      if (number <= tabs_->count()) {
        tabs_->setCurrentIndex(number - 1);
        tabs_->tabBar()->setFocus(Qt::ShortcutFocusReason);
      }
    });
  }
}

void SettingsWindow::startSearch() {
  find_->setFocus(Qt::ShortcutFocusReason);
  find_->selectAll();
}

SearchIndex SettingsWindow::searchable() {
  completePages();
  if (!searchPlaces_) {
    const auto openedPreferences = [this] { return opened_.openPreferences(); };
    searchPlaces_.emplace(SearchPlaces::Window{
        *tabs_, settingWidgets_, *help_, *findChild<VolumeView*>(),
        *findChild<QWidget*>(toQString(controller_.tabs.scsiID0.name())), openedPreferences});
  }
  return searchPlaces_->collect();
}

// One edit a setting; the screen has three places on its page.
void SettingsWindow::resetPage() {
  controls_.edits().endEditing();
  for (const SettingWidget& place : settingWidgets_) {
    if (tabOf(*tabs_, place.widget) == tabs_->currentIndex() && !place.setting->isDefault()) {
      place.setting->reset();
    }
  }
}

void SettingsWindow::tellAbout() {
  QMessageBox::about(this, tr("About Quillon Settings"),
                     tr("<p><b>Quillon Settings %1</b></p>"
                        "<p>Sets up Quillon, an emulator of 68k Macintosh computers, and starts "
                        "it.</p>")
                         .arg(QApplication::applicationVersion()));
}

void SettingsWindow::closeEvent(QCloseEvent* event) {
  if (delegate_.willClose) {
    delegate_.willClose();
  }
  event->accept();
}

}  // namespace desktop
