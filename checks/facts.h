#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "checks/state.h"

namespace checks {

/// What the file system says of a path, links followed.
struct FileFact {
  enum class Kind {
    nothing,
    file,
    folder,
    other,  // a device, a pipe
    unknown,
  };

  Kind kind = Kind::nothing;
  std::string error{};  // why the kind is unknown
  platform::FileStamp stamp;
  bool isReadable = false;
  bool isWritable = false;

  [[nodiscard]] bool isSameFile(const FileFact& other) const {
    return stamp.device == other.stamp.device && stamp.inode == other.stamp.inode;
  }
};

/// What findings need to know of files.
struct Facts {
  FileFact quillon;
  bool hasProgram = false;  // whether there is something to execute at its place
  FileFact rom;
  FileFact sharedFolder{};
  FileFact keycodeFile{};
  std::vector<FileFact> disks;  // as many as the state has, in its order
  FileFact preferences;
  bool folderIsWritable = false;  // of the preferences file
};

/// Asks the file system for the facts about all paths of the state. It changes nothing and may
/// take as long as a dead network mount does.
Facts gather(const State& state);

/// Facts that nothing is to be found about: all files are there and as they should be.
Facts assumedFine(const State& state);

}  // namespace checks
