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
    press("Ctrl+F");
    for (const char letter : text) {
      QTest::keyClick(front(), letter);
      QTest::qWait(0);  // lists come and go
    }
  }
  QLineEdit* field() const { return find<QLineEdit>("findSetting"); }
  std::string firstHit() const {
    return field()->completer()->completionModel()->index(0, 0).data().toString().toStdString();
  }

  void expectWentTo(const std::string& name) const {
    EXPECT_TRUE(QTest::qWaitFor([&] { return field()->text().isEmpty(); }));
    EXPECT_EQ(QApplication::focusWidget(), find(name.c_str())) << name;
    EXPECT_TRUE(find(name.c_str())->isVisible());
  }
};

TEST_F(Search, LeadsToTheBestHit) {
  for (const tests::Case& each :
       tests::cases("searches.txt", {"typed", "first hit", "leads to", "row"})) {
    SCOPED_TRACE(each.written);
    openFirstPage("disk /images/Games.hfv\ndisk /images/b\n");
    search(each["typed"]);
    EXPECT_EQ(firstHit(), each["first hit"]);
    press("Return");
    expectWentTo(each["leads to"]);
    if (each.has("row")) {
      const int row = find<QAbstractItemView>("tableView")->currentIndex().row();
      EXPECT_EQ(std::to_string(row + 1), each["row"]);
    }
  }
}

TEST_F(Search, KeepsWhatIsTypedWhereNothingMatches) {
  open();
  search("xyzzy");
  EXPECT_EQ(firstHit(), "Nothing found for \"xyzzy\".");
  press("Return");
  EXPECT_EQ(text("findSetting"), "xyzzy");
}

TEST_F(Search, WhatWasTypedIsFoundInTheHit) {
  using Part = std::pair<qsizetype, qsizetype>;
  EXPECT_EQ(desktop::foundParts("Program of RAM", "ram"), (std::vector<Part>{{11, 3}}));
  EXPECT_EQ(desktop::foundParts("Écran", "ecr"), (std::vector<Part>{{0, 3}}));
}

TEST_F(Search, AHitCanBePickedAnyNumberOfTimes) {
  enum class Picked { byReturn, byArrow, byClick };
  open();
  for (const Picked pick : {Picked::byReturn, Picked::byArrow, Picked::byClick, Picked::byReturn,
                            Picked::byArrow, Picked::byClick}) {
    press("Alt+1");
    search("MODELID");
    if (pick == Picked::byClick) {
      QAbstractItemView* const list = field()->completer()->popup();
      const QRect hit = list->visualRect(list->model()->index(0, 0));
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, hit.center());
    } else {
      if (pick == Picked::byArrow) {
        press("Down");
      }
      press("Return");
    }
    expectWentTo("modelID");
  }
}

TEST_F(Search, ADisabledHitLeadsToWhatEnablesIt) {
  open();
  search("keycodefile");
  EXPECT_NE(firstHit().find("Use raw key codes"), std::string::npos);
  press("Return");
  expectWentTo("rawKeys");
  EXPECT_TRUE(find("pointedOut")->isVisible());
  EXPECT_NE(text("helpLine").find("Key code file"), std::string::npos);
  press("Space");
  search("keycodefile");
  press("Return");
  expectWentTo("rawKeyFile");
}

}  // namespace
