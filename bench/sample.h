#pragma once

#include <cstddef>
#include <iomanip>
#include <sstream>
#include <string>

#include "document/key_table.h"

namespace bench {

/// The text of a preferences file: so many disk lines, so many lines that begin with `other`, and a
/// line for each setting.
inline std::string samplePreferences(std::size_t disks, std::size_t others,
                                     const std::string& other = "keyword") {
  std::ostringstream text;
  text << std::setfill('0');
  for (std::size_t disk = 0; disk < disks; ++disk) {
    text << "disk /home/somebody/images/disk" << std::setw(6) << disk << ".dsk\n";
  }
  for (std::size_t line = 0; line < others; ++line) {
    text << other << " /home/somebody/other/folder/file" << std::setw(9) << line << ".img\n";
  }
  text << "screen win/1024/768\nrom /home/somebody/quadra.rom\n";
  int number = 0;
  for (const document::KeyRow& row : document::keyTable) {
    if (row.key != document::Key::screen && row.key != document::Key::rom) {
      text << row.text << ++number % 2 << "\n";
    }
  }
  return text.str();
}

}  // namespace bench
