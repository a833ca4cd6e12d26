// The five steps of docs/guide.md, from nothing to a started Macintosh, without a mouse.

#include "desktop/panels.h"
#include "tests/desktop/description.h"
#include "tests/desktop/window_fixture.h"
#include "tests/support/model.h"

namespace {

/// The window in an empty home, with panels as people see them.
class Walk : public tests::WindowTest {
 protected:
  Walk() {
    std::filesystem::permissions(fake.home.write("My Quillon.app/Contents/MacOS/My Quillon", ""),
                                 std::filesystem::perms::owner_all);
    start(panels);
    panels.setWindow(&*window, &window->memory().folder);
  }

  static void expectInFront(const char* name) {
    EXPECT_TRUE(QTest::qWaitFor([&] {
      const QWidget* const front = QApplication::activeWindow();
      return front != nullptr && front->objectName() == QLatin1String(name);
    })) << name;
  }
  /// Waits until the window in front is closed; window managers then take the next one there.
  void expectClosed() {
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == nullptr; }));
    activate(&*window);
  }

  /// What a screen reader comes upon by its role and the beginning of its name.
  static QAccessibleInterface* search(QAccessibleInterface* place, QAccessible::Role role,
                                      const QString& name) {
    if (place == nullptr || place->state().invisible) {
      return nullptr;
    }
    const bool isFound = place->role() == role && tests::spokenName(*place).startsWith(name);
    QAccessibleInterface* found = isFound ? place : nullptr;
    for (int child = 0; child < place->childCount() && found == nullptr; ++child) {
      found = search(place->child(child), role, name);
    }
    return found;
  }
  static QAccessibleInterface& hear(QAccessible::Role role, const std::string& name) {
    QAccessibleInterface* found = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      QWidget* const front = QApplication::activeWindow();
      found = search(QAccessible::queryAccessibleInterface(front), role, name.c_str());
      return found != nullptr;
    })) << name;
    return *found;
  }
  static void act(QAccessible::Role role, const char* name) {
    auto* const actions = hear(role, name).actionInterface();
    actions->doAction(actions->actionNames().constFirst());
    QTest::qWait(0);
  }
  static void write(const char* name, const std::string& text) {
    hear(QAccessible::EditableText, name).setText(QAccessible::Value, text.c_str());
  }

  void expectStarted() {
    tests::Model model("rom " + rom + "\nramsize 134217728\n");
    model.disks = {fake.home.path("walked.dsk")};
    EXPECT_EQ(file(), model.text());
    EXPECT_NE(fake.said().find("<launch " + emulator + ">"), std::string::npos);
  }

  const std::string emulator = fake.home.path("My Quillon.app");
  const std::string rom = fake.home.write("mac.rom", std::string(1 << 20, 'r'));
  desktop::Panels panels;
};

TEST_F(Walk, TheKeyboardAloneLeadsToAStart) {
  press("Ctrl+,");
  expectInFront("preferencesWindow");
  press("Down");
  press("Alt+L");
  type(emulator.c_str());
  press("Return");
  press("Alt+D");
  expectClosed();
  press("Alt+2");
  press("Alt+R");
  type(rom.c_str());
  press("Alt+M");
  type("128");
  press("Ctrl+N");
  expectInFront("createSheet");
  type("walked");
  press("Alt+S");
  type("20");
  press("Return");
  press("Alt+I");
  expectInFront("QFileDialog");
  press("Return");
  expectClosed();
  press("Ctrl+S");
  expectText("checksLine", "Ready to start.");
  press("Ctrl+Return");
  expectStarted();
}

TEST_F(Walk, AScreenReaderLeadsToAStart) {
  hear(QAccessible::Button, "Problem: Quillon is not at");
  act(QAccessible::Button, "Preferences…");
  expectInFront("preferencesWindow");
  act(QAccessible::RadioButton, "Somewhere else");
  write("Location", emulator);
  act(QAccessible::Button, "Done");
  expectClosed();
  hear(QAccessible::Button, "Problem: No ROM file is chosen.");
  act(QAccessible::PageTab, "Machine, with something to look at");
  hear(QAccessible::Grouping, "Hardware");
  write("ROM file", rom);
  write("RAM size (MB)", "128");
  act(QAccessible::PageTab, "Volumes");
  act(QAccessible::Button, "New Blank Image…");
  expectInFront("createSheet");
  write("Name", "walked");
  write("Size in megabytes", "20");
  act(QAccessible::Button, "Create");
  hear(QAccessible::StaticText, "Status: 'walked.dsk' - 20 MB Done!");
  act(QAccessible::Button, "Add to the List…");
  expectInFront("QFileDialog");
  act(QAccessible::Button, "Open");
  expectClosed();
  hear(QAccessible::Cell, fake.home.path("walked.dsk"));
  act(QAccessible::Button, "Save");
  hear(QAccessible::StaticText, "Saved ");
  hear(QAccessible::Button, "Ready to start.");
  act(QAccessible::Button, "Start");
  hear(QAccessible::StaticText, "Quillon was started ");
  expectStarted();
}

}  // namespace
