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

/// A property list in the other format; of what is none, nothing.
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

struct SettingsTest : testing::Test {
  /// Loads the settings and counts the keys that are told to have no usable value.
  SettingsStore load(const std::string& expected, std::ptrdiff_t told) {
    SettingsStore store(host.host());
    host.said();
    store.load();
    EXPECT_EQ(loaded(), expected);
    const std::string said = host.said();
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), told) << said;
    return store;
  }

  FakeHost host;
  std::string file = tests::dataFile("own-settings.plist");
};

TEST_F(SettingsTest, WhatIsUnusableHasTheShippedValueAndWhatIsUnknownStays) {
  constexpr const char* shipped = "\"\" 1 2 0 0";
  load(shipped, 0);
  for (const tests::Case& each :
       tests::cases("own-settings.txt", {"text", "part", "becomes", "loads", "told"})) {
    SCOPED_TRACE(each.written);
    const std::string text =
        each.has("text") ? each["text"] : tests::replaced(file, each["part"], each["becomes"]);
    for (const std::string& content : {binary(text), text}) {
      host.home.write(FakeHost::settings, content);
      load(each["loads"], std::stoi(each["told"])).writeBack();
      const std::string written = host.home.read(FakeHost::settings);
      EXPECT_TRUE(host.said().starts_with(std::to_string(written.size()) + " bytes\n"));
      load(each["loads"], 0);
      for (const char* const unknown : {"<key>Mine</key>", "<date>2020-01-02T03:04:05Z", "AAEC",
                                        "<integer>-5", "<string>&lt;v"}) {
        EXPECT_TRUE(each["told"] == "5" || written.find(unknown) != written.npos) << unknown;
      }
    }
  }
  for (const std::string& content :
       {file + std::string(1 << 16, ' '), binary(file).substr(0, 100)}) {
    host.home.write(FakeHost::settings, content);
    load(shipped, 5);
  }
  fs::remove(host.home.path(FakeHost::settings));
  load(shipped, 5);
  fs::create_directory(host.home.path(FakeHost::settings));
  load(shipped, 5).writeBack();
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
  EXPECT_EQ(sharedVar::startFlag, 7) << "it begins as the bundle's";
  sharedVar::startFlag = startNone;
  store.writeBack();
  EXPECT_EQ(host.home.read(FakeHost::settings), file);
  EXPECT_TRUE(fs::exists(host.home.path(".config/quillon-settings/Prefs.plist")));
  sharedVar::startFlag = startLocal;
  store.load();
  EXPECT_EQ(sharedVar::startFlag, startNone);
}

// Nor is its own folder, 100%, mistaken for one that is named like its location, 100%25.
TEST_F(SettingsTest, LocalModeStartsWhatIsBesideTheBundle) {
  const std::string foreign = host.home.write("100%25/Quillon.app", "");
  const std::string root = host.home.path("100%");
  const std::string emulator = host.home.path("100%25//Quillon.app");
  sharedVar::startFlag = startLocal;
  applyLocalRule(host.output);
  EXPECT_EQ(sharedVar::pathToQuil, "") << "without a root";
  findLocalPath(platform::Bundle(root + "/Q S.app"), host.output);
  applyLocalRule(host.output);
  EXPECT_EQ(host.said(), "local path is: " + root + "\nlocal path is enabled: " + emulator + "\n");
  const std::pair<std::string, std::string> startedFrom[] = {
      {emulator, host.home.path("100%//Quillon.app")},
      {host.home.path("100%25/Old.app"), host.home.path("100%/Old.app")},
      {foreign, foreign},
      {"/a%20b/Quillon.app", "/a%20b/Quillon.app"}};
  for (const std::int64_t mode : {startNone, startCustom}) {
    sharedVar::startFlag = mode;
    for (const auto& [location, started] : startedFrom) {
      sharedVar::pathToQuil = location;
      applyLocalRule(host.output);
      EXPECT_EQ(emulatorPath(), started);
    }
  }
  findLocalPath(platform::Bundle("/Q.app"), host.output);
  EXPECT_EQ(sharedVar::pathToQuilRoot, "/");
}

}  // namespace
}  // namespace app
