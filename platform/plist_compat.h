#pragma once

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

// What is not the same in every version of libplist; the build asks the library what it has.
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

}  // namespace platform
