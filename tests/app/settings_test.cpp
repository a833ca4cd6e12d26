#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

#include "app/emulator_location.h"
#include "app/settings_store.h"
#include "app/shared_var.h"
#include "platform/plist_compat.h"
#include "tests/support/fake_host.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using tests::FakeHost;

/// What sharedVar holds of the settings that are stored.
struct Stored {
  std::string location;
  bool start = true;
  std::int64_t flag = startLocal;
  bool scsi = false;
  bool quit = false;

  bool operator==(const Stored&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Stored& stored) {
    return out << stored.location << ", start " << stored.start << ", flag " << stored.flag
               << ", SCSI " << stored.scsi << ", quit " << stored.quit;
  }
};

Stored loaded() {
  return {sharedVar::pathToQuil, sharedVar::startState, sharedVar::startFlag,
          sharedVar::scsiTabState, sharedVar::quitGUI};
}

/// The property list in tests/data, with the setting of every key away from the shipped one.
struct SettingsTest : testing::Test {
  FakeHost host;
  std::string file = tests::dataFile("own-settings.plist");
  Stored own = {
      .location = "/Q\u00fc & A.app", .start = false, .flag = 7, .scsi = true, .quit = true};

  [[nodiscard]] std::string with(const std::string& part, const std::string& instead) const {
    return std::string(file).replace(file.find(part), part.size(), instead);
  }
};

std::string binary(const std::string& xml) {
  plist_t root = nullptr;
  char* bytes = nullptr;
  std::uint32_t size = 0;
  plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &root);
  plist_to_bin(root, &bytes, &size);
  const platform::PlistText owned(bytes);
  plist_free(root);
  return {bytes, size};
}

TEST_F(SettingsTest, ShippedFileHoldsAllKeys) {
  SettingsStore(host.host()).load();
  EXPECT_EQ(loaded(), Stored{});
  EXPECT_EQ(host.said(), "");
}

TEST_F(SettingsTest, WhatIsUnusableHasTheShippedValue) {
  struct Row {
    const char* what;
    std::string content;
    Stored loaded = {};
    int told = 5;  // keys without a usable value
  };
  Stored started = own;
  started.start = true;
  Stored nowhere = own;
  nowhere.location = "";
  const auto nested = [&](int levels) {
    std::string lists;
    for (int level = 2; level < levels; ++level) {  // in an array in the dictionary
      lists = "<array>" + lists + "</array>";
    }
    return with("<real>1.5</real>", lists);
  };
  // Newer versions of the library know these formats, too.
  const std::string openStep =
      R"({"Quillon.app location" = "/Q"; "Start Button Enabled" = 0; "Start Flag" = 1;})";
  const std::string json =
      R"({"Quillon.app location": "/Q", "Start Button Enabled": false, "Start Flag": 1})";
  // clang-format off
  const std::vector<Row> rows = {
      {.what = "64 levels", .content = nested(64), .loaded = own, .told = 0},
      {.what = "64 binary levels", .content = binary(nested(64)), .loaded = own, .told = 0},
      {.what = "65 levels", .content = nested(65)},
      {.what = "65 binary levels", .content = binary(nested(65))},
      {.what = "3,000 levels", .content = nested(3000)},
      {.what = "3,000 binary levels", .content = binary(nested(3000))},
      {.what = "all keys", .content = file, .loaded = own, .told = 0},
      {.what = "the binary form", .content = binary(file), .loaded = own, .told = 0},
      {.what = "a number for a truth value", .content = with("<false/>", "<integer>0</integer>"), .loaded = started, .told = 1},
      {.what = "a truth value for a text", .content = with("<string>/Q\u00fc &amp; A.app</string>", "<true/>"), .loaded = nowhere, .told = 1},
      {.what = "nothing", .content = ""},
      {.what = "garbage", .content = "garbage"},
      {.what = "half a list", .content = file.substr(0, 200)},
      {.what = "half a binary list", .content = binary(file).substr(0, 100)},
      {.what = "OpenStep", .content = openStep},
      {.what = "JSON", .content = json},
      {.what = "a list without keys", .content = "<plist><array/></plist>"},
      {.what = "more than 64 KiB", .content = file + std::string(1 << 16, ' ')}};
  // clang-format on
  const auto expectLoaded = [&](const Stored& expected, int told) {
    SettingsStore store(host.host());
    store.load();
    EXPECT_EQ(loaded(), expected);
    const std::string said = host.said();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), told) << said;
    return store;
  };
  for (const auto& [what, content, expected, told] : rows) {
    SCOPED_TRACE(what);
    host.home.write(FakeHost::settings, content);
    expectLoaded(expected, told).writeBack();
    host.said();
    expectLoaded(expected, 0);
  }
  fs::remove(host.home.path(FakeHost::settings));
  expectLoaded({}, 5);
  fs::create_directory(host.home.path(FakeHost::settings));
  expectLoaded({}, 5);
}

TEST_F(SettingsTest, WritesBackWithWhatItDoesNotKnow) {
  host.home.write(FakeHost::settings, binary(file));
  SettingsStore store(host.host());
  store.load();
  sharedVar::pathToQuil = "/new <&>";
  sharedVar::startFlag = startCustom;
  sharedVar::quitGUI = false;
  store.writeBack();
  const std::string written = host.home.read(FakeHost::settings);
  EXPECT_EQ(host.said(), std::to_string(written.size()) + " bytes\n");
  for (const char* const kept : {"<key>Mine</key>", "<real>1.5", "<date>2020-01-02T03:04:05Z",
                                 "AAEC", "<integer>-5", "<key>k</key>", "<string>&lt;v"}) {
    EXPECT_NE(written.find(kept), written.npos) << kept << " is not in " << written;
  }
  store.load();
  EXPECT_EQ(loaded(), (Stored{.location = "/new <&>", .start = false, .flag = 1, .scsi = true}));
  EXPECT_EQ(host.said(), "") << "each key has its own type again";
  fs::remove(host.home.path(FakeHost::settings));
  fs::create_directory(host.home.path(FakeHost::settings));
  store.writeBack();
  EXPECT_TRUE(host.said().ends_with(" bytes\nIs a directory\n"));
}

TEST_F(SettingsTest, APersonHasAFileWhereTheBundleIsReadOnly) {
  const std::string path = host.home.write(FakeHost::settings, file);
  fs::permissions(path, fs::perms(0444));
  // The superuser may write everything: ask as somebody else.
  const bool superuser = ::getuid() == 0;
  ASSERT_TRUE(!superuser || ::setreuid(65534, static_cast<uid_t>(-1)) == 0);
  SettingsStore store(host.host());
  ASSERT_TRUE(!superuser || ::setreuid(0, static_cast<uid_t>(-1)) == 0);
  store.load();
  EXPECT_EQ(loaded(), own) << "it begins as the bundle's";
  sharedVar::startFlag = startNone;
  store.writeBack();
  EXPECT_EQ(host.home.read(FakeHost::settings), file);
  EXPECT_TRUE(fs::exists(host.home.path(".config/quillon-settings/Prefs.plist")));
  sharedVar::startFlag = startLocal;
  store.load();
  EXPECT_EQ(sharedVar::startFlag, startNone);
}

TEST_F(SettingsTest, LocalModeFollowsTheBundle) {
  const std::string root = "/\u00c9  100%[?#";
  const std::string emulator = "/%C3%89  100%25%5B%3F%23//Quillon.app";
  sharedVar::startFlag = startLocal;
  applyLocalRule(host.output);
  EXPECT_EQ(sharedVar::pathToQuil, "") << "without a root";
  findLocalPath(platform::Bundle(root + "/Q S.app"), host.output);
  applyLocalRule(host.output);
  EXPECT_EQ(host.said(), "local path is: " + root + "\nlocal path is enabled: " + emulator + "\n");
  for (const std::int64_t mode : {0, 1, -1}) {
    sharedVar::startFlag = mode;
    sharedVar::pathToQuil = "/mine";
    applyLocalRule(host.output);
    EXPECT_EQ(sharedVar::pathToQuil, "/mine") << "mode " << mode;
  }
  findLocalPath(platform::Bundle("/Q.app"), host.output);
  EXPECT_EQ(sharedVar::pathToQuilRoot, "/");
}

TEST_F(SettingsTest, OwnFolderIsNotMistakenForOneNamedLikeItsLocation) {
  const std::string foreign = host.home.write("100%25/Quillon.app", "");
  findLocalPath(platform::Bundle(host.home.path("100%/Q S.app")), host.output);
  struct Row {
    std::string location;
    std::string started;
  };
  const std::vector<Row> rows = {
      {.location = localEmulator(), .started = host.home.path("100%//Quillon.app")},
      {.location = host.home.path("100%25/Old.app"), .started = host.home.path("100%/Old.app")},
      {.location = foreign, .started = foreign},
      {.location = "/a%20b/Quillon.app", .started = "/a%20b/Quillon.app"}};
  for (const Row& row : rows) {
    sharedVar::pathToQuil = row.location;
    EXPECT_EQ(emulatorPath(), row.started);
  }
}

}  // namespace
}  // namespace app
