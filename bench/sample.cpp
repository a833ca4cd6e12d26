#include "bench/sample.h"

#include <iostream>

// Prints a preferences file.
int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "Usage: sample DISKS OTHERS [WORD-OF-OTHERS]\n";
    return 2;
  }
  std::cout << bench::samplePreferences(std::stoul(argv[1]), std::stoul(argv[2]),
                                        argc > 3 ? argv[3] : "keyword");
  return 0;
}
