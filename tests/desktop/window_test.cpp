// The settings window itself: how it reads, search, marks, help, menus.

#include <QAbstractItemView>
#include <QCheckBox>
#include <QEnterEvent>
#include <QTimer>
#include <set>

#include "app/shared_var.h"
#include "tests/desktop/description.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/golden.h"
#include "tests/support/model.h"

namespace {

using app::sharedVar;
using Names = std::set<std::string>;

constexpr auto control = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;

class Window : public tests::WindowTest {
 protected:
  void tellOfSettings() { fake.notifications.post("NotificationID"); }

  std::string focus() const {
    const QWidget* const widget = QApplication::focusWidget();
    return widget == tabs()->tabBar() ? "tabs" : widget->objectName().toStdString();
  }

  std::string help() const { return find<QLabel>("helpLine")->text().toStdString(); }

  QAction* menuEntry(const char* text) const {
    for (QAction* const entry : window->findChildren<QAction*>()) {
      if (entry->text() == QString::fromUtf8(text)) {
        return entry;
      }
    }
    throw std::logic_error(std::string("no entry ") + text);
  }

  /// The controls that are marked as changed.
  Names marked() const {
    Names names;
    for (const QLabel* const label : window->findChildren<QLabel*>()) {
      if (label->font().bold() && label->buddy() != nullptr) {
        names.insert(label->buddy()->objectName().toStdString());
      }
    }
    for (const QCheckBox* const box : window->findChildren<QCheckBox*>()) {
      if (box->font().bold()) {
        names.insert(box->objectName().toStdString());
      }
    }
    if (window->isWindowModified() == names.empty()) {
      names.insert("the window's title differs");
    }
    return names;
  }

  // The marks follow once the program has nothing else to do.
  void expectMarked(const Names& wanted, const char* why = "") {
    QTest::qWait(10);
    EXPECT_TRUE(QTest::qWaitFor([&] { return marked() == wanted; })) << why;
    EXPECT_EQ(marked(), wanted) << why;
  }
};

TEST_F(Window, ReadsAsDescribedTabByTab) {
  open("disk /a\n");
  sharedVar::scsiTabState = true;
  tellOfSettings();
  const auto* const checks = find<QAbstractButton>("checksLine");
  QTRY_VERIFY2(!checks->text().startsWith(QLatin1String("Checking")), "the files are looked at");
  tests::Golden golden("windows/settings.txt", fake.home.path());
  golden.expect("Menus", tests::described(*window->findChild<QMenuBar*>()));
  golden.expect("Around the tabs", tests::described(*window, [this](const QWidget* widget) {
                  return !tabs()->currentWidget()->isAncestorOf(widget);
                }));
  for (int tab = 0; tab < 7; ++tab) {
    key(Qt::Key_1 + tab, alt);
    EXPECT_EQ(focus(), "tabs") << "Alt and a digit leads there";
    EXPECT_EQ(tests::doubleLetters(*window), "");
    golden.expect("Tab " + std::to_string(tab + 1) + ": " + tabs()->tabText(tab).toStdString(),
                  tests::described(*window, [this](const QWidget* widget) {
                    return tabs()->currentWidget()->isAncestorOf(widget);
                  }));
  }
  sharedVar::scsiTabState = false;
  tellOfSettings();
  key(Qt::Key_2, alt);
  EXPECT_EQ(tabs()->tabText(tabs()->currentIndex()), QLatin1String("Machine"));
  key(Qt::Key_7, alt);
  EXPECT_EQ(tabs()->currentIndex(), 1) << "there is no seventh tab";
}

TEST_F(Window, FindsASettingByItsNameItsKeyAndItsHelp) {
  struct Row {
    const char* typed;
    const char* found;
  };
  for (const auto& [typed, found] :
       std::initializer_list<Row>{{.typed = "RAM size", .found = "ramSizeMB"},
                                  {.typed = "cd-rom DRIVE", .found = "stateCDROM"},
                                  {.typed = "jitcachesize", .found = "jitCache"},
                                  {.typed = "silent", .found = "disableSound"},
                                  {.typed = "the rom of", .found = "romFile"}}) {
    SCOPED_TRACE(typed);
    open();
    key(Qt::Key_F, control);
    EXPECT_EQ(focus(), "findSetting");
    type(typed);
    QTest::qWait(1);
    key(Qt::Key_Return);
    EXPECT_EQ(focus(), found);
    EXPECT_TRUE(find(found)->isVisible());
    const auto* const field = find<QLineEdit>("findSetting");
    EXPECT_TRUE(QTest::qWaitFor([&] { return field->text().isEmpty(); }));
  }
}

TEST_F(Window, MarksWhatASaveWouldChange) {
  open("disk /A\nrom /old\ncpu 2\n");
  window->completePages();
  expectMarked(Names{});
  showTab("Machine");
  typeInto("romFile", "/new");
  click("stateCDROM");
  find("cpuType")->setFocus();
  key(Qt::Key_Down);
  expectMarked(Names{"romFile", "stateCDROM", "cpuType"});
  key(Qt::Key_S, control);
  expectMarked(Names{});
  click("stateCDROM");
  click("stateCDROM");
  expectMarked(Names{}, "put back by hand");
  showTab("Display");
  typeInto("screenWidth", "12");
  key(Qt::Key_Return);
  expectMarked(Names{"screenType", "screenWidth", "screenHeight"}, "parts of one value");
  key(Qt::Key_S, control);
  showTab("Volumes");
  find<QAbstractItemView>("tableView")->selectAll();
  click("removeVol");
  expectMarked(Names{"tableView"});
}

TEST_F(Window, ExplainsWhatHasTheFocusOrThePointer) {
  open();
  window->completePages();
  EXPECT_EQ(help(), "Move to a setting to read here what it does.");
  showTab("Machine");
  find("ramSizeMB")->setFocus();
  EXPECT_EQ(help(), find("ramSizeMB")->whatsThis().toStdString());
  QEnterEvent enter({}, {}, {});
  QApplication::sendEvent(find("cpuType"), &enter);
  EXPECT_EQ(help(), find("cpuType")->whatsThis().toStdString());
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(find("cpuType"), &leave);
  EXPECT_EQ(help(), find("ramSizeMB")->whatsThis().toStdString());
  tabs()->tabBar()->setFocus();
  EXPECT_EQ(help(), "Move to a setting to read here what it does.");
}

TEST_F(Window, ResetsASettingFromItsMenu) {
  open("rom /x\nramsize 8388608\nnocdrom true\n");
  window->completePages();
  const auto reset = [&](const char* name) {
    showTabOf(find(name));
    QString text;
    QTimer::singleShot(20, &*window, [&] {
      auto* const entry = find<QAction>("resetSetting");
      text = entry->text();
      entry->trigger();
      QApplication::activePopupWidget()->close();
    });
    Q_EMIT find(name)->customContextMenuRequested({});
    return text.toStdString();
  };
  EXPECT_EQ(reset("romFile"), "Reset to Default (Put the path to your ROM file here)");
  EXPECT_EQ(reset("ramSizeMB"), "Reset to Default (64)");
  EXPECT_EQ(reset("stateCDROM"), "Reset to Default (off)");
  EXPECT_EQ(reset("cpuType"), "Reset to Default (68030)");
  EXPECT_EQ(reset("audioOut"), "Reset to Default (empty)");
  EXPECT_EQ(find<QComboBox>("ramSizeMB")->currentText(), QLatin1String("64"));
  key(Qt::Key_S, control);
  EXPECT_EQ(file(), tests::Model("").text());
}

TEST_F(Window, KeysDoWhatTheMenusSay) {
  open();
  struct Row {
    Qt::Key letter;           // pressed with Ctrl
    const char* said;         // is part of what is said
    const char* opened = "";  // the window that comes up
  };
  for (const auto& [letter, said, opened] : std::initializer_list<Row>{
           {.letter = Qt::Key_S, .said = "post write prefs test\n"},
           {.letter = Qt::Key_Return, .said = "<launch "},
           {.letter = Qt::Key_N, .said = "create loaded", .opened = "createSheet"},
           {.letter = Qt::Key_Q, .said = "<terminate>\n"},
           {.letter = Qt::Key_Comma, .said = "started", .opened = "preferencesWindow"}}) {
    SCOPED_TRACE(said);
    fake.said();
    key(letter, control);
    QTest::qWait(1);
    EXPECT_NE(fake.said().find(said), std::string::npos);
    QWidget* const top = QApplication::activeWindow();
    if (top != &*window) {
      EXPECT_EQ(top->objectName().toStdString(), opened);
      delete top;
      activate(&*window);
    }
  }
  key(Qt::Key_O, control);
  EXPECT_EQ(fake.panels.shown, "sheet Select a volume");
  menuEntry("System 7.5.3")->trigger();
  EXPECT_TRUE(menuEntry("System 7.5.3")->isChecked());
  EXPECT_FALSE(menuEntry("System 7.6.1")->isChecked());
}

TEST_F(Window, StartIsThereOnlyWhenAPlaceIsChosen) {
  open();
  for (const bool enabled : {false, true}) {
    sharedVar::startState = enabled;
    tellOfSettings();
    fake.said();
    EXPECT_EQ(find("startQuil")->isEnabled(), enabled);
    EXPECT_EQ(menuEntry("S&tart")->isEnabled(), enabled);
    EXPECT_EQ(find("startQuil")->toolTip().contains(QLatin1String("choose where Quillon is")),
              !enabled);
    key(Qt::Key_Return, control);
    EXPECT_EQ(fake.said().find("<launch ") != std::string::npos, enabled);
  }
}

TEST_F(Window, SavesToAnotherPlaceUntilTheFirstSave) {
  open("cpu 4\n");
  typeInto("filename_field", fake.home.path("other").c_str());
  click("copyPrefs");
  EXPECT_EQ(fake.home.read("other"), "cpu 4\n");
  key(Qt::Key_S, control);
  EXPECT_EQ(fake.home.read("other"), tests::Model("cpu 4\n").text());
  EXPECT_EQ(file(), "cpu 4\n");
  EXPECT_FALSE(find("filename_field")->isEnabled());
}

TEST_F(Window, ReadsFromTheRightInSuchALanguage) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  open("disk /A\n");
  for (const char* const name : {"volumesLabel", "helpLine"}) {
    EXPECT_TRUE(find<QLabel>(name)->alignment().testFlag(Qt::AlignRight)) << name;
  }
  EXPECT_LT(find("findSetting")->mapTo(&*window, QPoint()).x(), window->width() / 2);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(Window, ClosingItEndsTheProgramWithoutASave) {
  open("cpu 4\n");
  fake.said();
  window->close();
  EXPECT_EQ(fake.said(), "windowWillClose\n<terminate>\n");
  EXPECT_EQ(file(), "cpu 4\n");
}

}  // namespace
