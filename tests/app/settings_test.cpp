#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

#include "app/emulator_location.h"
#include "app/settings_store.h"
#include "app/shared_var.h"
#include "platform/plist_compat.h"
#include "tests/support/data.h"
#include "tests/support/fake_host.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using tests::FakeHost;

/// What sharedVar holds of the settings that are stored, in their order.
std::string loaded() {
  return "\"" + sharedVar::pathToQuil + "\" " + std::to_string(sharedVar::startState) + " " +
         std::to_string(sharedVar::startFlag) + " " + std::to_string(sharedVar::scsiTabState) +
         " " + std::to_string(sharedVar::quitGUI);
}

const char* const shipped = "\"\" 1 2 0 0";

/// The property list in tests/data, with the setting of every key away from the shipped one.
struct SettingsTest : testing::Test {
  FakeHost host;
  std::string file = tests::dataFile("own-settings.plist");
  std::string own = "\"/Q\u00fc & A.app\" 0 7 1 1";
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

TEST_F(SettingsTest, WhatIsUnusableHasTheShippedValue) {
  struct Row {
    std::string content;
    std::string loaded = shipped;
    int told = 5;  // keys without a usable value
  };
  const auto with = [&](const std::string& part, const std::string& by) {
    return tests::replaced(file, part, by);
  };
  const auto nested = [&](int levels) {
    std::string lists;
    for (int level = 2; level < levels; ++level) {  // in an array in the dictionary
      lists = "<array>" + lists + "</array>";
    }
    return with("<real>1.5</real>", lists);
  };
  std::vector<Row> rows = {{.content = file, .loaded = own, .told = 0},
                           {.content = nested(64), .loaded = own, .told = 0},
                           {.content = nested(65)},
                           {.content = nested(3000)},
                           {.content = with("<false/>", "<integer>0</integer>"),
                            .loaded = "\"/Q\u00fc & A.app\" 1 7 1 1",
                            .told = 1},
                           {.content = with("<string>/Q\u00fc &amp; A.app</string>", "<true/>"),
                            .loaded = "\"\" 0 7 1 1",
                            .told = 1},
                           {.content = "<plist version=\"1.0\"><array/></plist>"}};
  for (std::size_t row = rows.size(); row-- > 0;) {
    rows.push_back({binary(rows[row].content), rows[row].loaded, rows[row].told});
  }
  // Newer versions of the library would know the first two formats, too.
  for (const std::string& content :
       {std::string(R"({"Quillon.app location" = "/Q"; "Start Flag" = 1;})"),
        std::string(R"({"Quillon.app location": "/Q", "Start Flag": 1})"), std::string(),
        std::string("garbage"), file.substr(0, 200), binary(file).substr(0, 100),
        file + std::string(1 << 16, ' ')}) {
    rows.push_back({.content = content});
  }
  const auto expectLoaded = [&](const std::string& expected, int told) {
    SettingsStore store(host.host());
    store.load();
    EXPECT_EQ(loaded(), expected);
    const std::string said = host.said();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), told) << said;
    return store;
  };
  expectLoaded(shipped, 0);
  for (const auto& [content, expected, told] : rows) {
    SCOPED_TRACE(content.substr(0, 3000));
    host.home.write(FakeHost::settings, content);
    expectLoaded(expected, told).writeBack();
    host.said();
    expectLoaded(expected, 0);
  }
  fs::remove(host.home.path(FakeHost::settings));
  expectLoaded(shipped, 5);
  fs::create_directory(host.home.path(FakeHost::settings));
  expectLoaded(shipped, 5);
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
  EXPECT_EQ(loaded(), "\"/new <&>\" 0 1 1 0");
  EXPECT_EQ(host.said(), "") << "each key has its own type again";
  fs::remove(host.home.path(FakeHost::settings));
  fs::create_directory(host.home.path(FakeHost::settings));
  store.writeBack();
  EXPECT_TRUE(host.said().ends_with(" bytes\nIs a directory\n"));
}

TEST_F(SettingsTest, APersonHasAFileWhereTheBundleIsReadOnly) {
  fs::permissions(host.home.write(FakeHost::settings, file), fs::perms(0444));
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
  const std::pair<std::string, std::string> startedFrom[] = {
      {localEmulator(), host.home.path("100%//Quillon.app")},
      {host.home.path("100%25/Old.app"), host.home.path("100%/Old.app")},
      {foreign, foreign},
      {"/a%20b/Quillon.app", "/a%20b/Quillon.app"}};
  for (const auto& [location, started] : startedFrom) {
    sharedVar::pathToQuil = location;
    EXPECT_EQ(emulatorPath(), started);
  }
}

}  // namespace
}  // namespace app
