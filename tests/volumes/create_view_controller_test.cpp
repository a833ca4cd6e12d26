#include "volumes/create_view_controller.h"

#include <gtest/gtest.h>

#include "app/emulator_location.h"
#include "tests/support/temporary_folder.h"

namespace volumes {
namespace {

namespace fs = std::filesystem;

TEST(CreateViewController, WritesTheTypedNameIntoTheOwnFolder) {
  const tests::TemporaryFolder folder;
  for (const auto* other : {"100%25/sub x", "100%25/sub%20x", "100%/sub x", "100%/sub%20x"}) {
    fs::create_directories(folder.path(other));
  }
  platform::BufferOutput output;
  app::findLocalPath(platform::Bundle(folder.path("100%/Q.app")), output);
  createViewController sheet(output);
  sheet.createName.setStringValue("sub%20x/in");
  sheet.createSize.setStringValue("0");
  sheet.createImage.sendAction();
  EXPECT_TRUE(fs::exists(folder.path("100%/sub%20x/in.dsk"))) << sheet.createStatus.stringValue();
}

}  // namespace
}  // namespace volumes
