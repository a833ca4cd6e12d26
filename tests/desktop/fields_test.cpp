#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/desktop/window_fixture.h"

namespace {

using document::Key;

class Fields : public tests::WindowTest {};

TEST_F(Fields, TakeTheFileThatIsDropped) {
  struct Case {
    QList<QUrl> dropped;
    const char* shown;
  };
  const std::vector<Case> cases = {
      {{QUrl::fromLocalFile(QLatin1String("/a b/%20.rom"))}, "/a b/%20.rom"},
      {{QUrl::fromLocalFile(QLatin1String("/a")), QUrl::fromLocalFile(QLatin1String("/b"))},
       "/old"},
      {{QUrl(QLatin1String("https://host/a"))}, "/old"},
      {{QUrl(QLatin1String("file://host/a"))}, "/old"},
      {{QUrl::fromLocalFile(QLatin1String("/a\nramsize 1"))}, "/old"}};
  for (const Case& each : cases) {
    open("rom /old\n");
    window->completePages();
    QMimeData data;
    data.setUrls(each.dropped);
    data.setText(QLatin1String("what file managers add"));
    const auto send = [&](auto event) { QApplication::sendEvent(find("romFile"), &event); };
    const QPoint place(5, 5);
    send(QDragEnterEvent(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier));
    send(QDropEvent(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier));
    EXPECT_EQ(find<QLineEdit>("romFile")->text().toStdString(), each.shown);
    EXPECT_EQ(value(Key::rom), each.shown);
  }
}

TEST_F(Fields, AnArrowLeadsIntoTheRangeFirst) {
  struct Case {
    const char* inFile;
    Qt::Key arrow;
    const char* first;
    const char* second;
  };
  for (const Case& each :
       {Case{"0", Qt::Key_Up, "1", "2"}, Case{"0", Qt::Key_Down, "1", "1"},
        Case{"70000", Qt::Key_Up, "65535", "65535"}, Case{"70000", Qt::Key_Down, "65535", "65534"},
        Case{"6066", Qt::Key_Up, "6067", "6068"}}) {
    SCOPED_TRACE(each.inFile);
    open(std::string("udpport ") + each.inFile + "\n");
    window->completePages();
    showTab("Network");
    EXPECT_EQ(value(Key::udpport), each.inFile);
    find("portUDP")->setFocus();
    key(each.arrow);
    EXPECT_EQ(value(Key::udpport), each.first);
    key(each.arrow);
    EXPECT_EQ(value(Key::udpport), each.second);
  }
}

TEST_F(Fields, KeepTextsOfAnyLength) {
  const std::string text(40000, 'x');
  open("rom " + text + "\nether " + text + "\n");
  window->completePages();
  for (const auto& [tab, name, key] : {std::tuple("Machine", "romFile", Key::rom),
                                       std::tuple("Network", "etherPort", Key::ether)}) {
    showTab(tab);
    find(name)->setFocus();
    WindowTest::key(Qt::Key_End);
    type("y");
    WindowTest::key(Qt::Key_Tab);
    EXPECT_EQ(value(key), text + "y");
  }
}

TEST_F(Fields, EndBeforeTheirWindowDoes) {
  struct Field {
    const char* tab;
    const char* name;
    const char* opener;  // of the window that has it; "" for the settings window
  };
  const std::vector<Field> fields = {{"Machine", "romFile", ""},
                                     {"Machine", "ramSizeMB", ""},
                                     {"Display", "screenWidth", ""},
                                     {"Display", "screenHeight", ""},
                                     {"Sound & Input", "audioOut", ""},
                                     {"Sound & Input", "audioMix", ""},
                                     {"Network", "modemPort", ""},
                                     {"Network", "printerPort", ""},
                                     {"Network", "etherPort", ""},
                                     {"JIT", "jitCache", ""},
                                     {"Volumes", "unixRootPath", ""},
                                     {"Volumes", "filename_field", ""},
                                     {"Volumes", "findSetting", ""},
                                     {"Volumes", "Quillon", "openPreferences"},
                                     {"Volumes", "createName", "bitCreate"}};
  for (const Field& field : fields) {
    for (const bool closes : {false, true}) {
      SCOPED_TRACE(field.name);
      open();
      window->completePages();
      showTab(field.tab);
      app::sharedVar::pathToQuil = "/Quillon.app";
      app::sharedVar::startFlag = app::startCustom;
      if (*field.opener != '\0') {
        click(field.opener);
        QTest::qWait(0);
      }
      typeInto(field.name, "300");
      QWidget* const widget = find(field.name);
      auto* const box = qobject_cast<QComboBox*>(widget);
      if (box != nullptr && closes) {
        box->showPopup();
      } else if (closes) {
        window->close();
      }
      fake.said();
      // Some platforms take the focus from a widget only when it is being deleted.
      QWidget* const first = window->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
      QObject::connect(first, &QObject::destroyed, [widget = QPointer<QWidget>(widget)] {
        QFocusEvent leaves(QEvent::FocusOut, Qt::OtherFocusReason);
        if (widget != nullptr) {
          QApplication::sendEvent(widget, &leaves);
        }
      });
      window.reset();
      EXPECT_EQ(fake.said(), "");
    }
  }
}

}  // namespace
