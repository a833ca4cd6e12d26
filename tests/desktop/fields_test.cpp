#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"

namespace {

using document::Key;

class Fields : public tests::WindowTest {};

TEST_F(Fields, TakeTheFileThatIsDropped) {
  for (const tests::Case& each : tests::cases("dropped.txt", {"url", "shown"})) {
    open("rom /old\n");
    QList<QUrl> urls;
    for (const std::string& url : each.all("url")) {
      urls.append(QUrl(QString::fromStdString(url)));
    }
    QMimeData data;
    data.setUrls(urls);
    data.setText(QLatin1String("what file managers add"));
    QDragEnterEvent enter({5, 5}, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop({5, 5}, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(find("romFile"), &enter);
    QApplication::sendEvent(find("romFile"), &drop);
    EXPECT_EQ(text("romFile"), each["shown"]);
    EXPECT_EQ(value(Key::rom), each["shown"]);
  }
}

TEST_F(Fields, AnArrowLeadsIntoTheRangeFirst) {
  struct Case {
    const char* inFile;
    const char* arrow;
    const char* first;
    const char* second;
  };
  for (const Case& each :
       {Case{.inFile = "0", .arrow = "Up", .first = "1", .second = "2"},
        Case{.inFile = "0", .arrow = "Down", .first = "1", .second = "1"},
        Case{.inFile = "70000", .arrow = "Up", .first = "65535", .second = "65535"},
        Case{.inFile = "70000", .arrow = "Down", .first = "65535", .second = "65534"}}) {
    SCOPED_TRACE(each.inFile);
    open(std::string("udpport ") + each.inFile + "\n");
    enter("portUDP");
    type("7");
    EXPECT_EQ(text("portUDP"), each.inFile) << "it is not for typing";
    press(each.arrow);
    EXPECT_EQ(value(Key::udpport), each.first);
    press(each.arrow);
    EXPECT_EQ(value(Key::udpport), each.second);
  }
}

TEST_F(Fields, KeepTextsOfAnyLength) {
  const std::string text(40000, 'x');
  open("rom " + text + "\nether " + text + "\n");
  for (const auto& [name, key] :
       {std::pair("romFile", Key::rom), std::pair("etherPort", Key::ether)}) {
    enter(name);
    press("End");
    type("y");
    press("Tab");
    EXPECT_EQ(value(key), text + "y");
  }
}

TEST_F(Fields, EndBeforeTheirWindowDoes) {
  using Place = std::pair<const char*, const char*>;  // a field, and what opens its window
  for (const auto& [field, opener] :
       {Place("romFile", ""), Place("ramSizeMB", ""), Place("portUDP", ""),
        Place("findSetting", ""), Place("filename_field", ""), Place("Quillon", "openPreferences"),
        Place("createName", "bitCreate")}) {
    open();
    app::sharedVar::startFlag = app::startCustom;
    if (*opener != '\0') {
      openBy(opener);
    }
    const QPointer<QWidget> widget = enter(field);
    type("300");
    if (auto* const box = qobject_cast<QComboBox*>(widget)) {
      box->showPopup();
    }
    fake.said();
    // Some platforms take the focus from a widget only when it is being deleted.
    QWidget* const first = window->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QObject::connect(first, &QObject::destroyed, [widget] {
      QFocusEvent leaves(QEvent::FocusOut, Qt::OtherFocusReason);
      if (widget != nullptr) {
        QApplication::sendEvent(widget, &leaves);
      }
    });
    window.reset();
    EXPECT_EQ(fake.said(), "") << field;
  }
}

}  // namespace
