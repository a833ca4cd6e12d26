#include <gtest/gtest.h>
#include <unistd.h>

#include "app/emulator_location.h"
#include "app/settings_store.h"
#include "app/shared_var.h"
#include "tests/support/fake_host.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using platform::PropertyList;
using tests::FakeHost;

const std::vector<std::string> keys = {"Quillon.app location", "Start Button Enabled", "Start Flag",
                                       "SCSI Tab", "Quit on Start"};
// Values that no key ships with, and for each key one of a wrong type.
const std::vector<std::string> values = {"<string>/Q\u00fc &amp; A.app</string>", "<false/>",
                                         "<integer>7</integer>", "<true/>", "<true/>"};
const std::vector<std::string> wrong = {"<true/>", "<integer>0</integer>", "<string>7</string>",
                                        "<string>true</string>", "<real>1</real>"};

std::string plist(const std::string& body) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
         "</plist>\n";
}

// All keys but the one at `without`, which gets another value or none.
std::string settings(std::size_t without = 99, const std::string& instead = {}) {
  std::string body;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const std::string& value = i == without ? instead : values[i];
    body += value.empty() ? "" : "<key>" + keys[i] + "</key>" + value;
  }
  return plist("<dict>" + body + "<key>Mine</key><array><real>1.5</real><dict/></array></dict>");
}

// What sharedVar holds, in the order of the keys.
std::vector<std::string> shared() {
  return {sharedVar::pathToQuil, sharedVar::startState ? "true" : "false",
          std::to_string(sharedVar::startFlag), sharedVar::scsiTabState ? "true" : "false",
          sharedVar::quitGUI ? "true" : "false"};
}

const std::vector<std::string> shipped = {"", "true", "2", "false", "false"};
const std::vector<std::string> own = {"/Q\u00fc & A.app", "false", "7", "true", "true"};

std::vector<std::string> load(FakeHost& host) {
  SettingsStore(host.host()).load();
  return shared();
}

TEST(SettingsStore, UnusableFilesGiveTheShippedValues) {
  FakeHost host;
  EXPECT_EQ(load(host), shipped);
  EXPECT_EQ(host.said(), "") << "the shipped file holds all keys";
  const std::vector<std::string> contents = {"",
                                             "garbage",
                                             plist("<array/>"),
                                             plist("<string>x</string>"),
                                             "bplist00\x01\x02",
                                             settings() + std::string(std::size_t{64} * 1024, ' '),
                                             "folder",
                                             "missing"};
  for (const std::string& content : contents) {
    SCOPED_TRACE(content.substr(0, 100));
    fs::remove_all(host.home.path(FakeHost::settings));
    if (content == "folder") {
      fs::create_directory(host.home.path(FakeHost::settings));
    } else if (content != "missing") {
      host.home.write(FakeHost::settings, content);
    }
    EXPECT_EQ(load(host), shipped);
    std::string said = host.said();
    for (const std::string& key : keys) {
      EXPECT_TRUE(said.starts_with("Prefs.plist: no usable \"" + key + "\" (")) << said;
      said.erase(0, said.find('\n') + 1);
    }
    EXPECT_EQ(said, "");
  }
}

// Gives sharedVar the values of `own` and has them written.
void changeAll(SettingsStore& store) {
  sharedVar::pathToQuil = own[0];
  sharedVar::startState = false;
  sharedVar::startFlag = 7;
  sharedVar::scsiTabState = sharedVar::quitGUI = true;
  store.writeBack();
}

TEST(SettingsStore, WritesBackWithWhatItDoesNotKnow) {
  FakeHost host;
  host.home.write(FakeHost::settings, settings(2, "<string>wrong</string>"));
  SettingsStore store(host.host());
  store.load();
  host.said();
  changeAll(store);
  const std::string written = host.home.read(FakeHost::settings);
  EXPECT_EQ(host.said(), std::to_string(written.size()) + " bytes\n");
  EXPECT_NE(written.find("<key>Mine</key>"), std::string::npos);
  EXPECT_NE(written.find("<real>1.5"), std::string::npos);
  EXPECT_EQ(load(host), own);
  EXPECT_EQ(host.said(), "") << "repaired";
  fs::remove(host.home.path(FakeHost::settings));
  fs::create_directory(host.home.path(FakeHost::settings));
  store.writeBack();
  EXPECT_EQ(host.said(), std::to_string(written.size()) + " bytes\nIs a directory\n");
}

TEST(SettingsStore, WithoutAWritableBundleTakesTheConfigFolder) {
  const std::string mine = ".config/quillon-settings/Prefs.plist";
  FakeHost host;
  const std::string text = settings(2, "<integer>1</integer>");
  host.home.write(FakeHost::settings, text);
  fs::permissions(host.home.path(FakeHost::settings), fs::perms(0444));
  // The superuser may write everything: ask as somebody else.
  const bool superuser = ::getuid() == 0;
  ASSERT_TRUE(!superuser || ::setreuid(65534, static_cast<uid_t>(-1)) == 0);
  SettingsStore store(host.host());
  ASSERT_TRUE(!superuser || ::setreuid(0, static_cast<uid_t>(-1)) == 0);
  store.load();
  EXPECT_EQ(sharedVar::startFlag, 1) << "as the bundle's file says";
  EXPECT_FALSE(fs::exists(host.home.path(mine)));
  changeAll(store);
  EXPECT_EQ(host.home.read(FakeHost::settings), text);
  EXPECT_NE(host.home.read(mine).find("<key>Mine</key>"), std::string::npos);
  sharedVar::startFlag = 0;
  store.load();
  EXPECT_EQ(shared(), own);

  FakeHost other;
  fs::remove_all(other.home.path("QuillonSettings.app"));
  SettingsStore elsewhere(other.host());
  changeAll(elsewhere);
  EXPECT_EQ(std::to_string(other.home.read(mine).size()) + " bytes\n", other.said());
  EXPECT_FALSE(fs::exists(other.home.path("QuillonSettings.app")));
}

TEST(EmulatorLocation, FollowsTheBundle) {
  struct Case {
    std::string bundle;
    std::string folder;
    std::string root;
  };
  const std::vector<Case> cases = {{"/Applications/Q.app", "/Applications", "/Applications/"},
                                   {"/my apps/a  b/Q S.app", "/my apps/a  b", "/my apps/a  b/"},
                                   {"/\u00c9mu 100%/Q.app", "/\u00c9mu 100%", "/%C3%89mu 100%25/"},
                                   {"/a%20b/Q.app", "/a%20b", "/a%2520b/"},
                                   {"/a[1]?#/Q.app", "/a[1]?#", "/a%5B1%5D%3F%23/"},
                                   {"/Q.app", "/", "/"}};
  for (const Case& each : cases) {
    FakeHost host;
    findLocalPath(platform::Bundle(each.bundle), host.output);
    EXPECT_EQ(host.said(), "local path is: " + each.folder + "\n");
    EXPECT_EQ(sharedVar::pathToQuilRoot, each.root);
    EXPECT_EQ(sharedVar::localPath->path(), each.folder);
    for (const std::int64_t mode : {0, 1, 2, 3, -1}) {
      sharedVar::startFlag = mode;
      sharedVar::pathToQuil = "stored";
      applyLocalRule(host.output);
      const bool local = mode == 2;
      EXPECT_EQ(sharedVar::pathToQuil, local ? each.root + "/Quillon.app" : "stored");
      EXPECT_EQ(host.said(), local ? "local path is enabled: " + each.root + "/Quillon.app\n" : "");
    }
  }
  FakeHost host;
  sharedVar::startFlag = startLocal;
  sharedVar::pathToQuil = "stored";
  applyLocalRule(host.output);
  EXPECT_EQ(sharedVar::pathToQuil, "stored") << "without a root";
}

}  // namespace
}  // namespace app
