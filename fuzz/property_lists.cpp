// Files of the front-end's own settings and of an application's description.

#include "fuzz/support.h"
#include "platform/property_list.h"

namespace {

using platform::PropertyList;

constexpr const char* fileName = "Prefs.plist";

std::optional<PropertyList> read(const fuzz::Folder& folder) {
  std::error_code error;
  auto list = PropertyList::read(folder.path(fileName), error);
  fuzz::check(list.has_value() != static_cast<bool>(error), "a list or a reason");
  return list;
}

void readEverything(const PropertyList& list) {
  for (const char* key : {"Quillon.app location", "Start Button Enabled", "Start Flag", "SCSI Tab",
                          "Quit on Start", "CFBundleExecutable"}) {
    (void)list.text(key);
    (void)list.boolean(key);
    (void)list.integer(key);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::Folder folder;
  folder.write(fileName, fuzz::textOf(data, size));
  auto list = read(folder);
  if (!list) {
    return 0;
  }
  readEverything(*list);
  list->set("Quillon.app location", std::string("/a & b/<Quillon>.app"));
  list->set("Start Button Enabled", true);
  list->set("Start Flag", std::int64_t{2});
  const auto xml = list->xml();
  if (!xml) {
    return 0;
  }
  folder.write(fileName, *xml);
  const auto again = read(folder);
  fuzz::check(again.has_value(), "what was written can be read");
  fuzz::check(again->text("Quillon.app location") == "/a & b/<Quillon>.app" &&
                  again->boolean("Start Button Enabled") == true &&
                  again->integer("Start Flag") == 2,
              "what was written reads back equal");
  return 0;
}
