#pragma once

#include <cstddef>
#include <string>

#include "document/key_table.h"

namespace bench {

/// The lines of a preferences file with `disks` disk lines and `others` lines that are no setting,
/// followed by one line for each setting.
inline std::string samplePreferences(std::size_t disks, std::size_t others) {
  std::string text;
  for (std::size_t i = 0; i < disks; ++i) {
    text += "disk /home/somebody/images/disk " + std::to_string(i) + ".dsk\n";
  }
  for (std::size_t i = 0; i < others; ++i) {
    text += "keyword" + std::to_string(i % 40) + " /home/somebody/other/file " + std::to_string(i) +
            ".img\n";
  }
  for (const document::KeyRow& row : document::keyTable) {
    text.append(row.text).append(row.defaultValue).append("\n");
  }
  return text;
}

}  // namespace bench
