#include "checks/finding.h"

#include <algorithm>
#include <iterator>

namespace checks {

std::string filled(std::string_view format, const std::vector<std::string>& arguments) {
  std::string text;
  while (!format.empty()) {
    const std::size_t mark = std::min(format.find('%'), format.size());
    text += format.substr(0, mark);
    format.remove_prefix(mark);
    if (format.empty()) {
      break;
    }
    const char digit = format.size() > 1 ? format[1] : '0';
    const auto number = static_cast<std::size_t>(digit - '0');
    if (digit >= '1' && digit <= '9' && number <= arguments.size()) {
      text += arguments[number - 1];
      format.remove_prefix(2);
    } else {
      text += '%';
      format.remove_prefix(1);
    }
  }
  return text;
}

std::string english(const Text& text) {
  std::vector<std::string> arguments;
  for (const Argument& argument : text.arguments) {
    std::string joined;
    for (const std::string& word : argument.words) {
      joined.append(joined.empty() ? "" : ", ").append(word);
    }
    arguments.push_back(std::move(joined));
  }
  return filled(text.format, arguments);
}

std::string_view nameOf(Level level) {
  switch (level) {
    case Level::stops:
      return "stops";
    case Level::warning:
      return "warning";
    case Level::note:
      break;
  }
  return "note";
}

std::string_view nameOf(const Subject& subject) {
  if (const auto* const key = std::get_if<document::Key>(&subject)) {
    const std::string_view text = document::rowOf(*key).text;
    return text.substr(0, text.size() - 1);  // without its blank
  }
  switch (std::get<Place>(subject)) {
    case Place::quillon:
      return "Quillon.app";
    case Place::diskImages:
      return "disk";
    case Place::preferencesFile:
      break;
  }
  return ".quillon_prefs";
}

}  // namespace checks
