// What is wrong with single files and folders: Quillon, the ROM, the shared folder, the table of
// key codes and the preferences file itself.

#include <bit>
#include <filesystem>

#include "checks/parts.h"

namespace checks {
namespace {

using document::Key;
using platform::translatable;
using Kind = FileFact::Kind;

// The sizes of the ROMs of such machines in bytes: each a power of two.
constexpr std::int64_t smallestRom = 64 << 10;
constexpr std::int64_t largestRom = 4 << 20;

bool isRomSize(std::int64_t bytes) {
  return bytes >= smallestRom && bytes <= largestRom &&
         std::has_single_bit(static_cast<std::uint64_t>(bytes));
}

}  // namespace

void checkQuillon(const State& state, const Facts& facts, Collector& found) {
  // app::localEmulator() puts a second "/" before "Quillon.app", which a person need not see.
  const std::string place = std::filesystem::path(state.pathToQuil).lexically_normal().string();
  const auto stop = [&](const char* format, auto... arguments) {
    found.add(Level::stops, Place::quillon, format, arguments...);
  };
  if (!state.isStartEnabled) {
    stop(translatable("Checks",
                      "Start is disabled: choose where Quillon is in Edit > Preferences."));
  } else if (place.empty()) {
    stop(translatable("Checks",
                      "Quillon is set to be nowhere: choose where it is in Edit > Preferences."));
  } else if (facts.quillon.kind == Kind::unknown) {
    stop(translatable("Checks", "Quillon cannot be reached at \"%1\": %2."), place,
         facts.quillon.error);
  } else if (facts.quillon.kind == Kind::nothing) {
    stop(translatable("Checks", "Quillon is not at \"%1\": nothing is there."), place);
  } else if (!facts.hasProgram) {
    stop(translatable("Checks", "Quillon is not at \"%1\": what is there holds no program."),
         place);
  }
}

void checkRom(const State& state, const Facts& facts, Collector& found) {
  const std::string& path = state.value(Key::rom);
  const FileFact& rom = facts.rom;
  const auto stop = [&](const char* format, auto... arguments) {
    found.add(Level::stops, Key::rom, format, arguments...);
  };
  if (!state.isChosen(Key::rom)) {
    stop(translatable("Checks", "No ROM file is chosen."));
  } else if (rom.kind == Kind::nothing) {
    stop(translatable("Checks", "The ROM file \"%1\" is missing."), path);
  } else if (rom.kind == Kind::unknown) {
    stop(translatable("Checks", "The ROM file \"%1\" cannot be reached: %2."), path, rom.error);
  } else if (rom.kind == Kind::folder) {
    stop(translatable("Checks", "The ROM file \"%1\" is a folder."), path);
  } else if (rom.kind == Kind::other) {
    stop(translatable("Checks", "The ROM file \"%1\" is a device and no file."), path);
  } else if (!rom.isReadable) {
    stop(translatable("Checks", "There is no permission to read the ROM file \"%1\"."), path);
  } else if (!isRomSize(rom.stamp.size)) {
    found.add(Level::warning, Key::rom,
              translatable("Checks",
                           "The ROM file \"%1\" is %2 bytes large and most likely no ROM: those "
                           "are 64, 128, 256 or 512 KB, 1, 2 or 4 MB large."),
              path, std::to_string(rom.stamp.size));
  }
}

void checkOtherFiles(const State& state, const Facts& facts, Collector& found) {
  if (state.isChosen(Key::extfs) && facts.sharedFolder.kind != Kind::folder) {
    const std::string& path = state.value(Key::extfs);
    const Kind kind = facts.sharedFolder.kind;
    if (kind == Kind::unknown) {
      found.add(Level::warning, Key::extfs,
                translatable("Checks", "The shared folder \"%1\" cannot be reached: %2."), path,
                facts.sharedFolder.error);
    } else {
      found.add(Level::warning, Key::extfs,
                kind == Kind::nothing
                    ? translatable("Checks", "The shared folder \"%1\" is missing.")
                    : translatable("Checks", "The shared folder \"%1\" is no folder."),
                path);
    }
  }
  if (state.value(Key::keycodes) == "true" && facts.keycodeFile.kind == Kind::nothing) {
    if (state.isChosen(Key::keycodefile)) {
      found.add(Level::warning, Key::keycodefile,
                translatable("Checks", "Raw key codes are on, and their file \"%1\" is missing."),
                state.value(Key::keycodefile));
    } else {
      found.add(Level::warning, Key::keycodefile,
                translatable("Checks", "Raw key codes are on, and no file is chosen for them."));
    }
  }
}

void checkPreferencesFile(const State& state, const Facts& facts, Collector& found) {
  const PreferencesState& file = state.preferences;
  const FileFact& fact = facts.preferences;
  const auto stop = [&](const char* format, auto... arguments) {
    found.add(Level::stops, Place::preferencesFile, format, arguments...);
  };
  if (!file.readError.empty()) {
    stop(translatable("Checks",
                      "The preferences file could not be read: %1. What you see are the defaults, "
                      "and saving puts them in the place of what is in the file."),
         std::vector{file.readError});
  }
  if (!file.path) {
    stop(translatable("Checks",
                      "The place of the preferences file names no file: no save can "
                      "succeed."));
    return;
  }
  if (!file.saveError.empty()) {
    stop(translatable("Checks", "The preferences file \"%1\" could not be saved: %2."), *file.path,
         file.saveError);
  } else if (fact.kind == Kind::nothing ? !facts.folderIsWritable : !fact.isWritable) {
    stop(translatable("Checks", "The preferences file \"%1\" cannot be written: a save will fail."),
         *file.path);
  }
  if (!file.stamp && file.readError.empty() && fact.kind == Kind::file) {
    found.add(Level::warning, Place::preferencesFile,
              translatable("Checks",
                           "The preferences file \"%1\" exists and has not been read. A save "
                           "replaces what is in it."),
              *file.path);
  } else if (file.stamp && fact.kind == Kind::nothing) {
    stop(translatable("Checks",
                      "The preferences file \"%1\" has been removed by another program. "
                      "A save makes it anew."),
         *file.path);
  } else if (file.stamp && fact.kind != Kind::unknown && fact.stamp != *file.stamp) {
    stop(translatable("Checks",
                      "The preferences file \"%1\" has been changed by another program. "
                      "A save undoes that."),
         *file.path);
  }
}

}  // namespace checks
