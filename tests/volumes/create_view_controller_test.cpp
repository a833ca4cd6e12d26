#include "volumes/create_view_controller.h"

#include <gtest/gtest.h>

#include "app/emulator_location.h"
#include "tests/support/fake_host.h"

namespace volumes {
namespace {

namespace fs = std::filesystem;

/// A sheet of a front-end whose bundle is in `own`, below the home folder.
struct Sheet {
  tests::FakeHost fake;
  ImageFolder folder{fake.home.path(".local/share")};
  createViewController controller{fake.output, fake.panels, folder};

  explicit Sheet(const char* own) {
    fs::create_directories(fake.home.path(own));
    app::findLocalPath(platform::Bundle(fake.home.path(own) + "/Q.app"), fake.output);
  }

  void make(const char* name) {
    controller.viewWillAppear();
    controller.createName.setStringValue(name);
    controller.createSize.setStringValue("0");
    controller.createImage.sendAction();
  }

  [[nodiscard]] bool has(const char* file) const { return fs::exists(fake.home.path(file)); }
};

TEST(CreateViewController, WritesTheTypedNameIntoTheOwnFolderUntilAnotherIsChosen) {
  Sheet sheet("100%");
  for (const auto* other : {"100%25/sub x", "100%25/sub%20x", "100%/sub x", "100%/sub%20x"}) {
    fs::create_directories(sheet.fake.home.path(other));
  }
  sheet.make("sub%20x/in");
  EXPECT_TRUE(sheet.has("100%/sub%20x/in.dsk"));
  const auto chosen = platform::Location::fromPath(sheet.fake.home.path("100%/sub x"));
  sheet.fake.panels.answers = {{chosen}, {}};
  sheet.controller.chooseImageFolder.sendAction();
  sheet.controller.chooseImageFolder.sendAction();  // and is cancelled
  createViewController next(sheet.fake.output, sheet.fake.panels, sheet.folder);
  next.viewWillAppear();
  EXPECT_EQ(next.imageFolder.stringValue(), chosen.path() + "/");
  sheet.make("disk");
  EXPECT_TRUE(sheet.has("100%/sub x/disk.dsk"));
  fs::remove_all(chosen.path());
  next.viewWillAppear();
  EXPECT_FALSE(next.folderState().isWritable) << "it is gone";
}

TEST(CreateViewController, WhereItMayNotWriteImagesGoToThePersonsData) {
  Sheet sheet("gone");
  fs::remove(sheet.fake.home.path("gone"));  // nobody can write there, not even root
  sheet.make("missing/disk");
  const std::string data = sheet.fake.home.path(".local/share/quillon-settings/");
  EXPECT_EQ(sheet.controller.imageFolder.stringValue(), data);
  EXPECT_TRUE(sheet.controller.folderState().isWritable);
  EXPECT_FALSE(fs::exists(data)) << "the folder of an image that failed";
  sheet.make("disk");
  EXPECT_TRUE(fs::exists(data + "disk.dsk"));
}

}  // namespace
}  // namespace volumes
