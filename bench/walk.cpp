#include <iostream>
#include <string_view>

#include "bench/host.h"
#include "editor/view_controller.h"

// What the program does before it builds its window, and nothing else: to count instructions, or
// with --save also what a save takes.
int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "Usage: walk HOME [--save]\n";
    return 2;
  }
  bench::Host host(argv[1]);
  editor::ViewController controller(host.host());
  controller.viewDidLoad();
  const bool saves = argc > 2 && std::string_view(argv[2]) == "--save";
  return saves && !controller.savePrefsAny() ? 1 : 0;
}
