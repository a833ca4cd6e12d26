#include "document/preferences.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/files.h"
#include "platform/text.h"

namespace document {
namespace {

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text.append(line).append("\n");
  }
  return text;
}

// What a person is told. The C library speaks of wide characters where a text is not UTF-8.
std::string reasonOf(const std::error_code& error) {
  return error == std::errc::illegal_byte_sequence
             ? platform::translatable("Help", "it is not UTF-8 text")
             : error.message();
}

}  // namespace

Preferences::Preferences(std::string homeDirectory, platform::Output& output)
    : dir(std::move(homeDirectory)), output_(output) {}

std::string Preferences::line(Key key, std::string_view value) {
  const std::string_view text = prefs[indexOf(key)];
  std::string line;
  line.reserve(text.size() + value.size());
  line.append(text).append(value);
  return line;
}

void Preferences::load(IfMissing ifMissing) {
  output_.print(dir);
  output_.print(fileName);
  prefsURL = platform::Location::fromPath(dir + "/" + fileName);
  prefsURL2 = platform::Location::fromPath(dir + "/.quillon_prefs_debug");
  const bool noprefsfile = platform::isMissing(prefsURL->path());
  if (noprefsfile) {
    output_.print("Failed reading from URL: ", prefsURL->text(), ", Error: ");
  } else {
    readFile();
  }
  output_.print(prefsPath);
  if (noprefsfile && ifMissing == IfMissing::create) {
    createFile();
  }
}

void Preferences::readFile() {
  prefsPath = prefsURL->path();
  output_.print(prefsURL->text());
  output_.print(prefsPath);
  // Taken before the content is read: a write in between then shows as a change from outside.
  stamp_ = platform::stampOf(prefsPath);
  std::error_code error;
  if (auto text = platform::readTextFile(prefsPath, error)) {
    settings = Lines(*std::move(text));
    firstLines_ = settings.firstContaining(prefs);
  } else {
    readError_ = reasonOf(error);
    output_.print("Failed reading from URL: ", prefsURL->text(), ", Error: ", error.message());
  }
}

void Preferences::createFile() {
  preferencesDefault.clear();
  for (const KeyRow& row : keyTable) {
    newNoPrefs[indexOf(row.key)] = line(row.key, row.defaultValue);
    preferencesDefault.push_back(newNoPrefs[indexOf(row.key)]);
  }
  output_.print(platform::listText(preferencesDefault));
  output_.print("newNoPrefs:\n ", platform::optionalText(newNoPrefs[2]), "\n");
  const std::error_code error = platform::createFile(prefsURL->path(), joined(preferencesDefault));
  if (error == std::errc::file_exists) {
    // Another program has made the file after load() looked for it. Nobody has read it: the error
    // keeps a save from replacing it without a word in the window.
    readError_ = error.message();
  }
  if (!error) {
    stamp_ = platform::stampOf(prefsURL->path());
    for (const std::string& written : preferencesDefault) {
      output_.print(std::to_string(written.size()));
    }
  }
}

void Preferences::lookUp(Key key, std::string_view foundLabel) {
  const std::string_view match = prefs[indexOf(key)];
  std::string value(defaults[indexOf(key)]);
  const auto found = firstLines_[indexOf(key)];
  if (found) {
    output_.print(foundLabel, *found);
    // A key text is ASCII: as many characters as bytes.
    const std::string_view rest = platform::dropCharacters(withoutReturn(*found), match.size());
    if (!rest.empty()) {
      value = rest;
    }
  } else {
    output_.print("No match for: ", match);
  }
  noteFound(key, found, value);
  newPrefs[indexOf(key)] = line(key, value);
  prefSet[indexOf(key)] = std::move(value);
}

std::vector<std::string> Preferences::composedLines(
    const std::vector<std::string>& disks, const std::array<std::string, keyCount>& values) {
  std::vector<std::string> lines;
  lines.reserve(disks.size() + keyCount);
  std::transform(disks.begin(), disks.end(), std::back_inserter(lines),
                 [](const std::string& path) { return "disk " + path; });
  for (const KeyRow& row : keyTable) {
    lines.push_back(line(row.key, values[indexOf(row.key)]));
  }
  return lines;
}

void Preferences::noteFound(Key key, std::optional<std::string_view> line, std::string_view value) {
  foundLines_[indexOf(key)] = line;
  fileValues_[indexOf(key)] = value;
}

std::string Preferences::composed(const std::vector<std::string>& disks,
                                  const std::array<std::string, keyCount>& values) {
  return joined(composedLines(disks, values));
}

bool Preferences::save(const std::vector<std::string>& disks, std::string_view finalMessage) {
  for (const std::string& path : disks) {
    output_.print(path);
  }
  preferences = composedLines(disks, prefSet);
  std::copy(preferences.end() - keyCount, preferences.end(), newPrefs.begin());
  output_.print("pre write prefs test");
  output_.print("newFileOutput test: ", platform::optionalText(prefsURL2));
  const std::string text = joined(preferences);
  output_.print(text);
  const std::error_code error = write(text);
  if (error) {
    saveError_ = error.message();
    output_.print("couldn't save prefs file");
  } else {
    noteSaved();
  }
  output_.print(finalMessage);
  output_.print(platform::listText(preferences));
  return !error;
}

std::error_code Preferences::write(const std::string& text) {
  return prefsURL && prefsURL->isFile() ? platform::writeFile(prefsURL->path(), text)
                                        : std::make_error_code(std::errc::invalid_argument);
}

void Preferences::noteSaved() {
  readError_.clear();
  saveError_.clear();
  stamp_ = platform::stampOf(prefsURL->path());
  for (std::size_t index = 0; index < keyCount; ++index) {
    if (fileValues_[index] != prefSet[index]) {
      foundLines_[index].reset();
      fileValues_[index] = prefSet[index];
    }
  }
}

void Preferences::setLocation(std::string_view text) {
  if (!prefsURL || prefsURL->path() != text) {
    prefsURL = platform::Location::fromText(text);
    // Compared with the file at the new place, the old file's stamp would tell of a change.
    stamp_.reset();
    saveError_.clear();
  }
}

void Preferences::copyToLocation() const {
  const platform::Location home = platform::Location::fromPath(dir + "/" + fileName);
  output_.print(home.text());
  auto error = std::make_error_code(std::errc::invalid_argument);
  if (prefsURL && prefsURL->isFile()) {
    error = platform::copyFile(home.path(), prefsURL->path());
  }
  if (error) {
    output_.print("Problem: ", error.message());
  }
}

}  // namespace document
