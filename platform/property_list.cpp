#include "platform/property_list.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

#include "platform/binary_list.h"
#include "platform/files.h"
#include "platform/plist_compat.h"

namespace platform {
namespace {

// Bounds the recursion of the parser, too.
constexpr std::size_t sizeLimit = std::size_t{64} * 1024;
constexpr std::size_t expandedLimit = std::size_t{1024} * 1024;
constexpr std::size_t mostLevels = 64;  // of dictionaries and arrays within each other

// Read for what it is, and not with plist_from_memory(): libplist 2.3 and later then also take JSON
// and OpenStep texts, which nobody has seen to be harmless.
plist_t parse(const std::string& bytes) {
  plist_t root = nullptr;
  const auto size = static_cast<std::uint32_t>(bytes.size());
  if (isBinary(bytes)) {
    plist_from_bin(bytes.data(), size, &root);
  } else {
    plist_from_xml(bytes.data(), size, &root);
  }
  return root;
}

// A binary list can hold a key twice. libplist then reads another of the two values after the list
// has been written as XML.
bool holdsAKeyTwice(plist_t dictionary) {
  plist_dict_iter position = nullptr;
  plist_dict_new_iter(dictionary, &position);
  const std::unique_ptr<void, decltype(&std::free)> owned(position, &std::free);
  for (std::set<std::string> keys;;) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(dictionary, position, &key, &value);
    const PlistText ownedKey(key);
    if (key == nullptr) {
      return false;
    }
    if (!keys.emplace(key).second) {
      return true;
    }
  }
}

std::vector<plist_t> itemsOf(plist_t container) {
  const bool isArray = plist_get_node_type(container) == PLIST_ARRAY;
  void* position = nullptr;
  if (isArray) {
    plist_array_new_iter(container, &position);
  } else {
    plist_dict_new_iter(container, &position);
  }
  const std::unique_ptr<void, decltype(&std::free)> owned(position, &std::free);
  for (std::vector<plist_t> items;;) {
    plist_t item = nullptr;
    if (isArray) {
      plist_array_next_item(container, position, &item);
    } else {
      plist_dict_next_item(container, position, nullptr, &item);
    }
    if (item == nullptr) {
      return items;
    }
    items.push_back(item);
  }
}

// Written as XML each level is indented by one more tab: 64 KiB of lists within lists would become
// many megabytes.
bool isNestedDeeper(plist_t node, std::size_t levels) {
  const plist_type type = plist_get_node_type(node);
  if (type != PLIST_ARRAY && type != PLIST_DICT) {
    return false;
  }
  const auto goesOn = [&](plist_t item) { return isNestedDeeper(item, levels - 1); };
  const auto items = levels > 0 ? itemsOf(node) : std::vector<plist_t>();
  return levels == 0 || std::any_of(items.begin(), items.end(), goesOn);
}

}  // namespace

PropertyList::PropertyList() : root_(plist_new_dict()) {}

void PropertyList::Free::operator()(Node node) const { plist_free(node); }

std::optional<PropertyList> PropertyList::read(const std::string& path, std::error_code& error) {
  const auto bytes = readFile(path, error, sizeLimit);
  if (!bytes) {
    return std::nullopt;
  }
  const plist_t root = isHarmless(*bytes, expandedLimit) ? parse(*bytes) : nullptr;
  PropertyList list(root);
  if (plist_get_node_type(root) != PLIST_DICT || holdsAKeyTwice(root) ||
      isNestedDeeper(root, mostLevels) || !list.xml()) {
    error = std::make_error_code(std::errc::invalid_argument);
    return std::nullopt;
  }
  return list;
}

PropertyList::Node PropertyList::item(const std::string& key) const {
  return plist_dict_get_item(root_.get(), key.c_str());
}

std::optional<std::string> PropertyList::text(const std::string& key) const {
  const plist_t node = item(key);
  if (plist_get_node_type(node) != PLIST_STRING) {
    return std::nullopt;
  }
  char* value = nullptr;
  plist_get_string_val(node, &value);
  const PlistText owned(value);
  return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

std::optional<bool> PropertyList::boolean(const std::string& key) const {
  const plist_t node = item(key);
  if (plist_get_node_type(node) != PLIST_BOOLEAN) {
    return std::nullopt;
  }
  std::uint8_t value = 0;
  plist_get_bool_val(node, &value);
  return value != 0;
}

std::optional<std::int64_t> PropertyList::integer(const std::string& key) const {
  const plist_t node = item(key);
  if (plist_get_node_type(node) != PLIST_UINT) {
    return std::nullopt;
  }
  std::uint64_t value = 0;
  plist_get_uint_val(node, &value);
  return static_cast<std::int64_t>(value);
}

void PropertyList::set(const std::string& key, const std::string& text) {
  plist_dict_set_item(root_.get(), key.c_str(), plist_new_string(text.c_str()));
}

void PropertyList::set(const std::string& key, bool value) {
  plist_dict_set_item(root_.get(), key.c_str(), plist_new_bool(value ? 1 : 0));
}

void PropertyList::set(const std::string& key, std::int64_t value) {
  // plist_new_uint() is all that libplist 2.2 has: set again, a negative number would become a huge
  // positive one.
  if (integer(key) != value) {
    plist_dict_set_item(root_.get(), key.c_str(),
                        plist_new_uint(static_cast<std::uint64_t>(value)));
  }
}

std::optional<std::string> PropertyList::xml() const {
  char* text = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root_.get(), &text, &length);
  const PlistText owned(text);
  // read() refuses more than this: all settings would be lost at the next start.
  return text != nullptr && length <= sizeLimit
             ? std::optional<std::string>(std::in_place, text, length)
             : std::nullopt;
}

}  // namespace platform
