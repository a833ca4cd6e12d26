#include <QAbstractItemView>
#include <QCheckBox>
#include <QCompleter>

#include "tests/desktop/window_fixture.h"

namespace {

class Search : public tests::WindowTest {
 protected:
  void search(const char* text) const {
    key(Qt::Key_F, Qt::ControlModifier);
    for (; *text != '\0'; ++text) {
      QTest::keyClick(front(), *text);
      QTest::qWait(0);  // lists come and go
    }
  }
  QLineEdit* field() const { return find<QLineEdit>("findSetting"); }
};

TEST_F(Search, KeepsWhatIsTypedWhereNothingMatches) {
  open();
  search("fullscreen");
  EXPECT_EQ(field()->text(), QLatin1String("fullscreen"));
}

TEST_F(Search, AHitCanBePickedAnyNumberOfTimes) {
  open();
  const std::vector<std::pair<const char*, std::function<void()>>> ways = {
      {"Return", [] { key(Qt::Key_Return); }},
      {"arrow and Return",
       [] {
         key(Qt::Key_Down);
         key(Qt::Key_Return);
       }},
      {"click", [this] {
         QAbstractItemView* const list = field()->completer()->popup();
         const QRect hit = list->visualRect(list->model()->index(0, 0));
         QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, hit.center());
       }}};
  for (int time = 0; time < 2; ++time) {
    for (const auto& [name, pick] : ways) {
      SCOPED_TRACE(name);
      key(Qt::Key_1, Qt::AltModifier);
      search("MODELID");
      pick();
      QTest::qWait(0);
      EXPECT_EQ(QApplication::focusWidget(), find("modelID"));
      EXPECT_TRUE(field()->text().isEmpty());
    }
  }
}

TEST_F(Search, ADisabledHitLeadsToWhatEnablesIt) {
  open();
  search("keycodefile");
  const auto* const hits = field()->completer()->completionModel();
  EXPECT_TRUE(hits->index(0, 0).data().toString().contains(QLatin1String("Use raw key codes")));
  key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), find("rawKeys"));
  EXPECT_TRUE(find<QLabel>("helpLine")->text().contains(QLatin1String("Key code file")));
  key(Qt::Key_Space);
  search("keycodefile");
  key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), find("rawKeyFile"));
}

}  // namespace
