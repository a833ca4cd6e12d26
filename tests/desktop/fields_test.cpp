#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "tests/desktop/window_fixture.h"

namespace {

using document::Key;

class Fields : public tests::WindowTest {};

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

}  // namespace
