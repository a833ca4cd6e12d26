#include <algorithm>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

// What reading and rewriting a file of "key value" lines costs a program that does it in the
// shortest way: everything is split at the first blank, kept, and put together again.
int main(int argc, char** argv) {
  if (argc != 3) {
    return 2;
  }
  std::ifstream in(argv[1], std::ios::binary | std::ios::ate);
  std::string text(static_cast<std::size_t>(in.tellg()), '\0');
  in.seekg(0);
  in.read(text.data(), static_cast<std::streamsize>(text.size()));

  std::vector<std::pair<std::string, std::string>> settings;
  for (std::size_t start = 0; start < text.size();) {
    std::size_t end = text.find('\n', start);
    end = end == std::string::npos ? text.size() : end;
    const std::size_t blank = std::min(text.find(' ', start), end);
    settings.emplace_back(text.substr(start, blank - start),
                          blank < end ? text.substr(blank + 1, end - blank - 1) : std::string());
    start = end + 1;
  }

  std::string written;
  for (const auto& [key, value] : settings) {
    written += key + ' ' + value + '\n';
  }
  std::ofstream out(argv[2], std::ios::binary);
  out.write(written.data(), static_cast<std::streamsize>(written.size()));
  return out.good() ? 0 : 1;
}
