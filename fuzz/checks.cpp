// What the checks find about disk images of all kinds and about lines, worked out plainly once
// more.

#include <algorithm>
#include <filesystem>

#include "checks/findings.h"
#include "document/lines.h"
#include "tests/support/fuzz.h"
#include "tests/support/model.h"
#include "tests/support/temporary_folder.h"

namespace {

/// A folder with one file of each kind, each named by a letter. "n" is none of them.
class Kinds : public tests::TemporaryFolder {
 public:
  Kinds() {
    write("f", "text");
    write("e", "");
    std::filesystem::create_directory(path("d"));
    std::filesystem::create_symlink("f", path("l"));
    std::filesystem::create_hard_link(path("f"), path("h"));
    std::filesystem::create_symlink("c", path("c"));  // a circle
  }
};

/// How many of the disks are one of these letters.
std::size_t count(const std::string& disks, std::string_view letters) {
  return static_cast<std::size_t>(std::count_if(
      disks.begin(), disks.end(), [&](char disk) { return letters.find(disk) != letters.npos; }));
}

/// The number of findings whose sentence holds a part, and of those that should.
void expect(const std::vector<checks::Finding>& found, std::string_view part, std::size_t number) {
  const auto holds = [&](const checks::Finding& finding) {
    return std::string_view(finding.text.format).find(part) != part.npos;
  };
  tests::check(static_cast<std::size_t>(std::count_if(found.begin(), found.end(), holds)) == number,
               std::string(part));
}

}  // namespace

/// The input: a letter for each disk, a line feed, the text of a preferences file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Kinds folder;
  const std::string input = tests::textOf(data, size);
  std::string disks = input.substr(0, input.find('\n'));
  std::erase_if(disks, [](char disk) { return std::string_view("fedlhcn").find(disk) > 6; });
  tests::Model model(input.substr(std::min(input.find('\n'), input.size())));
  model.disks.clear();
  for (const char disk : disks) {
    model.disks.emplace_back(1, disk);
  }

  checks::State state;
  state.homeDirectory = folder.path();
  state.disks = model.disks;
  std::size_t elsewhere = 0;
  for (const document::KeyRow& row : document::keyTable) {
    state.settings.at(indexOf(row.key)).value = model[row.key];
    const auto lines = document::Lines(model.text());
    const auto first = lines.firstContaining(row.text);
    elsewhere += first == std::string(row.text) + model[row.key] ? 0 : 1;
  }
  const auto found = checks::findings(state, checks::gather(state));

  expect(found, "in the list", disks.empty() ? 1 : 0);
  expect(found, "one and the same", (count(disks, "flh") > 1) + (count(disks, "e") > 1));
  expect(found, "disk image \"%1\" is missing", count(disks, "n") == 1);
  expect(found, "disk images are missing", count(disks, "n") > 1);
  expect(found, "disk image \"%1\" is a folder", count(disks, "d") == 1);
  expect(found, "disk images are folders", count(disks, "d") > 1);
  expect(found, "disk image \"%1\" is empty", count(disks, "e") == 1);
  expect(found, "disk images are empty", count(disks, "e") > 1);
  expect(found, "disk image \"%1\" cannot be reached", count(disks, "c") == 1);
  expect(found, "disk images cannot be reached", count(disks, "c") > 1);
  expect(found, "read from another line", elsewhere);
  for (std::size_t index = 1; index < found.size(); ++index) {
    tests::check(found[index - 1].level <= found[index].level, "the gravest first");
  }
  return 0;
}
