#include "volumes/blank_image.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

// Makes a blank image with the program's own writer and prints the peak of its resident memory in
// KiB.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "Usage: blank_image FILE BYTES\n";
    return 2;
  }
  volumes::ZeroBuffer zeros;
  std::error_code error = zeros.setLength(std::strtoull(argv[2], nullptr, 10));
  if (!error) {
    error = volumes::writeImage(argv[1], zeros.bytes());
  }
  if (error) {
    std::cerr << "blank_image: " << error.message() << '\n';
    return 1;
  }
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word == "VmHWM:") {
      status >> word;
      std::cout << word << '\n';
      break;
    }
  }
  return 0;
}
