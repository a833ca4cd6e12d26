#include <sys/resource.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QTableView>
#include <random>

#include "desktop/texts.h"
#include "fuzz/use.h"
#include "tests/desktop/window_fixture.h"

namespace {

class Widgets : public tests::WindowTest {
 public:
  bool click(platform::Button& button) {
    auto* const widget = shownWidget<QAbstractButton>(button);
    widget->click();
    return widget->isEnabled();
  }
  // As from an input method, which can do more than a keyboard; then the focus goes elsewhere.
  bool type(platform::TextField& field, const std::string& text) {
    auto* const widget = shownWidget<QWidget>(field);
    auto* const box = qobject_cast<QComboBox*>(widget);
    QLineEdit* const line = box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit*>(widget);
    if (widget->isEnabled()) {
      line->setFocus();
      line->selectAll();
      QTest::keyClick(line, Qt::Key_Backspace);
      QInputMethodEvent event;
      event.setCommitString(desktop::toQString(text));
      QApplication::sendEvent(line, &event);
      tabs()->setFocus();
    }
    return widget->isEnabled();
  }
  void choose(platform::Control& control, std::size_t entry) {
    auto* const box = shownWidget<QComboBox>(control);
    box->setCurrentIndex(static_cast<int>(entry));
    Q_EMIT box->activated(static_cast<int>(entry));
  }
  void step(platform::Stepper& stepper, int by) {
    shownWidget<QAbstractSpinBox>(stepper)->stepBy(by);
  }
  void select(volumes::VolumeTable& table, std::size_t row) {
    shownWidget<QTableView>(table.tableView)->selectRow(static_cast<int>(row));
  }
  void move(volumes::VolumeTable& table, bool up) {
    QTest::keyClick(shownWidget<QTableView>(table.tableView), up ? Qt::Key_Up : Qt::Key_Down,
                    Qt::AltModifier);
  }

 private:
  template <typename Widget>
  Widget* shownWidget(platform::Control& control) {
    auto* const widget = find<Widget>(control.name().c_str());
    for (int tab = 0; tab < tabs()->count(); ++tab) {
      if (tabs()->widget(tab)->isAncestorOf(widget)) {
        tabs()->setCurrentIndex(tab);
      }
    }
    return widget;
  }
};

TEST_F(Widgets, AThousandActionsSaveWhatTheModelSays) {
  open();
  window->completePages();
  std::mt19937 random(7);  // NOLINT: always the same actions
  fuzz::Use use(fake, *controller, static_cast<Widgets&>(*this),
                [&](std::size_t count) { return random() % count; });
  for (int turn = 0; turn < 1000; ++turn) {
    ASSERT_TRUE(use.act()) << "action " << turn << ": " << use.broken();
  }
  EXPECT_GT(use.saves(), 10);
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::string name;
    std::getline(std::ifstream(thread.path() / "comm"), name);
    EXPECT_TRUE(thread.path().filename() == std::to_string(::getpid()) || name.starts_with('Q') ||
                name == "Thread (pooled)")
        << name << " is no thread of the toolkit";
  }
}

TEST_F(Widgets, WithoutADescriptorLeftASaveIsToldAndTheNextOneWorks) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers look at memory through a pipe and need descriptors of their own";
#endif
  open("ramsize 8388608\n");
  window->completePages();
  type(controller->machine.ramSizeMB.box, "9");
  rlimit former{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &former), 0);
  const int next = ::dup(0);
  const rlimit none{static_cast<rlim_t>(next), former.rlim_max};
  ::close(next);
  ::setrlimit(RLIMIT_NOFILE, &none);
  click(controller->savePrefs);
  for (int tab = 0; tab < tabs()->count(); ++tab) {
    tabs()->setCurrentIndex(tab);
    QTest::qWait(1);
  }
  ::setrlimit(RLIMIT_NOFILE, &former);
  EXPECT_NE(fake.said().find("couldn't save prefs file"), std::string::npos);
  EXPECT_EQ(file(), "ramsize 8388608\n");
  click(controller->savePrefs);
  EXPECT_EQ(file(), fuzz::Model("ramsize 9437184\n").text());
}

}  // namespace
