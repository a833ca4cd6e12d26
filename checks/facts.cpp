#include "checks/facts.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "platform/descriptor.h"
#include "platform/file_stamp.h"
#include "platform/workspace.h"

namespace checks {
namespace {

using document::Key;
using Kind = FileFact::Kind;

FileFact unknown(const std::error_code& error) {
  FileFact fact;
  fact.kind = Kind::unknown;
  fact.error = error.message();
  return fact;
}

bool mayAccess(const std::string& path, int mode) { return ::access(path.c_str(), mode) == 0; }

FileFact factAbout(const std::string& path) {
  if (path.find('\0') != std::string::npos) {
    return unknown(std::make_error_code(std::errc::invalid_argument));
  }
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    const std::error_code error = platform::lastError();
    const bool isMissing =
        error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
    return isMissing ? FileFact() : unknown(error);
  }
  FileFact fact;
  fact.kind = S_ISREG(status.st_mode)   ? Kind::file
              : S_ISDIR(status.st_mode) ? Kind::folder
                                        : Kind::other;
  fact.stamp = platform::stampOf(status);
  // Most files allow both: one question is enough for them.
  const bool both = mayAccess(path, R_OK | W_OK);
  fact.isReadable = both || mayAccess(path, R_OK);
  fact.isWritable = both || mayAccess(path, W_OK);
  return fact;
}

// The emulator is started in the home folder.
FileFact factAbout(const State& state, const std::string& path) {
  return factAbout(path.starts_with('/') ? path : state.homeDirectory + "/" + path);
}

FileFact factAbout(const State& state, Key key) {
  return state.isChosen(key) ? factAbout(state, state.value(key)) : FileFact();
}

void gatherQuillon(const std::string& application, Facts& facts) {
  if (application.empty() || application.find('\0') != std::string::npos) {
    return;
  }
  facts.quillon = factAbout(application);
  const std::string program = platform::executableOf(application);
  facts.hasProgram = factAbout(program).kind == Kind::file && mayAccess(program, X_OK);
}

void gatherPreferences(const std::string& path, Facts& facts) {
  facts.preferences = factAbout(path);
  const std::string folder = std::filesystem::path(path).parent_path().string();
  facts.folderIsWritable = mayAccess(folder, W_OK | X_OK);
}

}  // namespace

Facts gather(const State& state) {
  Facts facts;
  gatherQuillon(state.pathToQuil, facts);
  facts.rom = factAbout(state, Key::rom);
  facts.sharedFolder = factAbout(state, Key::extfs);
  facts.keycodeFile = factAbout(state, Key::keycodefile);
  facts.disks.reserve(state.disks.size());
  std::transform(state.disks.begin(), state.disks.end(), std::back_inserter(facts.disks),
                 [&](const std::string& path) { return factAbout(state, path); });
  if (state.preferences.path) {
    gatherPreferences(*state.preferences.path, facts);
  }
  return facts;
}

Facts assumedFine(const State& state) {
  FileFact file;
  file.kind = Kind::file;
  file.isReadable = file.isWritable = true;
  file.stamp.size = 1 << 20;  // bytes: a ROM may be that large
  Facts facts;
  facts.quillon = facts.rom = facts.sharedFolder = facts.keycodeFile = facts.preferences = file;
  facts.hasProgram = facts.folderIsWritable = true;
  facts.sharedFolder.kind = Kind::folder;
  facts.preferences.stamp = state.preferences.stamp.value_or(file.stamp);
  for (std::size_t index = 0; index < state.disks.size(); ++index) {
    facts.disks.push_back(file);
    facts.disks.back().stamp.inode = index;
  }
  return facts;
}

}  // namespace checks
