// Files of the program's own settings and of an application's description.

#include "platform/property_list.h"
#include "tests/support/fuzz.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::PropertyList;
using tests::check;

std::optional<PropertyList> read(const std::string& content) {
  static const tests::TemporaryFolder folder;
  std::error_code error;
  auto list = PropertyList::read(folder.write("Prefs.plist", content), error);
  check(list.has_value() != static_cast<bool>(error), "a list or a reason");
  return list;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  auto list = read(tests::textOf(data, size));
  if (!list) {
    return 0;
  }
  for (const char* key : {"Quillon.app location", "Start Button Enabled", "Start Flag"}) {
    (void)list->text(key);
    (void)list->boolean(key);
    (void)list->integer(key);
  }
  const std::string location = "/a & b/<Quillon>.app";
  list->set("Quillon.app location", location);
  list->set("Start Button Enabled", true);
  list->set("Start Flag", std::int64_t{2});
  if (const auto xml = list->xml()) {
    const auto again = read(*xml);
    check(again.has_value(), "what was written can be read");
    check(again->text("Quillon.app location") == location, "a text reads back equal");
    check(again->boolean("Start Button Enabled") == true, "a truth value reads back equal");
    check(again->integer("Start Flag") == 2, "a number reads back equal");
  }
  return 0;
}
