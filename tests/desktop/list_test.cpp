// The list of disk images as people with many of them use it.

#include <QClipboard>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

#include "tests/desktop/window_fixture.h"

namespace {

class List : public tests::WindowTest {
 protected:
  void openList(const std::string& preferences) {
    open(preferences);
    table = find<QTableView>("tableView");
  }
  void enterByKeyboard() const { table->setFocus(Qt::TabFocusReason); }

  std::vector<int> selected() const {
    std::vector<int> rows;
    for (const QModelIndex& index : table->selectionModel()->selectedRows()) {
      rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
  }

  std::string row(int number) const {
    return table->model()->index(number, 0).data().toString().toStdString();
  }
  std::string summary() const { return find<QLabel>("volumesSummary")->text().toStdString(); }

  /// Opens the context menu as the keys for it do, and runs one of its entries.
  void choose(const char* entry) const {
    key(Qt::Key_F10, Qt::ShiftModifier);
    auto* const menu = find<QMenu>("volumeMenu");
    auto* const action = menu->findChild<QAction*>(QLatin1String(entry));
    ASSERT_TRUE(action->isEnabled()) << entry;
    action->trigger();
    key(Qt::Key_Escape);  // also ends the Shift above, with which selecting would toggle
    QTest::qWait(0);      // until it is gone
  }

  QTableView* table = nullptr;
};

const std::string threeDisks = "disk /a/A\ndisk /b/B\ndisk /c/C\n";

TEST_F(List, TheKeyboardFindsARowSelectedAtFirst) {
  openList(threeDisks);
  fake.said();
  enterByKeyboard();
  EXPECT_EQ(selected(), std::vector{0});
  EXPECT_EQ(fake.said(), "") << "a selection prints nothing";
  table->clearSelection();
  find("browseFile")->setFocus();
  enterByKeyboard();
  EXPECT_EQ(selected(), std::vector<int>()) << "the second time it stays as it is";
}

TEST_F(List, AddedRowsAreSelectedAndSeen) {
  std::string many;
  for (int number = 0; number < 50; ++number) {
    many += "disk /" + std::to_string(number) + "\n";
  }
  openList(many);
  fake.panels.answers = {
      {platform::Location::fromPath("/new"), platform::Location::fromPath("/newer")}};
  click("browseFile");
  EXPECT_EQ(selected(), (std::vector{50, 51}));
  EXPECT_TRUE(
      table->viewport()->rect().contains(table->visualRect(table->model()->index(51, 0)).center()));
}

TEST_F(List, TheButtonsMoveAsTheKeysDo) {
  openList(threeDisks);
  const auto* const moveUp = find<QPushButton>("moveUp");
  const auto* const moveDown = find<QPushButton>("moveDown");
  EXPECT_FALSE(moveUp->isEnabled() || moveDown->isEnabled()) << "nothing is selected";
  table->selectRow(1);
  table->setFocus();
  QTest::qWait(10);
  fake.said();
  key(Qt::Key_Up, Qt::AltModifier);
  QTest::qWait(10);
  const std::string byKey = fake.said();
  EXPECT_FALSE(moveUp->isEnabled());
  EXPECT_EQ(row(0), "/b/B");
  click("moveDown");
  fake.said();
  click("moveUp");
  QTest::qWait(10);
  EXPECT_EQ(fake.said(), byKey);
  click("moveDown");
  find("moveDown")->setFocus();
  key(Qt::Key_Space);
  EXPECT_FALSE(moveDown->isEnabled());
  EXPECT_EQ(row(2), "/b/B");
  EXPECT_EQ(QApplication::focusWidget(), table) << "a disabled button must not pass it on";
}

TEST_F(List, TheContextMenuActsOnTheSelectedRows) {
  openList(threeDisks);
  enterByKeyboard();
  choose("moveDown");
  EXPECT_EQ(row(1), "/a/A");
  table->selectAll();
  choose("copyPath");
  EXPECT_EQ(QApplication::clipboard()->text(), QLatin1String("/b/B\n/a/A\n/c/C"));
  table->selectRow(2);
  choose("removeVol");
  EXPECT_EQ(table->model()->rowCount(), 2);
}

TEST_F(List, TellsWhatIsThereAndWhatIsMissing) {
  const std::string image = fake.home.write("there.dsk", std::string(1'500'000, '\0'));
  openList("disk " + image + "\ndisk /gone.dsk\ndisk /gone too.dsk\n");
  EXPECT_TRUE(QTest::qWaitFor([&] { return summary() == "3 disk images, 1.5 MB, 2 missing"; }))
      << summary();
  const auto description = [this](int number) {
    return table->model()->index(number, 0).data(Qt::AccessibleDescriptionRole).toString();
  };
  EXPECT_EQ(description(0), QString());
  EXPECT_EQ(description(1), QLatin1String("This file is missing."));
  table->selectRow(1);
  click("removeVol");
  table->selectRow(1);
  click("removeVol");
  EXPECT_EQ(summary(), "1 disk image, 1.5 MB");
}

TEST_F(List, AnEmptyOneHasLinksForTheKeyboard) {
  open("ramsize 8388608\n");
  find("tableView")->setFocus();
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), find("addLink"));
  key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), find("newImageLink"));
  key(Qt::Key_Backtab);
  fake.panels.answers = {{platform::Location::fromPath("/new")}};
  key(Qt::Key_Space);
  EXPECT_FALSE(find("addLink")->isVisible());
  EXPECT_EQ(QApplication::focusWidget(), find("tableView"));
}

}  // namespace
