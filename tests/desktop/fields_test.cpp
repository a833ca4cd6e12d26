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
    window->completePages();
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
    EXPECT_EQ(find<QLineEdit>("romFile")->text().toStdString(), each["shown"]);
    EXPECT_EQ(value(Key::rom), each["shown"]);
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
       {Case{.inFile = "0", .arrow = Qt::Key_Up, .first = "1", .second = "2"},
        Case{.inFile = "0", .arrow = Qt::Key_Down, .first = "1", .second = "1"},
        Case{.inFile = "70000", .arrow = Qt::Key_Up, .first = "65535", .second = "65535"},
        Case{.inFile = "70000", .arrow = Qt::Key_Down, .first = "65535", .second = "65534"}}) {
    SCOPED_TRACE(each.inFile);
    open(std::string("udpport ") + each.inFile + "\n");
    showTab("Network");
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
  for (const auto& [name, key] :
       {std::pair("romFile", Key::rom), std::pair("etherPort", Key::ether)}) {
    showTabOf(find(name));
    find(name)->setFocus();
    press("End");
    type("y");
    press("Tab");
    EXPECT_EQ(value(key), text + "y");
  }
}

TEST_F(Fields, EndBeforeTheirWindowDoes) {
  open();
  window->completePages();
  const auto fields = window->findChildren<QLineEdit*>();
  for (qsizetype number = 0; number < fields.size() + 2; ++number) {
    open();
    window->completePages();
    app::sharedVar::startFlag = app::startCustom;
    if (number >= fields.size()) {
      click(number == fields.size() ? "openPreferences" : "bitCreate");
      QTest::qWait(0);
    }
    QWidget* const widget = number < fields.size() ? window->findChildren<QLineEdit*>().at(number)
                            : number == fields.size() ? find("Quillon")
                                                      : find("createName");
    showTabOf(widget);
    widget->setFocus();
    type("300");
    if (auto* const box = qobject_cast<QComboBox*>(widget->parentWidget())) {
      box->showPopup();
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
    EXPECT_EQ(fake.said(), "") << "field " << number;
  }
}

}  // namespace
