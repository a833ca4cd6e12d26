#include <QProcess>
#include <QTableView>
#include <QTimer>

#include "tests/desktop/window_fixture.h"

namespace {

constexpr auto alt = Qt::AltModifier;
constexpr auto control = Qt::ControlModifier;

class Volumes : public tests::WindowTest {
 protected:
  void openDisks(const std::vector<std::string>& paths) {
    std::string text;
    for (const std::string& path : paths) {
      text += "disk " + path + "\n";
    }
    open(text);
    table = find<QTableView>("tableView");
    table->setFocus();
  }

  /// The names as shown, a letter each.
  std::string order() const {
    std::string letters;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      letters += cell(row, 0).back();
    }
    return letters;
  }
  std::string cell(int row, int column, int role = Qt::DisplayRole) const {
    return table->model()->index(row, column).data(role).toString().toStdString();
  }

  QRect placeOf(int row) const { return table->visualRect(table->model()->index(row, 0)); }

  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, placeOf(row).center());
  }

  /// Drags the selected rows by the one to the upper or lower half of another and lets go.
  void drag(int row, int target, bool below) {
    QWindow* const screen = window->windowHandle();
    const auto at = [&](QPoint place) { return table->viewport()->mapTo(&*window, place); };
    const QPoint start = at(placeOf(row).center());
    const QRect rect = placeOf(target);
    const QPoint end = at({rect.center().x(), below ? rect.bottom() - 1 : rect.top() + 1});
    QTest::mousePress(screen, Qt::LeftButton, {}, start);
    QTest::mouseMove(screen, start + QPoint(4, 0));
    QTimer::singleShot(30, &*window, [&] {
      QTest::mouseMove(screen, end + QPoint(3, 0));
      QTest::mouseMove(screen, end);
      QTest::mouseRelease(screen, Qt::LeftButton, {}, end);
    });
    QTest::mouseMove(screen, start + QPoint(40, 0));  // returns when the drag has ended
    QTest::qWait(20);
  }

  QTableView* table = nullptr;
};

TEST_F(Volumes, KeysRemoveMoveAndAdd) {
  openDisks({"/A", "/B", "/C", "/D"});
  clickRow(1);
  key(Qt::Key_Down, alt);
  EXPECT_EQ(order(), "ACBD");
  key(Qt::Key_Down, alt);
  key(Qt::Key_Down, alt);
  EXPECT_EQ(order(), "ACDB");
  key(Qt::Key_Up, Qt::ShiftModifier);
  key(Qt::Key_Up, alt);
  EXPECT_EQ(order(), "ADBC");
  key(Qt::Key_Delete);  // D was selected last
  EXPECT_EQ(order(), "ABC");
  key(Qt::Key_Delete);
  EXPECT_EQ(order(), "AC");
  fake.panels.answers = {{platform::Location::fromPath("/E"), platform::Location::fromPath("/F")},
                         {platform::Location::fromPath("/E")}};
  key(Qt::Key_Insert);
  EXPECT_EQ(order(), "ACEF");
  key(Qt::Key_O, control);
  EXPECT_EQ(order(), "ACEFE");
  clickRow(4);
  click("removeVol");  // the first of two equal ones
  EXPECT_EQ(order(), "ACFE");
  key(Qt::Key_S, control);
  EXPECT_EQ(fake.home.read(tests::FakeHost::prefs).substr(0, 34),
            "disk /A\ndisk /C\ndisk /F\ndisk /E\nex");
}

TEST_F(Volumes, TheRowSelectedLastIsTheOneRemoved) {
  openDisks({"/A", "/B", "/C", "/D", "/E"});
  clickRow(3);
  clickRow(0, control);
  clickRow(2, control);
  clickRow(2, control);  // no longer
  click("removeVol");
  EXPECT_EQ(order(), "BCDE");
  clickRow(3);
  clickRow(1, Qt::ShiftModifier);
  click("removeVol");
  EXPECT_EQ(order(), "BDE");
  table->clearSelection();
  click("removeVol");
  EXPECT_EQ(order(), "BDE");
}

// The platform without a screen begins drags and ends them at once; the smallest one there is
// carries them out.
TEST_F(Volumes, RowsAreDraggedBetweenRows) {
  constexpr const char* platform = "minimal";
  if (QGuiApplication::platformName() != QLatin1String(platform)) {
    QProcess self;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QLatin1String("QT_QPA_PLATFORM"), QLatin1String(platform));
    self.setProcessEnvironment(variables);
    self.start(QCoreApplication::applicationFilePath(),
               {QLatin1String("--gtest_filter=Volumes.RowsAreDraggedBetweenRows")});
    ASSERT_TRUE(self.waitForFinished());
    EXPECT_EQ(self.exitCode(), 0) << self.readAllStandardOutput().toStdString();
    return;
  }
  struct Row {
    std::vector<int> selected;  // in the order of clicks
    int target;
    bool below;
    const char* order;
  };
  const std::vector<Row> rows = {
      {{0}, 3, false, "BCADE"},    {{4}, 0, false, "EABCD"},       {{0, 2}, 4, false, "BDACE"},
      {{2, 0}, 4, false, "BDACE"}, {{4, 3}, 0, true, "ADEBC"},     {{1, 3}, 0, true, "ABDCE"},
      {{0, 2}, 1, false, "ACBDE"}, {{1, 4, 2}, 0, false, "BCEAD"}, {{0}, 4, true, "BCDEA"},
      {{2}, 2, true, "ABCDE"},     {{3, 4}, 3, false, "ABCDE"}};
  for (const Row& row : rows) {
    openDisks({"/A", "/B", "/C", "/D", "/E"});
    std::string trace;
    for (const int selected : row.selected) {
      clickRow(selected, trace.empty() ? Qt::NoModifier : control);
      trace += std::to_string(selected) + " ";
    }
    SCOPED_TRACE(trace + (row.below ? "below " : "above ") + std::to_string(row.target));
    drag(row.selected.back(), row.target, row.below);
    EXPECT_EQ(order(), row.order);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(),
              static_cast<qsizetype>(row.selected.size()));
  }
}

TEST_F(Volumes, AReloadAsksForVisibleCellsOnly) {
  openDisks(std::vector<std::string>(1000, "/no/such.dsk"));
  const auto asked = [&] {
    QTest::qWait(10);
    return QString::fromStdString(fake.said()).count(QLatin1String("loCalmode"));
  };
  const int visible = 3 * (table->viewport()->height() / table->rowHeight(0) + 2);
  EXPECT_LE(asked(), visible);
  click("ronMode");
  const auto again = asked();
  EXPECT_GT(again, 3);
  EXPECT_LE(again, visible);
  table->scrollToBottom();
  EXPECT_LE(asked(), visible);
}

}  // namespace
