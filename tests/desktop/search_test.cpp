#include <QAbstractItemView>
#include <QCompleter>
#include <QLabel>

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
  search("fullscreen");
  EXPECT_EQ(field()->text(), QLatin1String("fullscreen")) << "nothing matches that";
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
