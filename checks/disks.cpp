// What is wrong with disk images: told together, however many they are.

#include <algorithm>
#include <map>
#include <utility>

#include "checks/parts.h"

namespace checks {
namespace {

using platform::translatable;
using Kind = FileFact::Kind;

constexpr std::size_t mostNamed = 3;

struct Problem {
  Level level;
  const char* one;   // the path
  const char* many;  // how many, of how many, the first paths
  bool (*concerns)(const FileFact&);
};

// An image belongs to the first problem that concerns it.
constexpr std::array<Problem, 6> problems = {{
    {Level::warning, translatable("Checks", "The disk image \"%1\" is missing."),
     translatable("Checks", "%1 of %2 disk images are missing: %3."),
     [](const FileFact& image) { return image.kind == Kind::nothing; }},
    {Level::warning, translatable("Checks", "The disk image \"%1\" cannot be reached."),
     translatable("Checks", "%1 of %2 disk images cannot be reached: %3."),
     [](const FileFact& image) { return image.kind == Kind::unknown; }},
    {Level::warning, translatable("Checks", "The disk image \"%1\" is a folder."),
     translatable("Checks", "%1 of %2 disk images are folders: %3."),
     [](const FileFact& image) { return image.kind == Kind::folder; }},
    {Level::warning,
     translatable("Checks", "There is no permission to read the disk image \"%1\"."),
     translatable("Checks", "There is no permission to read %1 of %2 disk images: %3."),
     [](const FileFact& image) { return !image.isReadable; }},
    {Level::warning, translatable("Checks", "The disk image \"%1\" is empty."),
     translatable("Checks", "%1 of %2 disk images are empty: %3."),
     [](const FileFact& image) { return image.kind == Kind::file && image.stamp.size == 0; }},
    {Level::note, translatable("Checks", "The disk image \"%1\" cannot be written to."),
     translatable("Checks", "%1 of %2 disk images cannot be written to: %3."),
     [](const FileFact& image) { return !image.isWritable; }},
}};

using Indexes = std::vector<std::size_t>;

std::string firstOf(const State& state, const Indexes& images) {
  std::string list;
  for (std::size_t number = 0; number < std::min(images.size(), mostNamed); ++number) {
    list.append(number == 0 ? "" : ", ").append(state.disks[images[number]]);
  }
  return images.size() > mostNamed ? list + ", …" : list;
}

// The entries of each file that stands in the list more than once.
std::vector<Indexes> sameFiles(const State& state, const Facts& facts) {
  std::map<std::pair<std::uint64_t, std::uint64_t>, Indexes> byFile;
  for (std::size_t index = 0; index < state.disks.size(); ++index) {
    const FileFact& image = facts.disks.at(index);
    if (image.kind == Kind::file || image.kind == Kind::other) {
      byFile[{image.stamp.device, image.stamp.inode}].push_back(index);
    }
  }
  std::vector<Indexes> several;
  for (auto& [file, images] : byFile) {
    if (images.size() > 1) {
      several.push_back(std::move(images));
    }
  }
  return several;
}

}  // namespace

void checkDisks(const State& state, const Facts& facts, Collector& found) {
  if (state.disks.empty()) {
    found.add(Level::warning, Place::diskImages,
              translatable("Checks", "There is no disk image in the list."));
  }
  std::array<Indexes, problems.size()> concerned;
  for (std::size_t index = 0; index < state.disks.size(); ++index) {
    const auto* const problem = std::find_if(
        problems.begin(), problems.end(),
        [&](const Problem& candidate) { return candidate.concerns(facts.disks.at(index)); });
    if (problem != problems.end()) {
      concerned.at(static_cast<std::size_t>(problem - problems.begin())).push_back(index);
    }
  }
  for (const Indexes& images : sameFiles(state, facts)) {
    found.addImages(Level::warning, images.front(),
                    translatable("Checks",
                                 "%1 disk images are one and the same file, which two writers "
                                 "would damage: %2."),
                    std::to_string(images.size()), firstOf(state, images));
  }
  for (std::size_t index = 0; index < problems.size(); ++index) {
    const Indexes& images = concerned.at(index);
    const Problem& problem = problems.at(index);
    if (images.size() == 1) {
      found.addImages(problem.level, images.front(), problem.one, state.disks[images.front()]);
    } else if (images.size() > 1) {
      found.addImages(problem.level, images.front(), problem.many, std::to_string(images.size()),
                      std::to_string(state.disks.size()), firstOf(state, images));
    }
  }
}

}  // namespace checks
