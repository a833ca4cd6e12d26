#include <QDropEvent>
#include <QMimeData>
#include <QTableView>
#include <QTimer>
#include <sstream>

#include "tests/desktop/window_fixture.h"

namespace {

constexpr auto alt = Qt::AltModifier;
constexpr auto control = Qt::ControlModifier;

class Volumes : public tests::WindowTest {
 protected:
  void openDisks(const std::string& letters) {
    std::string text;
    for (const char letter : letters) {
      text += std::string("disk /") + letter + "\n";
    }
    open(text);
    table = find<QTableView>("tableView");
    table->setFocus();
  }

  /// The names as shown, a letter each.
  std::string order() const {
    std::string letters;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      letters += table->model()->index(row, 0).data().toString().back().toLatin1();
    }
    return letters;
  }

  QRect placeOf(int row) const { return table->visualRect(table->model()->index(row, 0)); }

  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, placeOf(row).center());
  }

  /// Drags the selected rows by the one to the upper or lower edge of another, or onto it, and lets
  /// go.
  void drag(int row, int target, const std::string& place) {
    QWindow* const screen = window->windowHandle();
    const auto at = [&](QPoint point) { return table->viewport()->mapTo(&*window, point); };
    const QPoint start = at(placeOf(row).center());
    const QRect rect = placeOf(target);
    const int edge = place == "below" ? rect.bottom() - 1 : rect.top() + 1;
    const QPoint end = at({rect.center().x(), place == "on" ? rect.center().y() : edge});
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

TEST_F(Volumes, KeysAndClicks) {
  openDisks("ABCD");
  const auto location = [](const char* path) { return platform::Location::fromPath(path); };
  fake.panels.answers = {{location("/E"), location("/F")}, {location("/E")}};
  struct Row {
    std::function<void()> act;
    const char* order;
  };
  const std::vector<Row> rows = {
      {[&] { clickRow(1), key(Qt::Key_Down, alt); }, "ACBD"},
      {[&] { key(Qt::Key_Down, alt), key(Qt::Key_Down, alt); }, "ACDB"},
      {[&] { key(Qt::Key_Up, Qt::ShiftModifier), key(Qt::Key_Up, alt); }, "ADBC"},
      {[&] { key(Qt::Key_Delete); }, "ABC"},  // D was selected last
      {[&] { key(Qt::Key_Delete); }, "AC"},
      {[&] { key(Qt::Key_Insert); }, "ACEF"},
      {[&] { key(Qt::Key_O, control); }, "ACEFE"},
      {[&] { clickRow(4), click("removeVol"); }, "ACFE"},  // the first of two equal ones
      {[&] { clickRow(3), clickRow(0, control), clickRow(2, control), clickRow(2, control); },
       "ACFE"},
      {[&] { click("removeVol"); }, "CFE"},  // the one before is no longer selected
      {[&] { clickRow(2), clickRow(1, Qt::ShiftModifier), click("removeVol"); }, "CE"},
      {[&] { table->clearSelection(), click("removeVol"); }, "CE"}};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    rows[row].act();
    EXPECT_EQ(order(), rows[row].order) << "row " << row;
  }
  key(Qt::Key_S, control);
  EXPECT_TRUE(file().starts_with("disk /C\ndisk /E\nextfs "));
}

TEST_F(Volumes, RowsOfAnotherWindowAreRefused) {
  openDisks("ABC");
  QMimeData data;
  data.setData(table->model()->mimeTypes().constFirst(), "0\n");
  const QPoint end(5, placeOf(2).bottom() - 1);
  const auto send = [&](auto event) { QApplication::sendEvent(table->viewport(), &event); };
  send(QDragEnterEvent(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier));
  send(QDragMoveEvent(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier));
  send(QDropEvent(end, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier));
  EXPECT_EQ(order(), "ABC");
}

TEST_F(Volumes, RowsAreDraggedBetweenRows) {
  if (QGuiApplication::platformName() != QLatin1String("minimal")) {
    GTEST_SKIP() << "the platform without a screen ends drags at once";
  }
  // The rows selected in the order of clicks; where the last one is dragged to; the new order.
  for (const std::string row : {"0 over 3 BCADE", "20 over 4 BDACE", "43 below 0 ADEBC",
                                "13 below 0 ABDCE", "142 over 0 BCEAD", "0 below 4 BCDEA",
                                "2 below 2 ABCDE", "34 over 3 ABCDE", "0 on 3 ABCDE"}) {
    SCOPED_TRACE(row);
    openDisks("ABCDE");
    std::istringstream words(row);
    std::string selected, place, target, wanted;
    words >> selected >> place >> target >> wanted;
    for (const char each : selected) {
      clickRow(each - '0', each == selected.front() ? Qt::NoModifier : control);
    }
    drag(selected.back() - '0', target.front() - '0', place);
    EXPECT_EQ(order(), wanted);
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), qsizetype(selected.size()));
  }
}

TEST_F(Volumes, AReloadAsksForVisibleCellsOnly) {
  openDisks(std::string(1000, 'A'));
  const int visible = 3 * (table->viewport()->height() / table->rowHeight(0) + 2);
  for (const std::function<void()>& act : std::initializer_list<std::function<void()>>{
           [] {}, [&] { click("ronMode"); }, [&] { table->scrollToBottom(); }}) {
    act();
    QTest::qWait(10);
    const auto asked = QString::fromStdString(fake.said()).count(QLatin1String("loCalmode"));
    EXPECT_TRUE(asked > 3 && asked <= visible) << asked;
    EXPECT_GT(table->columnWidth(2), table->fontMetrics().horizontalAdvance("Not Found!"));
  }
}

}  // namespace
