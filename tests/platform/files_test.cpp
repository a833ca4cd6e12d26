#include "platform/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/temporary_folder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

TEST(Files, RefusesWhatIsNoFileWithoutWaiting) {
  const tests::TemporaryFolder folder;
  std::error_code error;
  ASSERT_EQ(::mkfifo(folder.path("fifo").c_str(), 0600), 0);
  const std::pair<std::string, std::errc> cases[] = {
      {folder.path(), std::errc::is_a_directory},
      {folder.path("fifo"), std::errc::operation_not_supported},
      {"/dev/zero", std::errc::operation_not_supported},
      {folder.path("no/where"), std::errc::no_such_file_or_directory},
      {"", std::errc::no_such_file_or_directory},
      {folder.path(std::string("a\0b", 3)), std::errc::invalid_argument}};
  for (const auto& [path, reason] : cases) {
    EXPECT_FALSE(readFile(path, error));
    EXPECT_EQ(error, reason) << "reading " << path;
    EXPECT_EQ(writeFile(path, "x"), reason) << "writing " << path;
  }
}

TEST(Files, ReadsWithinItsLimits) {
  const tests::TemporaryFolder folder;
  std::error_code error;
  const std::string file = folder.write("latin", "123456789\xe9");
  EXPECT_TRUE(readFile(file, error, 10));
  EXPECT_FALSE(readTextFile(file, error));
  EXPECT_EQ(error, std::errc::illegal_byte_sequence);
  EXPECT_GT(readFile("/proc/self/status", error).value_or("").size(), 10U) << "tells no size";
  for (const auto& path : {file, std::string("/proc/self/status")}) {
    EXPECT_FALSE(readFile(path, error, 9));
    EXPECT_EQ(error, std::errc::file_too_large);
  }
  fs::resize_file(file, largestFile + 1);
  EXPECT_FALSE(readFile(file, error));
  EXPECT_EQ(error, std::errc::file_too_large);
}

}  // namespace
}  // namespace platform
