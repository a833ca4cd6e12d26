// Gives a fuzz target the inputs that are kept for it, and random ones. Argument: their folder.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "tests/support/fuzz.h"

// Waiting for the disk would take longer than all else.
extern "C" int fsync(int /*file*/) { return 0; }

int main(int, char** arguments) {
  const auto give = [](const std::string& input) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  };
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::ifstream file(entry.path(), std::ios::binary);
    give({std::istreambuf_iterator<char>(file), {}});
  }
  std::mt19937 random(68030);  // NOLINT: always the same inputs
  for (int round = 0; round < 1000; ++round) {
    std::string input(random() % 60, '\0');
    for (char& byte : input) {
      byte = static_cast<char>(random());
    }
    give(input);
  }
}
