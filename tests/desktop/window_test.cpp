// The settings window itself: how it reads, marks, help, menus.

#include <QAbstractItemView>
#include <QCheckBox>
#include <QEnterEvent>
#include <QMainWindow>
#include <QProxyStyle>
#include <QTimer>
#include <set>

#include "tests/desktop/description.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/golden.h"
#include "tests/support/model.h"

namespace {

using app::sharedVar;
using Names = std::set<std::string>;

class Window : public tests::WindowTest {
 protected:
  void showScsiTab(bool shown) {
    sharedVar::scsiTabState = shown;
    fake.notifications.post("NotificationID");
  }

  /// Waits until the controls that are marked as changed are these.
  void expectMarked(const Names& wanted) {
    Names marked;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      marked.clear();
      for (const QWidget* const widget : window->findChildren<QWidget*>()) {
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const QWidget* const control = label != nullptr ? label->buddy() : widget;
        if (control != nullptr && widget->font().bold()) {
          marked.insert(control->objectName().toStdString());
        }
      }
      return marked == wanted;
    })) << testing::PrintToString(marked);
    EXPECT_NE(window->isWindowModified(), wanted.empty());
  }
};

/// Does what Breeze 6 does, which deletes any other widget that a main window has as its menu.
class MenuAskingStyle : public QProxyStyle {
 public:
  using QProxyStyle::polish;
  void polish(QWidget* widget) override {
    if (auto* const window = qobject_cast<QMainWindow*>(widget)) {
      window->menuBar();
    }
  }
};

TEST_F(Window, KeepsItsMenusInStylesThatAskForThem) {
  QApplication::setStyle(new MenuAskingStyle);
  open();
  EXPECT_TRUE(menuEntry("S&tart")->isEnabled());
  QApplication::setStyle(QLatin1String("Fusion"));
}

TEST_F(Window, ReadsAsDescribedTabByTab) {
  openFirstPage("disk /a\njit true\n");
  showScsiTab(true);
  menuEntry("System 7.5.3")->trigger();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !text("checksLine").starts_with("Checking"); }));
  tests::Golden golden("windows/settings.txt", fake.home.path());
  golden.expect("Menus", tests::described(*window->findChild<QMenuBar*>()));
  golden.expect("Around the tabs", tests::described(*window, [this](const QWidget* widget) {
                  return !tabs()->currentWidget()->isAncestorOf(widget);
                }));
  for (int tab = 1; tab <= 7; ++tab) {
    press("Alt+" + std::to_string(tab));
    EXPECT_EQ(QApplication::focusWidget(), tabs()->tabBar()) << "Alt and a digit leads there";
    const std::string label = tabs()->tabText(tabs()->currentIndex()).toStdString();
    golden.expect("Tab " + std::to_string(tab) + ": " + label,
                  tests::described(*window, [this](const QWidget* widget) {
                    return tabs()->currentWidget()->isAncestorOf(widget);
                  }));
  }
  showScsiTab(false);
  press("Alt+2");
  press("Alt+7");
  EXPECT_EQ(tabs()->tabText(tabs()->currentIndex()), QLatin1String("Machine"))
      << "there is no seventh tab";
}

TEST_F(Window, MarksWhatASaveWouldChange) {
  open("disk /A\nrom /old\ncpu 2\n");
  expectMarked({});
  typeInto("romFile", "/new");
  click("stateCDROM");
  enter("cpuType");
  press("Down");
  expectMarked({"romFile", "stateCDROM", "cpuType"});
  press("Ctrl+S");
  expectMarked({});
  find<QAbstractItemView>("tableView")->selectAll();
  click("removeVol");
  expectMarked({"tableView"});
  typeInto("screenWidth", "12");
  press("Return");
  expectMarked({"screenType", "screenWidth", "screenHeight", "tableView"});
}

TEST_F(Window, ExplainsWhatHasTheFocusOrThePointer) {
  open();
  const auto expectHelp = [this](const char* name, const char* use, const char* written) {
    EXPECT_EQ(text("helpName"), name);
    EXPECT_EQ(text("helpLine"), use);
    EXPECT_EQ(text("helpFile"), written);
  };
  const auto expectModel = [&] {
    expectHelp("Model",
               "The model that the Macintosh says it is. Mac OS 8 needs the Quadra.\n"
               "If unsure, leave it at \"Macintosh IIci\".",
               "In the file: modelid 5");
  };
  const auto* const general = "Move to a setting to read here what it does.";
  expectHelp("", general, "");
  enter("modelID");
  press("Down");
  expectText("helpFile", "In the file: modelid 14");
  press("Up");
  expectText("helpFile", "In the file: modelid 5");
  expectModel();
  EXPECT_EQ(find("modelID")->toolTip(),
            QLatin1String("<p>The model that the Macintosh says it is.</p>"));
  QEnterEvent enters({}, {}, {});
  QEvent leaves(QEvent::Leave);
  QApplication::sendEvent(find("ramSizeMB"), &enters);
  EXPECT_EQ(text("helpName"), "RAM size (MB)");
  QApplication::sendEvent(find("ramSizeMB"), &leaves);
  expectModel();
  find<QComboBox>("modelID")->showPopup();
  QApplication::sendEvent(find("modelID"), &leaves);
  expectModel();
  find<QComboBox>("modelID")->hidePopup();
  tabs()->tabBar()->setFocus();
  expectHelp("", general, "");
}

TEST_F(Window, ResetsASettingFromItsMenu) {
  open("rom /x\nramsize 8388608\nnocdrom true\n");
  const std::pair<const char*, const char*> defaults[] = {
      {"romFile", "Put the path to your ROM file here"},
      {"ramSizeMB", "64"},
      {"stateCDROM", "off"},
      {"audioOut", "empty"}};
  for (const auto& [control, shownDefault] : defaults) {
    QString entryText;
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [&] {
      if (QWidget* const menu = QApplication::activePopupWidget()) {
        auto* const entry = menu->findChild<QAction*>("resetSetting");
        entryText = entry->text();
        entry->trigger();
        menu->close();
      }
    });
    person.start(5);
    Q_EMIT reach(control)->customContextMenuRequested({});  // returns when the menu is closed
    EXPECT_EQ(entryText, QLatin1String("Reset to Default (%1)").arg(QLatin1String(shownDefault)));
  }
  EXPECT_EQ(find<QComboBox>("ramSizeMB")->currentText(), QLatin1String("64"));
  activate(&*window);
  press("Ctrl+S");
  EXPECT_EQ(file(), tests::Model("").text());
}

TEST_F(Window, SavesToAnotherPlaceUntilTheFirstSave) {
  open("cpu 4\n");
  typeInto("filename_field", fake.home.path("other").c_str());
  click("copyPrefs");
  EXPECT_EQ(fake.home.read("other"), "cpu 4\n");
  press("Ctrl+S");
  EXPECT_EQ(fake.home.read("other"), tests::Model("cpu 4\n").text());
  EXPECT_EQ(file(), "cpu 4\n");
  EXPECT_FALSE(find("filename_field")->isEnabled());
}

TEST_F(Window, ReadsFromTheRightInSuchALanguage) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  open("disk /A\nframeskip 2\n");
  for (const char* const name : {"volumesLabel", "helpLine"}) {
    EXPECT_TRUE(find<QLabel>(name)->alignment().testFlag(Qt::AlignRight)) << name;
  }
  EXPECT_LT(find("findSetting")->mapTo(&*window, QPoint()).x(), window->width() / 2);
  const QString mark(QChar(0x200e));
  EXPECT_EQ(find<QComboBox>("refreshRate")->currentText(), mark + QLatin1String("30 Hz") + mark)
      << "the unit stays behind its number";
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(Window, NothingMovesWhenASettingIsMarked) {
  open();
  for (const char* const name : {"romFile", "audioMix", "etherPort"}) {
    const QRect before = reach(name)->geometry();
    typeInto(name, "/x");
    press("Tab");
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->isWindowModified(); }));
    EXPECT_EQ(find(name)->geometry(), before) << name;
    press("Ctrl+S");
  }
}

}  // namespace
