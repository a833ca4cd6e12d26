#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QTableView>
#include <QTimer>

#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"

namespace {

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

  QModelIndex cell(int row, int column = 0) const { return table->model()->index(row, column); }

  /// The names as shown, a letter each.
  std::string order() const {
    std::string letters;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
      letters += cell(row).data().toString().back().toLatin1();
    }
    return letters;
  }

  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualRect(cell(row)).center());
  }

  QTableView* table = nullptr;
};

TEST_F(Volumes, ShowsAPictureAPathASizeAndAKind) {
  const std::string picture = "QuillonSettings.app/Contents/Resources/HappyMac.png";
  std::filesystem::copy_file(QUILLON_SOURCE "/resources/HappyMac.png", fake.home.path(picture));
  const std::string image = fake.home.write("a <b>.dsk", std::string(1'474'560, '\0'));
  open("disk " + image + "\ndisk here.dsk\n");
  table = find<QTableView>("tableView");
  const char* const titles[] = {"Disk image", "Size", "Kind"};
  const char* const texts[] = {image.c_str(), "1.5 MB", "Disk Image"};
  for (int column = 0; column < table->model()->columnCount(); ++column) {
    EXPECT_EQ(cell(0, column).data().toString().toStdString(), texts[column]);
    const QVariant title = table->model()->headerData(column, Qt::Horizontal);
    EXPECT_EQ(title.toString(), QLatin1String(titles[column]));
    const QVariant side = cell(0, column).data(Qt::TextAlignmentRole);
    EXPECT_EQ(side, table->model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole));
    EXPECT_EQ((side.toInt() & Qt::AlignRight) != 0, column == 1) << "numbers end at the right";
  }
  EXPECT_EQ(cell(1, 2).data().toString(), QLatin1String("No Path!"));
  EXPECT_FALSE(cell(0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).isNull());
  EXPECT_FALSE(cell(0, 1).data(Qt::DecorationRole).isValid());
  EXPECT_GT(table->columnWidth(0), table->columnWidth(1) + table->columnWidth(2));
  EXPECT_FALSE(table->model()->data(QModelIndex(), Qt::DisplayRole).isValid());
}

TEST_F(Volumes, KeysAndClicks) {
  openDisks("ABCD");
  const auto location = [](const char* path) { return platform::Location::fromPath(path); };
  fake.panels.answers = {{location("/E"), location("/F")}, {location("/E")}};
  for (const tests::Case& each :
       tests::cases("volume-keys.txt", {"click row", "held", "press", "button", "list"})) {
    if (each.has("click row")) {
      const Qt::KeyboardModifiers held = each["held"] == "Ctrl"    ? control
                                         : each["held"] == "Shift" ? Qt::ShiftModifier
                                                                   : Qt::NoModifier;
      clickRow(std::stoi(each["click row"]) - 1, held);
    }
    if (each.has("press")) {
      press(each["press"]);
    }
    if (each.has("button")) {
      click(each["button"].c_str());
    }
    EXPECT_EQ(order(), each["list"]) << each.written;
  }
  table->clearSelection();
  click("removeVol");
  EXPECT_EQ(order(), "CE") << "nothing is selected";
  press("Ctrl+S");
  EXPECT_TRUE(file().starts_with("disk /C\ndisk /E\nextfs "));
}

TEST_F(Volumes, RowsOfAnotherWindowAreRefused) {
  openDisks("ABC");
  QMimeData data;
  data.setData(table->model()->mimeTypes().constFirst(), "0\n");
  const QPoint end(5, table->visualRect(cell(2)).bottom() - 1);
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
  enum class Place { over, on, below };
  struct Row {
    std::vector<int> selected;  // in the order of clicks; the last one is dragged
    Place place;
    int target;
    const char* wanted;
  };
  for (const auto& [selected, place, target, wanted] :
       {Row{.selected = {0}, .place = Place::over, .target = 3, .wanted = "BCADE"},
        Row{.selected = {1, 4, 2}, .place = Place::over, .target = 0, .wanted = "BCEAD"},
        Row{.selected = {0}, .place = Place::below, .target = 4, .wanted = "BCDEA"},
        Row{.selected = {3, 4}, .place = Place::over, .target = 3, .wanted = "ABCDE"},
        Row{.selected = {0}, .place = Place::on, .target = 3, .wanted = "ABCDE"}}) {
    SCOPED_TRACE(wanted);
    openDisks("ABCDE");
    window->resize(800, 800);  // all rows are seen, whatever the font
    QTest::qWait(0);
    for (const int row : selected) {
      clickRow(row, row == selected.front() ? Qt::NoModifier : control);
    }
    QWindow* const screen = window->windowHandle();
    const auto at = [&](QPoint point) { return table->viewport()->mapTo(&*window, point); };
    const QPoint start = at(table->visualRect(cell(selected.back())).center());
    const QRect rect = table->visualRect(cell(target));
    const int edge = place == Place::below ? rect.bottom() : rect.top();
    const QPoint end = at({rect.center().x(), place == Place::on      ? rect.center().y()
                                              : place == Place::below ? edge - 1
                                                                      : edge + 1});
    bool line = false;
    QTest::mousePress(screen, Qt::LeftButton, {}, start);
    QTest::mouseMove(screen, start + QPoint(4, 0));
    QTimer::singleShot(30, &*window, [&] {
      QTest::mouseMove(screen, end + QPoint(3, 0));
      QTest::mouseMove(screen, end);
      const QImage image = table->viewport()->grab().toImage();
      const QColor color = table->palette().color(QPalette::Highlight);
      line =
          image.pixelColor(2, edge) == color && image.pixelColor(image.width() - 3, edge) == color;
      QTest::mouseRelease(screen, Qt::LeftButton, {}, end);
    });
    QTest::mouseMove(screen, start + QPoint(40, 0));  // returns when the drag has ended
    QTest::qWait(20);
    EXPECT_EQ(order(), wanted);
    EXPECT_EQ(line, place != Place::on) << "a line shows where the rows would go";
    EXPECT_EQ(table->selectionModel()->selectedRows().size(), qsizetype(selected.size()));
  }
}

TEST_F(Volumes, AReloadAsksForVisibleCellsOnly) {
  openDisks(std::string(1000, 'A'));
  const int visible = 3 * (table->viewport()->height() / table->rowHeight(0) + 2);
  const auto expectAsked = [&](const char* when) {
    QTest::qWait(10);
    const auto asked = QString::fromStdString(fake.said()).count(QLatin1String("loCalmode"));
    EXPECT_TRUE(asked > 3 && asked <= visible) << asked << " " << when;
    EXPECT_GT(table->columnWidth(2), table->fontMetrics().horizontalAdvance("Not Found!"));
  };
  expectAsked("at first");
  find<QAction>("openDiagnostics")->trigger();
  click("ronMode");
  expectAsked("after a switch");
  table->scrollToBottom();
  expectAsked("at the end");
}

}  // namespace
