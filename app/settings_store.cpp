#include "app/settings_store.h"

#include <unistd.h>

#include <filesystem>

#include "app/shared_var.h"
#include "platform/files.h"

namespace app {
namespace {

// Calls `visit` with each setting's key, its place in sharedVar, the way to read it, and its value
// as shipped.
template <typename Visit>
void eachSetting(Visit visit) {
  using List = platform::PropertyList;
  visit("Quillon.app location", sharedVar::pathToQuil, &List::text, std::string());
  visit("Start Button Enabled", sharedVar::startState, &List::boolean, true);
  visit("Start Flag", sharedVar::startFlag, &List::integer, std::int64_t{startLocal});
  visit("SCSI Tab", sharedVar::scsiTabState, &List::boolean, false);
  visit("Quit on Start", sharedVar::quitGUI, &List::boolean, false);
}

std::string shown(const std::string& text) { return "\"" + text + "\""; }
std::string shown(bool flag) { return flag ? "true" : "false"; }
std::string shown(std::int64_t number) { return std::to_string(number); }

bool isWritable(const std::string& file) {
  const std::string place =
      platform::isMissing(file) ? std::filesystem::path(file).parent_path().string() : file;
  return ::access(place.c_str(), W_OK) == 0;
}

}  // namespace

SettingsStore::SettingsStore(const platform::Host& host)
    : output_(host.output),
      shipped_(host.bundle.resource("Prefs.plist")),
      file_(isWritable(shipped_) ? shipped_ : host.configHome + "/quillon-settings/Prefs.plist") {}

void SettingsStore::load() {
  std::error_code error;
  const std::string& source = platform::isMissing(file_) ? shipped_ : file_;
  auto list = platform::PropertyList::read(source, error);
  dict_ = list ? *std::move(list) : platform::PropertyList();
  const std::string reason = error ? " (" + error.message() + ")" : std::string();
  eachSetting([&](const char* key, auto& field, auto read, const auto& shippedValue) {
    const auto value = (dict_.*read)(key);
    field = value.value_or(shippedValue);
    if (!value) {
      output_.print("Prefs.plist: no usable \"", key, "\"", reason, ", taking ", shown(field));
    }
  });
}

void SettingsStore::writeBack() {
  eachSetting(
      [&](const char* key, const auto& field, auto, const auto&) { dict_.set(key, field); });
  writePlist();
}

void SettingsStore::writePlist() {
  const auto data = dict_.xml();
  if (!data) {
    output_.print("Prefs.plist cannot be expressed as XML of at most 64 KiB");
    return;
  }
  output_.print(std::to_string(data->size()), " bytes");
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(file_).parent_path(), error);
  error = platform::writeFile(file_, *data);
  if (error) {
    output_.print(error.message());
  }
}

}  // namespace app
