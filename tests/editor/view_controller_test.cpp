#include "editor/view_controller.h"

#include <gtest/gtest.h>

#include "app/shared_var.h"
#include "tests/editor/window.h"

namespace editor {
namespace {

namespace fs = std::filesystem;
using app::sharedVar;

struct ViewControllerTest : ::testing::Test {
  OpenWindow window{"# mine\ndisk /no where\n" + defaultFile()};
  tests::FakeHost& host = window.host;
  ViewController& controller = window.controller;
  const std::string home = host.home.path();

  std::string prefs() const { return host.home.read(tests::FakeHost::prefs); }

  // What a save says, up to its last line.
  std::string saving(const std::string& finalMessage, const std::string& failure = {}) const {
    const std::string text = "disk /no where\n" + defaultFile();
    std::string list = "[\"" + text.substr(0, text.size() - 1) + "\"]\n";
    for (auto at = list.find('\n'); at + 1 < list.size(); at = list.find('\n', at)) {
      list.replace(at, 1, "\", \"");
    }
    return "<first responder filename_field>\nwin\n1024\n768\n/no where\npre write prefs "
           "test\nnewFileOutput test: Optional(file://" +
           home + "/.quillon_prefs_debug)\n" + text + "\n" + failure + finalMessage + "\n" + list;
  }
};

TEST_F(ViewControllerTest, SavesOnTheButton) {
  host.said();
  EXPECT_TRUE(prefs().starts_with("# mine"));
  controller.savePrefs.sendAction();
  EXPECT_EQ(host.said(), saving("post write prefs test"));
  EXPECT_EQ(prefs(), "disk /no where\n" + defaultFile());
  EXPECT_FALSE(controller.filename_field.isEnabled());
  // An edit under way is part of the save.
  host.application.endEditing = [&] {
    auto& box = controller.display.screen.screenWidth;
    box.edit([&] { box.enterText("Maximum"); });
  };
  host.said();
  controller.savePrefs.sendAction();
  EXPECT_TRUE(host.said().starts_with(
      "<first responder filename_field>\nMaximum\nwin\nMaximum\n0\n768\n/no where\n"));
  EXPECT_EQ(prefs(), "disk /no where\n" + fileWith(Key::screen, "win/0/768"));
}

TEST_F(ViewControllerTest, Starts) {
  const std::string emulator = home + "//Quillon.app";
  const std::string launch = "<launch " + emulator + ">\n";
  for (const bool quits : {false, true}) {
    for (const bool starts : {false, true}) {
      sharedVar::quitGUI = quits;
      host.workspace.starts = starts;
      host.said();
      controller.startQuil.sendAction();
      EXPECT_EQ(host.said(), saving("post write prefs") + launch + (quits ? "<terminate>\n" : ""));
      const auto [saved, launched] = controller.saveAndLaunch();
      EXPECT_TRUE(saved);
      EXPECT_EQ(launched, starts);
    }
  }
  fs::remove(host.home.path(tests::FakeHost::prefs));
  fs::create_directory(host.home.path(tests::FakeHost::prefs));
  host.said();
  controller.startQuil.sendAction();
  EXPECT_EQ(host.said(),
            saving("post write prefs", "couldn't save prefs file\n") + launch + "<terminate>\n");
  EXPECT_FALSE(controller.saveAndLaunch().saved);
}

TEST_F(ViewControllerTest, TakesOverFrontEndSettings) {
  EXPECT_TRUE(controller.startQuil.isEnabled());
  for (const bool on : {false, true, true}) {
    sharedVar::startState = sharedVar::scsiTabState = sharedVar::quitGUI = on;
    sharedVar::pathToQuil = "/My Quillon.app";
    sharedVar::startFlag = 1;
    host.said();
    host.notifications.post("SomethingElse");
    EXPECT_EQ(host.said(), "");
    host.notifications.post("NotificationID");
    const std::string written = host.home.read(tests::FakeHost::settings);
    EXPECT_EQ(host.said(), std::string("startButton: ") + (on ? "true" : "false") +
                               "\nstartButton: /My Quillon.app\nstartButton: 1\n" +
                               std::to_string(written.size()) + " bytes\n");
    EXPECT_EQ(controller.startQuil.isEnabled(), on);
    EXPECT_EQ(controller.tabs.tabViewC.numberOfTabViewItems(), on ? 7U : 6U);
    tests::FakeHost other;
    other.home.write(tests::FakeHost::settings, written);
    ViewController next(other.host());
    next.tabs.scsiID0.setOn(true);
    next.viewDidLoad();
    EXPECT_EQ(next.startQuil.isEnabled(), on);
    EXPECT_EQ(next.tabs.tabViewC.items()[1]->label, on ? "SCSI" : "Machine");
    EXPECT_FALSE(next.tabs.scsiID0.isOn());
    next.startQuil.sendAction();
    EXPECT_EQ(other.application.calls.size(), on ? 2U : 1U) << "to quit or not";
    EXPECT_EQ(other.workspace.launched, std::vector<std::string>{"/My Quillon.app"});
    EXPECT_EQ(other.home.read(tests::FakeHost::prefs), defaultFile());
  }
}

}  // namespace
}  // namespace editor
