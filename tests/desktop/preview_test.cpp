#include <QAction>
#include <QPlainTextEdit>

#include "tests/desktop/window_fixture.h"

namespace {

class Preview : public tests::WindowTest {
 protected:
  QStringList lines(const char* pane) const {
    return find<QPlainTextEdit>(pane)->toPlainText().split(QLatin1Char('\n'));
  }
};

TEST_F(Preview, ShowsWhatASaveWouldDoAndWritesNothing) {
  const std::string text = "# mine\nramsize 8388608\ncpu 3\n";
  open(text);
  showTab("Machine");
  typeInto("romFile", "/typed/<b>just now");
  find<QAction>("previewFile")->trigger();
  EXPECT_EQ(lines("previewNow"), QStringList({"- # mine", "  ramsize 8388608", "  cpu 3"}));
  EXPECT_TRUE(lines("previewAfter").contains("+ rom /typed/<b>just now"));
  EXPECT_TRUE(lines("previewAfter").contains("  ramsize 8388608"));
  EXPECT_EQ(file(), text);
}

}  // namespace
