// What the checks find about disk images of all kinds and about lines, worked out plainly once
// more.

#include <algorithm>
#include <array>
#include <filesystem>

#include "checks/findings.h"
#include "document/lines.h"
#include "tests/support/fuzz.h"
#include "tests/support/model.h"
#include "tests/support/temporary_folder.h"

namespace {

constexpr std::string_view kinds = "fedlhcn";

/// A folder with one file of each kind, each named by its letter. "n" is none of them.
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

/// The input: a letter for each disk, a line feed, the text of a preferences file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Kinds folder;
  const std::string input = tests::textOf(data, size);
  tests::Model model(input.substr(std::min(input.find('\n'), input.size())));
  checks::State state;
  state.homeDirectory = folder.path();
  for (const char letter : input.substr(0, input.find('\n'))) {
    if (kinds.find(letter) != kinds.npos) {
      state.disks.emplace_back(1, letter);
    }
  }
  model.disks = state.disks;
  const document::Lines lines(model.text());
  std::ptrdiff_t elsewhere = 0;
  for (const document::KeyRow& row : document::keyTable) {
    state.settings.at(indexOf(row.key)).value = model[row.key];
    const bool isFirst = lines.firstContaining(row.text) == std::string(row.text) + model[row.key];
    elsewhere += isFirst ? 0 : 1;
  }
  const auto found = checks::findings(state, checks::gather(state));

  const auto expect = [&](std::ptrdiff_t number, std::string_view part) {
    const auto holds = [&](const checks::Finding& finding) {
      return std::string_view(finding.text.format).find(part) != part.npos;
    };
    tests::check(std::count_if(found.begin(), found.end(), holds) == number, std::string(part));
  };
  const auto count = [&](const char* letter) {
    return std::count(state.disks.begin(), state.disks.end(), letter);
  };
  expect(state.disks.empty() ? 1 : 0, "in the list");
  expect((count("f") + count("l") + count("h") > 1) + (count("e") > 1), "one and the same");
  const std::array<const char*, 3> problems[] = {
      {"n", "disk image \"%1\" is missing", "disk images are missing"},
      {"d", "disk image \"%1\" is a folder", "disk images are folders"},
      {"e", "disk image \"%1\" is empty", "disk images are empty"},
      {"c", "disk image \"%1\" cannot be reached", "disk images cannot be reached"}};
  for (const auto& [letter, ofOne, ofSeveral] : problems) {
    expect(count(letter) == 1, ofOne);
    expect(count(letter) > 1, ofSeveral);
  }
  expect(elsewhere, "read from another line");
  const auto isGraver = [](const auto& one, const auto& other) { return one.level < other.level; };
  tests::check(std::is_sorted(found.begin(), found.end(), isGraver), "the gravest first");
  return 0;
}
