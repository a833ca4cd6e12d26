#include "tests/desktop/window_fixture.h"

namespace {

/// What the window remembers from one run to the next.
class Memory : public tests::WindowTest {
 protected:
  static constexpr const char* file = ".config/quillon-settings/window.ini";

  /// Closes the window, opens it again, and waits until it has been painted.
  void openAgain() {
    openFirstPage();
    QTest::qWait(50);
  }
};

TEST_F(Memory, SizeAndTabComeBackAndGarbageIsNoHarm) {
  openAgain();
  openAgain();
  EXPECT_FALSE(std::filesystem::exists(fake.home.path(file))) << "nobody has changed anything";
  const QSize usual = window->size();
  const QSize chosen = usual - QSize(40, 30);
  window->resize(chosen);
  reach("romFile");
  openAgain();
  EXPECT_EQ(window->size(), chosen);
  EXPECT_TRUE(find("romFile")->isVisible());
  window.reset();
  fake.home.write(file, "geometry=@ByteArray(\\x1\\xff)\ntab=7\n[\n\xff");
  openAgain();
  EXPECT_EQ(window->size(), usual);
  EXPECT_EQ(tabs()->currentIndex(), 0);
}

}  // namespace
