// The list of disk images.

#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QPixmapCache>
#include <QTableView>
#include <QThreadPool>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>
#include <set>

#include "desktop/appearance.h"
#include "platform/files.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"

namespace {

class Volumes : public tests::WindowTest {
 protected:
  void openDisks(const std::string& letters) {
    std::string lines;
    for (const char letter : letters) {
      lines += std::string("disk /") + letter + "\n";
    }
    openList(lines);
  }
  void openList(const std::string& preferences) {
    open(preferences);
    table = find<QTableView>("tableView");
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

  /// The rows that are selected, in the same way.
  std::string selected() const {
    std::set<char> letters;
    for (const QModelIndex& index : table->selectionModel()->selectedRows()) {
      letters.insert(index.data().toString().back().toLatin1());
    }
    return {letters.begin(), letters.end()};
  }

  void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualRect(cell(row)).center());
  }

  /// Opens the context menu as the keys for it do, and runs one of its entries.
  void choose(const char* entry) const {
    press("Shift+F10");
    auto* const action = find<QMenu>("volumeMenu")->findChild<QAction*>(QLatin1String(entry));
    ASSERT_TRUE(action->isEnabled()) << entry;
    action->trigger();
    press("Escape");  // also ends the Shift above, with which selecting would toggle
    QTest::qWait(0);  // until it is gone
  }

  QTableView* table = nullptr;
};

TEST_F(Volumes, ShowWhatTheyAreAndWhatIsMissing) {
  const std::string picture = "QuillonSettings.app/Contents/Resources/HappyMac.png";
  std::filesystem::copy_file(QUILLON_SOURCE "/resources/HappyMac.png", fake.home.path(picture));
  const std::string image = fake.home.write("a <b>.dsk", std::string(1'474'560, '\0'));
  openList("disk " + image + "\ndisk /gone.dsk\n");
  const char* const titles[] = {"Disk image", "Size", "Kind"};
  const std::string texts[] = {image, "1.5 MB", "Disk Image"};
  for (const int column : {0, 1, 2}) {
    const auto headed = [&](int role) {
      return table->model()->headerData(column, Qt::Horizontal, role);
    };
    EXPECT_EQ(headed(Qt::DisplayRole).toString(), QLatin1String(titles[column]));
    EXPECT_EQ(cell(0, column).data().toString().toStdString(), texts[column]);
    const QVariant side = cell(0, column).data(Qt::TextAlignmentRole);
    EXPECT_EQ(side, headed(Qt::TextAlignmentRole));
    EXPECT_EQ((side.toInt() & Qt::AlignRight) != 0, column == 1) << "numbers end at the right";
  }
  EXPECT_FALSE(cell(0).data(Qt::DecorationRole).value<QIcon>().pixmap(16).isNull());
  EXPECT_GT(table->columnWidth(0), table->columnWidth(1) + table->columnWidth(2));
  expectText("volumesSummary", "2 disk images, 1.5 MB, 1 missing");
  EXPECT_EQ(cell(0).data(Qt::AccessibleDescriptionRole), QString());
  EXPECT_EQ(cell(1).data(Qt::AccessibleDescriptionRole), QLatin1String("This file is missing."));
  table->selectRow(1);
  click("removeVol");
  expectText("volumesSummary", "1 disk image, 1.5 MB");
}

// To read a PNG file QImageReader loads all of Qt's plugins for pictures, which takes a tenth of
// the time that a start has.
TEST_F(Volumes, TheirPictureIsReadWithoutPlugins) {
  const std::string picture = fake.home.path("QuillonSettings.app/Contents/Resources/HappyMac.png");
  std::filesystem::copy_file(QUILLON_SOURCE "/resources/HappyMac.png", picture);
  std::error_code error;
  const auto loadsPlugins = [&] {
    const std::string maps = platform::readFile("/proc/self/maps", error).value();
    return maps.find("/imageformats/") != std::string::npos;
  };
  const bool loadedBefore = loadsPlugins();  // by another test in the same process
  desktop::makeReadable();
  openList("disk /gone.dsk\n");
  QTest::qWait(50);  // until all pages and the window's picture are there
  EXPECT_EQ(loadsPlugins(), loadedBefore);

  const auto image = [](const QIcon& icon) {
    return icon.pixmap(16).toImage().convertToFormat(QImage::Format_ARGB32);
  };
  EXPECT_EQ(image(cell(0).data(Qt::DecorationRole).value<QIcon>()),
            image(QIcon(QString::fromStdString(picture))));
  EXPECT_FALSE(find<QToolButton>("qt_menubar_ext_button")->icon().pixmap(16).isNull());
}

std::set<std::filesystem::path> pooledThreads() {
  std::set<std::filesystem::path> pooled;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::error_code error;
    const auto name = platform::readFile(thread.path() / "comm", error);
    if (name && name->starts_with("Thread (pooled")) {
      pooled.insert(thread.path());
    }
  }
  return pooled;
}

TEST_F(Volumes, LookAsQtPaintsThemButNoThreadsArePutToIt) {
  const QPalette usual = QApplication::palette();
  QApplication::setPalette(QPalette(/*button*/ Qt::yellow, /*window*/ Qt::cyan));
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QApplication::setLayoutDirection(direction);
    desktop::makeReadable();
    openDisks("ABCDEFGHIJKL");
    QPixmapCache::clear();                         // or sections of the header come from there
    QThreadPool::globalInstance()->waitForDone();  // lets go of the threads that it has
    const auto before = pooledThreads();           // some may still be ending
    const QImage own = tabs()->grab().toImage();
    EXPECT_TRUE(std::ranges::includes(before, pooledThreads()));
    QApplication::setStyle(QLatin1String("Fusion"));
    EXPECT_EQ(own, tabs()->grab().toImage());
  }
  QApplication::setLayoutDirection(Qt::LeftToRight);
  QApplication::setPalette(usual);
}

TEST_F(Volumes, KeysAndClicks) {
  openDisks("ABCD");
  const auto location = [](const char* path) { return platform::Location::fromPath(path); };
  fake.panels.answers = {{location("/E"), location("/F")}, {location("/E")}};
  for (const tests::Case& each :
       tests::cases("volume-keys.txt", {"click row", "held", "press", "button", "list"})) {
    if (each.has("click row")) {
      const Qt::KeyboardModifiers held = each["held"] == "Ctrl"    ? Qt::ControlModifier
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

TEST_F(Volumes, TheKeyboardFindsARowSelectedAtFirst) {
  openDisks("ABC");
  fake.said();
  enter("tableView");
  EXPECT_EQ(selected(), "A");
  EXPECT_EQ(fake.said(), "") << "a selection prints nothing";
  table->clearSelection();
  enter("browseFile");
  enter("tableView");
  EXPECT_EQ(selected(), "") << "the second time it stays as it is";
}

TEST_F(Volumes, AddedRowsAreSelectedAndSeen) {
  openDisks(std::string(50, 'A'));
  const auto location = [](const char* path) { return platform::Location::fromPath(path); };
  fake.panels.answers = {{location("/X"), location("/Y")}};
  click("browseFile");
  EXPECT_EQ(selected(), "XY");
  EXPECT_TRUE(table->viewport()->rect().contains(table->visualRect(cell(51)).center()));
  EXPECT_GT(table->columnWidth(1), table->fontMetrics().horizontalAdvance("999.9 MB "))
      << "a large one has room";
}

TEST_F(Volumes, AMoveButtonIsEnabledWhileItMovesAndLeavesTheFocusToTheList) {
  openDisks("AB");
  const QWidget* const up = find("moveUp");
  const QWidget* const down = find("moveDown");
  EXPECT_FALSE(up->isEnabled() || down->isEnabled()) << "nothing is selected";
  clickRow(0);
  EXPECT_TRUE(!up->isEnabled() && down->isEnabled());
  enter("moveDown");
  press("Space");
  EXPECT_EQ(order(), "BA");
  EXPECT_EQ(QApplication::focusWidget(), table) << "a disabled button must not pass it on";
}

TEST_F(Volumes, TheContextMenuActsOnTheSelectedRows) {
  openDisks("ABC");
  enter("tableView");
  choose("moveDown");
  EXPECT_EQ(order(), "BAC");
  table->selectAll();
  choose("copyPath");
  EXPECT_EQ(QApplication::clipboard()->text(), QLatin1String("/B\n/A\n/C"));
  table->selectRow(2);
  choose("removeVol");
  EXPECT_EQ(order(), "BA");
}

TEST_F(Volumes, AnEmptyListHasLinksForTheKeyboard) {
  open("ramsize 8388608\n");
  enter("tableView");
  press("Tab");
  EXPECT_EQ(QApplication::focusWidget(), find("addLink"));
  press("Tab");
  EXPECT_EQ(QApplication::focusWidget(), find("newImageLink"));
  press("Backtab");
  fake.panels.answers = {{platform::Location::fromPath("/new")}};
  press("Space");
  EXPECT_FALSE(find("addLink")->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), find("tableView"));
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
      clickRow(row, row == selected.front() ? Qt::NoModifier : Qt::ControlModifier);
    }
    QWindow* const screen = window->windowHandle();
    const auto at = [&](QPoint point) { return table->viewport()->mapTo(&*window, point); };
    const QPoint start = at(table->visualRect(cell(selected.back())).center());
    const QRect rect = table->visualRect(cell(target));
    const int edge = place == Place::below ? rect.bottom() : rect.top();
    const int inside = std::clamp(edge, rect.top() + 1, rect.bottom() - 1);
    const QPoint end = at({rect.center().x(), place == Place::on ? rect.center().y() : inside});
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
