// What the checks find about disk images of all kinds, worked out plainly once more.

#include <algorithm>
#include <filesystem>

#include "checks/findings.h"
#include "tests/support/fuzz.h"
#include "tests/support/temporary_folder.h"

namespace {

/// A folder with a file of each kind, named by its letter. "n" is none of them.
struct Kinds : tests::TemporaryFolder {
  Kinds() {
    write("f", "text");
    write("e", "");
    std::filesystem::create_directory(path("d"));
    std::filesystem::create_symlink("f", path("l"));
    std::filesystem::create_hard_link(path("f"), path("h"));
    std::filesystem::create_symlink("c", path("c"));  // a circle
  }
};

}  // namespace

/// The input: a byte for each disk.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Kinds folder;
  checks::State state;
  state.homeDirectory = folder.path();
  for (const char byte : tests::textOf(data, size)) {
    state.disks.emplace_back(1, "fedlhcn"[static_cast<unsigned char>(byte) % 7]);
  }
  const auto found = checks::findings(state, checks::gather(state));

  const auto expect = [&](bool isFound, const std::string& part) {
    const auto holds = [&](const checks::Finding& finding) {
      return std::string(finding.text.format).find(part) != std::string::npos;
    };
    tests::check(std::any_of(found.begin(), found.end(), holds) == isFound, part);
  };
  const auto count = [&](const char* letter) {
    return std::count(state.disks.begin(), state.disks.end(), letter);
  };
  const auto expectOf = [&](const char* letter, const char* ofOne, const char* ofSeveral) {
    expect(count(letter) == 1, std::string("disk image \"%1\" ") + ofOne);
    expect(count(letter) > 1, std::string("disk images ") + ofSeveral);
  };
  expectOf("n", "is missing", "are missing");
  expectOf("d", "is a folder", "are folders");
  expectOf("e", "is empty", "are empty");
  expectOf("c", "cannot be reached", "cannot be reached");
  expect(state.disks.empty(), "in the list");
  expect(count("f") + count("l") + count("h") > 1 || count("e") > 1, "one and the same");
  const auto isGraver = [](const auto& one, const auto& other) { return one.level < other.level; };
  tests::check(std::is_sorted(found.begin(), found.end(), isGraver), "the gravest first");
  return 0;
}
