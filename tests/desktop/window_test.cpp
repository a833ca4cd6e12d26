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

  std::string helpOf(const char* name) const { return find(name)->whatsThis().toStdString(); }
  std::string help() const {
    QString help = find<QLabel>("helpLine")->text();
    help += QLatin1Char(' ');
    help += find<QLabel>("helpFile")->text();
    return help.trimmed().replace(QLatin1Char('\n'), QLatin1Char(' ')).toStdString();
  }

  QAction* menuEntry(const char* text) const {
    const auto entries = window->findChildren<QAction*>();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const QAction* entry) {
      return entry->text() == QString::fromUtf8(text);
    });
    return found != entries.end() ? *found : throw std::logic_error(text);
  }

  /// The controls that are marked as changed.
  Names marked() const {
    Names names;
    for (const QWidget* const widget : window->findChildren<QWidget*>()) {
      const auto* const label = qobject_cast<const QLabel*>(widget);
      const QWidget* const marks = label != nullptr ? label->buddy() : widget;
      const bool canMark = label != nullptr || qobject_cast<const QCheckBox*>(widget) != nullptr;
      if (canMark && marks != nullptr && widget->font().bold()) {
        names.insert(marks->objectName().toStdString());
      }
    }
    return names;
  }

  // The marks follow once the program has nothing else to do.
  void expectMarked(const Names& wanted) {
    QTest::qWait(10);
    (void)QTest::qWaitFor([&] { return marked() == wanted; });
    EXPECT_EQ(marked(), wanted);
    EXPECT_NE(window->isWindowModified(), wanted.empty());
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
    EXPECT_EQ(tests::doubleLetters(tests::reachedByLetter(*window)), "");
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

TEST_F(Window, MarksWhatASaveWouldChange) {
  open("disk /A\nrom /old\ncpu 2\n");
  window->completePages();
  expectMarked({});
  showTab("Machine");
  typeInto("romFile", "/new");
  click("stateCDROM");
  find("cpuType")->setFocus();
  key(Qt::Key_Down);
  expectMarked({"romFile", "stateCDROM", "cpuType"});
  key(Qt::Key_S, control);
  expectMarked({});
  click("stateCDROM");
  click("stateCDROM");
  expectMarked({});
  showTab("Display");
  typeInto("screenWidth", "12");
  key(Qt::Key_Return);
  expectMarked({"screenType", "screenWidth", "screenHeight"});
  key(Qt::Key_S, control);
  showTab("Volumes");
  find<QAbstractItemView>("tableView")->selectAll();
  click("removeVol");
  expectMarked({"tableView"});
}

TEST_F(Window, ExplainsWhatHasTheFocusOrThePointer) {
  open();
  window->completePages();
  const std::string general = "Move to a setting to read here what it does.";
  EXPECT_EQ(help(), general);
  showTab("Machine");
  find("ramSizeMB")->setFocus();
  EXPECT_EQ(help(), helpOf("ramSizeMB"));
  QEnterEvent enter({}, {}, {});
  QApplication::sendEvent(find("cpuType"), &enter);
  EXPECT_EQ(help(), helpOf("cpuType"));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(find("cpuType"), &leave);
  EXPECT_EQ(help(), helpOf("ramSizeMB"));
  tabs()->tabBar()->setFocus();
  EXPECT_EQ(help(), general);
}

TEST_F(Window, ResetsASettingFromItsMenu) {
  open("rom /x\nramsize 8388608\nnocdrom true\n");
  window->completePages();
  const auto expectReset = [&](const char* name, const char* shownDefault) {
    showTabOf(find(name));
    QString text;
    QTimer::singleShot(20, &*window, [&] {
      auto* const entry = find<QAction>("resetSetting");
      text = entry->text();
      entry->trigger();
      QApplication::activePopupWidget()->close();
    });
    Q_EMIT find(name)->customContextMenuRequested({});
    EXPECT_EQ(text, QLatin1String("Reset to Default (%1)").arg(QLatin1String(shownDefault)));
  };
  expectReset("romFile", "Put the path to your ROM file here");
  expectReset("ramSizeMB", "64");
  expectReset("stateCDROM", "off");
  expectReset("cpuType", "68030");
  expectReset("audioOut", "empty");
  EXPECT_EQ(find<QComboBox>("ramSizeMB")->currentText(), QLatin1String("64"));
  key(Qt::Key_S, control);
  EXPECT_EQ(file(), tests::Model("").text());
}

TEST_F(Window, KeysDoWhatTheMenusSay) {
  open();
  struct Row {
    Qt::Key letter;  // pressed with Ctrl
    const char* opened;
    const char* said;  // is part of what is said
  };
  for (const Row& row :
       {Row{.letter = Qt::Key_S, .opened = "settingsWindow", .said = "post write prefs test\n"},
        Row{.letter = Qt::Key_Return, .opened = "settingsWindow", .said = "<launch "},
        Row{.letter = Qt::Key_N, .opened = "createSheet", .said = "create loaded"},
        Row{.letter = Qt::Key_Q, .opened = "settingsWindow", .said = "<terminate>\n"},
        Row{.letter = Qt::Key_Comma, .opened = "preferencesWindow", .said = "started"}}) {
    fake.said();
    key(row.letter, control);
    QTest::qWait(1);
    EXPECT_NE(fake.said().find(row.said), std::string::npos) << row.said;
    QWidget* const top = QApplication::activeWindow();
    EXPECT_EQ(top->objectName(), QLatin1String(row.opened));
    if (top != &*window) {
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
    EXPECT_NE(find("startQuil")->toolTip().contains(QLatin1String("choose where")), enabled);
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
