#pragma once

#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

// The calls of libplist that are not the same in every version; the build asks the library which
// ones it has.
namespace platform {

/// Frees texts and buffers that libplist hands out.
struct FreePlistMemory {
  void operator()(void* memory) const {
#if PLIST_HAS_MEM_FREE
    plist_mem_free(memory);
#else
    std::free(memory);
#endif
  }
};

using PlistText = std::unique_ptr<char, FreePlistMemory>;

/// The list that the bytes are, in any format that the library knows; null when they are none.
inline plist_t plistFromMemory(std::string_view bytes) {
  plist_t root = nullptr;
  const auto size = static_cast<std::uint32_t>(bytes.size());
#if PLIST_TELLS_FORMAT
  plist_from_memory(bytes.data(), size, &root, nullptr);
#else
  plist_from_memory(bytes.data(), size, &root);
#endif
  return root;
}

}  // namespace platform
