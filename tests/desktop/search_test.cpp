#include <QAbstractItemView>
#include <QCompleter>
#include <QLabel>

#include "desktop/search_index.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/data.h"

namespace {

class Search : public tests::WindowTest {
 protected:
  void search(const std::string& text) const {
    key(Qt::Key_F, Qt::ControlModifier);
    for (const char letter : text) {
      QTest::keyClick(front(), letter);
      QTest::qWait(0);  // lists come and go
    }
  }
  QLineEdit* field() const { return find<QLineEdit>("findSetting"); }
  QStringList hits() const {
    QStringList texts;
    const auto* const rows = field()->completer()->completionModel();
    for (int row = 0; row < rows->rowCount(); ++row) {
      texts.append(rows->index(row, 0).data().toString());
    }
    return texts;
  }

  void expectWentTo(const char* name) const {
    EXPECT_TRUE(QTest::qWaitFor([&] { return field()->text().isEmpty(); }));
    EXPECT_EQ(QApplication::focusWidget(), find(name)) << name;
    EXPECT_TRUE(find(name)->isVisible());
  }
};

TEST_F(Search, FindsASettingByItsNameItsKeyAndItsHelp) {
  for (const tests::Case& each : tests::cases("searches.txt", {"typed", "found"})) {
    open();
    search(each["typed"]);
    key(Qt::Key_Return);
    expectWentTo(each["found"].c_str());
  }
}

TEST_F(Search, KeepsWhatIsTypedWhereNothingMatches) {
  open();
  search("xyzzy");
  EXPECT_EQ(hits(), QStringList("Nothing found for \"xyzzy\"."));
  key(Qt::Key_Return);
  EXPECT_EQ(field()->text(), QLatin1String("xyzzy"));
}

TEST_F(Search, TheBestHitIsTheFirst) {
  open("disk /images/Games.hfv\n");
  struct Row {
    const char* typed;
    const char* first;
  };
  for (const auto& [typed, first] : std::initializer_list<Row>{
           {.typed = "ram", .first = "RAM size (MB) — Machine"},
           {.typed = "hz", .first = "Refresh rate — Display: 60 Hz"},
           {.typed = "68040", .first = "Processor (CPU) — Machine: 68040"},
           {.typed = "fullscreen", .first = "Screen mode — Display: fullscreen"},
           {.typed = "full screen", .first = "Screen mode — Display: Full screen"},
           {.typed = "memory", .first = "RAM size (MB) — Machine: memory"},
           {.typed = "internet", .first = "Network device — Network: internet"},
           {.typed = "games", .first = "Games.hfv — Disk images"},
           {.typed = "HARD DISK", .first = "Disk images — Volumes: hard disk"},
           {.typed = "quit", .first = "Quit after Start — Preferences window"},
           {.typed = "scsi", .first = "Show the SCSI tab — Preferences window"},
           {.typed = "where quillon", .first = "Where Quillon is — Preferences window"}}) {
    search(typed);
    EXPECT_EQ(hits().value(0).toStdString(), first) << typed;
    key(Qt::Key_Escape);
  }
}

TEST_F(Search, WhatWasTypedIsFoundInTheHit) {
  using Part = std::pair<qsizetype, qsizetype>;
  EXPECT_EQ(desktop::foundParts("Program of RAM", "ram"), (std::vector<Part>{{11, 3}}));
  EXPECT_EQ(desktop::foundParts("Écran", "ecr"), (std::vector<Part>{{0, 3}}));
}

TEST_F(Search, LeadsToImagesAndToThePreferences) {
  open("disk /images/a\ndisk /images/b\n");
  showTab("JIT");
  search("images/b");
  key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), find("tableView"));
  EXPECT_EQ(find<QAbstractItemView>("tableView")->currentIndex().row(), 1);
  search("quit after");
  key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), find("quitOnStart"));
  EXPECT_TRUE(find("pointedOut")->isVisible());
}

TEST_F(Search, AHitCanBePickedAnyNumberOfTimes) {
  open();
  const auto byReturn = [] { key(Qt::Key_Return); };
  const auto byArrow = [] {
    key(Qt::Key_Down);
    key(Qt::Key_Return);
  };
  const auto byClick = [this] {
    QAbstractItemView* const list = field()->completer()->popup();
    const QRect hit = list->visualRect(list->model()->index(0, 0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, hit.center());
  };
  for (const auto& pick :
       std::vector<std::function<void()>>{byReturn, byArrow, byClick, byReturn, byArrow, byClick}) {
    key(Qt::Key_1, Qt::AltModifier);
    search("MODELID");
    pick();
    expectWentTo("modelID");
  }
}

TEST_F(Search, ADisabledHitLeadsToWhatEnablesIt) {
  open();
  search("keycodefile");
  const auto* const hits = field()->completer()->completionModel();
  EXPECT_TRUE(hits->index(0, 0).data().toString().contains(QLatin1String("Use raw key codes")));
  key(Qt::Key_Return);
  expectWentTo("rawKeys");
  EXPECT_TRUE(find<QLabel>("helpLine")->text().contains(QLatin1String("Key code file")));
  key(Qt::Key_Space);
  search("keycodefile");
  key(Qt::Key_Return);
  expectWentTo("rawKeyFile");
}

}  // namespace
