#include <gtest/gtest.h>

#include <random>

#include "fuzz/use.h"

namespace {

TEST(RandomUse, TenThousandActionsSaveWhatTheModelSays) {
  tests::FakeHost host;
  editor::ViewController window(host.host());
  window.viewDidLoad();
  fuzz::ControlHand hand;
  std::mt19937 random(20);  // NOLINT: always the same actions
  fuzz::Use use(host, window, hand, [&](std::size_t count) { return random() % count; });
  for (int turn = 0; turn < 10000; ++turn) {
    ASSERT_TRUE(use.act()) << "action " << turn << ": " << use.broken();
  }
  EXPECT_GT(use.saves(), 100);
  const auto threads = std::filesystem::directory_iterator("/proc/self/task");
  EXPECT_EQ(std::distance(begin(threads), end(threads)), 1) << "everything runs on one thread";
}

}  // namespace
