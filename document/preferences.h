#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "document/key_table.h"
#include "document/lines.h"
#include "platform/file_stamp.h"
#include "platform/location.h"
#include "platform/output.h"

namespace document {

/// The emulator's preferences file: where it is, what it held at start-up, and the value of each
/// setting that the next save writes. Knows no control and no volume.
class Preferences {
 public:
  /// `homeDirectory` is a path without a last "/".
  Preferences(std::string homeDirectory, platform::Output& output);
  Preferences(const Preferences&) = delete;
  Preferences& operator=(const Preferences&) = delete;

  /// What to do about a file that is not there.
  enum class IfMissing { create, leave };

  /// Reads the file in the home directory, or writes one with the defaults when there is none.
  void load(IfMissing ifMissing = IfMissing::create);

  /// Why the file that is there could not be read; empty when it was read or written. The next
  /// save replaces it all the same.
  [[nodiscard]] const std::string& readError() const { return readError_; }

  /// Why the last save failed; empty when it did not.
  [[nodiscard]] const std::string& saveError() const { return saveError_; }

  /// The file as it was when it was read or written last; none when it was not.
  [[nodiscard]] const std::optional<platform::FileStamp>& stamp() const { return stamp_; }

  /// Finds the value of a key in the lines read, its default else, and makes it the current one.
  /// `foundLabel` begins the diagnostic line about a line that was found.
  void lookUp(Key key, std::string_view foundLabel = "results: ");

  /// Notes what a lookup found: the line, if any, and the value that counts as the file's.
  void noteFound(Key key, std::optional<std::string_view> line, std::string_view value);

  /// The line that the value of a key was found in; none when there was none, or since a save has
  /// written another value.
  [[nodiscard]] const std::optional<std::string>& foundLine(Key key) const {
    return foundLines_[indexOf(key)];
  }

  /// The value of a key in the file, as it was found or has been saved since.
  [[nodiscard]] const std::string& fileValue(Key key) const { return fileValues_[indexOf(key)]; }

  /// The current value of a key, as the next save writes it.
  [[nodiscard]] const std::string& value(Key key) const { return prefSet[indexOf(key)]; }
  void setValue(Key key, std::string value) { prefSet[indexOf(key)] = std::move(value); }

  /// The line of a key with that value.
  [[nodiscard]] static std::string line(Key key, std::string_view value);

  /// Rewrites the file as a whole: a line for each disk, then one for each key. A failure is
  /// printed; returns whether there was none. `finalMessage` ends the diagnostics.
  bool save(const std::vector<std::string>& disks, std::string_view finalMessage);

  /// The text that a save of these disks and values would write.
  [[nodiscard]] static std::string composed(const std::vector<std::string>& disks,
                                            const std::array<std::string, keyCount>& values);

  /// Makes later saves go to the place that a location text names.
  void setLocation(std::string_view text);

  /// Copies the file in the home directory to the place that saves go to.
  void copyToLocation() const;

  std::string dir;
  std::string fileName = ".quillon_prefs";
  std::optional<platform::Location> prefsURL;
  std::optional<platform::Location> prefsURL2;
  std::string prefsPath;  // empty until the file was found

  Lines settings;                                // as read at start-up
  std::array<std::string, keyCount> prefSet;     // the current values
  std::array<std::string, keyCount> newPrefs;    // the composed lines
  std::array<std::string, keyCount> newNoPrefs;  // the default lines, after a first run
  std::vector<std::string> preferencesDefault;   // the lines of the first file
  std::vector<std::string> preferences;          // the lines of the file last written

 private:
  void readFile();
  void createFile();
  [[nodiscard]] static std::vector<std::string> composedLines(
      const std::vector<std::string>& disks, const std::array<std::string, keyCount>& values);
  std::error_code write(const std::string& text);
  void noteSaved();

  platform::Output& output_;
  std::string readError_;
  std::string saveError_;
  std::optional<platform::FileStamp> stamp_;
  std::vector<std::optional<std::string_view>> firstLines_{keyCount};  // in settings, by key
  std::array<std::optional<std::string>, keyCount> foundLines_;
  std::array<std::string, keyCount> fileValues_;
};

}  // namespace document
