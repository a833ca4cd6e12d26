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

const std::string file =
    "<plist version=\"1.0\"><dict><key>Quillon.app location</key><string>/Q\u00fc &amp; "
    "A.app</string><key>Start Button Enabled</key><false/><key>Start Flag</key>"
    "<integer>7</integer><key>SCSI Tab</key><true/><key>Quit on Start</key><true/>"
    "<key>Mine</key><array><real>1.5</real><date>2020-01-02T03:04:05Z</date><integer>-5</integer>"
    "<data>AAEC</data><dict><key>k</key><string>&lt;v</string></dict></array></dict></plist>\n";

std::string with(const std::string& part, const std::string& instead) {
  return std::string(file).replace(file.find(part), part.size(), instead);
}

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

// What sharedVar holds.
std::string shared() {
  return sharedVar::pathToQuil + (sharedVar::startState ? " start " : " - ") +
         std::to_string(sharedVar::startFlag) + (sharedVar::scsiTabState ? " SCSI" : " -") +
         (sharedVar::quitGUI ? " quit" : " -");
}

TEST(SettingsStore, WhatIsUnusableHasTheShippedValue) {
  const std::string shipped = " start 2 - -";
  FakeHost host;
  SettingsStore(host.host()).load();
  EXPECT_EQ(shared(), shipped);
  EXPECT_EQ(host.said(), "") << "the shipped file holds all keys";
  std::string deep = with("<real>1.5</real>", "<array></array>");
  for (int depth = 1; depth < 4000; ++depth) {
    deep.insert(deep.find("</array>"), "<array></array>");
  }
  std::vector<std::tuple<std::string, std::string, int>> cases = {
      // the content, what is loaded, how many keys are told
      {file, "/Q\u00fc & A.app - 7 SCSI quit", 0},
      {deep, "/Q\u00fc & A.app - 7 SCSI quit", 0},
      {binary(deep), "/Q\u00fc & A.app - 7 SCSI quit", 0},
      {with("<false/>", "<integer>0</integer>"), "/Q\u00fc & A.app start 7 SCSI quit", 1},
      {with("<string>/Q\u00fc &amp; A.app</string>", "<true/>"), " - 7 SCSI quit", 1}};
  for (const std::string& unusable :
       {std::string(), std::string("garbage"), file.substr(0, 200), binary(file).substr(0, 100),
        std::string("<plist><array/></plist>"), file + std::string(1 << 16, ' '),
        std::string("folder"), std::string("missing")}) {
    cases.emplace_back(unusable, shipped, 5);
  }
  for (const auto& [content, loaded, told] : cases) {
    SCOPED_TRACE(content.substr(0, 400));
    fs::remove_all(host.home.path(FakeHost::settings));
    if (content == "folder") {
      fs::create_directory(host.home.path(FakeHost::settings));
    } else if (content != "missing") {
      host.home.write(FakeHost::settings, content);
    }
    SettingsStore(host.host()).load();
    EXPECT_EQ(shared(), loaded);
    const std::string said = host.said();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), told) << said;
  }
}

TEST(SettingsStore, WritesBackWithWhatItDoesNotKnow) {
  const std::string mine = ".config/quillon-settings/Prefs.plist";
  const std::string old = with("<integer>7</integer>", "<string>7</string>");
  for (const bool writable : {true, false}) {
    FakeHost host;
    const std::string path = host.home.write(FakeHost::settings, writable ? old : binary(old));
    fs::permissions(path, fs::perms(writable ? 0644 : 0444));
    // The superuser may write everything: ask as somebody else.
    const bool superuser = !writable && ::getuid() == 0;
    ASSERT_TRUE(!superuser || ::setreuid(65534, static_cast<uid_t>(-1)) == 0);
    SettingsStore store(host.host());
    ASSERT_TRUE(!superuser || ::setreuid(0, static_cast<uid_t>(-1)) == 0);
    store.load();
    EXPECT_EQ(host.said(), "Prefs.plist: no usable \"Start Flag\", taking 2\n");
    store.writeBack();
    const std::string written = host.home.read(writable ? FakeHost::settings : mine);
    const std::string bytes = std::to_string(written.size()) + " bytes\n";
    for (const auto* kept : {"<key>Mine</key>", "<real>1.5", "<date>2020-01-02T03:04:05Z", "AAEC",
                             "<integer>-5", "<key>k</key>", "<string>&lt;v"}) {
      EXPECT_NE(written.find(kept), written.npos) << kept << " in " << written;
    }
    EXPECT_EQ(host.home.read(writable ? mine : FakeHost::settings), writable ? "" : binary(old));
    store.load();
    EXPECT_EQ(host.said() + shared(), bytes + "/Q\u00fc & A.app - 2 SCSI quit");
    fs::remove(path);
    fs::create_directory(path);
    store.writeBack();
    EXPECT_EQ(host.said(), bytes + (writable ? "Is a directory\n" : ""));
  }
}

TEST(EmulatorLocation, FollowsTheBundle) {
  const std::string root = "/\u00c9  100%[?#";
  FakeHost host;
  sharedVar::startFlag = startLocal;
  applyLocalRule(host.output);  // without a root
  findLocalPath(platform::Bundle(root + "/Q S.app"), host.output);
  for (const std::int64_t mode : {2, 1, -1}) {
    sharedVar::startFlag = mode;
    applyLocalRule(host.output);
  }
  const std::string found = "/%C3%89  100%25%5B%3F%23//Quillon.app";
  EXPECT_EQ(host.said(), "local path is: " + root + "\nlocal path is enabled: " + found + "\n");
  EXPECT_EQ(sharedVar::pathToQuil, found);
  findLocalPath(platform::Bundle("/Q.app"), host.output);
  EXPECT_EQ(sharedVar::pathToQuilRoot, "/");
}

}  // namespace
}  // namespace app
